#include "sms/form8.h"

namespace gsm {

Form8::Form8(Panel& panel)
    : FeatureWindow(panel, "Form8", {.Caption = "GSM-Short Message Service"}) {}

}  // namespace gsm
