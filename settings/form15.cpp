#include "settings/form15.h"

namespace gsm {

Form15::Form15(Panel& panel) : FeatureWindow(panel, "Form15", {.Caption = "GSM-Modem Settings"}) {}

}  // namespace gsm
