#include "security/form9.h"

namespace gsm {

Form9::Form9(Panel& panel) : FeatureWindow(panel, "Form9", {.Caption = "GSM-SECURITY"}) {}

}  // namespace gsm
