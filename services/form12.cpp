#include "services/form12.h"

namespace gsm {

Form12::Form12(Panel& panel)
    : FeatureWindow(panel, "Form12", {.Caption = "GSM-Supplementary Service"},
                    OnClose::emptiesStatus) {}

}  // namespace gsm
