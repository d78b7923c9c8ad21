#include "audio/form6.h"

#include "app/panel.h"

namespace gsm {

Form6::Form6(Panel& panel) : Window(panel.platform, "Form6", {.Caption = "GSM-Call Control"}) {}

}  // namespace gsm
