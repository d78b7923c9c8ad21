#include "panel/form7.h"

#include "panel/panel.h"

namespace gsm {

Form7::Form7(Panel& panel)
    : Window(panel.platform, "Form7", {.Caption = "GSM-N/W", .Quiet = true}) {}

}  // namespace gsm
