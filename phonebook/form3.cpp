#include "phonebook/form3.h"

namespace gsm {

Form3::Form3(Panel& panel)
    : FeatureWindow(panel, "Form3", {.Caption = "GSM-Call"}, OnClose::emptiesStatus) {}

}  // namespace gsm
