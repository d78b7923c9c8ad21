#include "module/form16.h"

namespace gsm {

Form16::Form16(Panel& panel) : FeatureWindow(panel, "Form16", {.Caption = "GSM-Others FeaTures"}) {}

}  // namespace gsm
