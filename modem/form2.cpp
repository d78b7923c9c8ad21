#include "modem/form2.h"

#include "app/panel.h"

namespace gsm {

Form2::Form2(Panel& panel) : Window(panel.platform, "Form2", {.Caption = "GSM-Model Details"}) {}

}  // namespace gsm
