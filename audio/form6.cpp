#include "audio/form6.h"

namespace gsm {

Form6::Form6(Panel& panel)
    : FeatureWindow(panel, "Form6", {.Caption = "GSM-Call Control"}, OnClose::emptiesStatus) {}

}  // namespace gsm
