#include "settings/form14.h"

namespace gsm {

Form14::Form14(Panel& panel) : FeatureWindow(panel, "Form14", {.Caption = "GSM-DATA&FAX SETUP"}) {}

}  // namespace gsm
