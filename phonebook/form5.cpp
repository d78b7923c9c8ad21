#include "phonebook/form5.h"

#include "app/panel.h"

namespace gsm {

Form5::Form5(Panel& panel) : Window(panel.platform, "Form5", {.Caption = "Call Received....."}) {}

}  // namespace gsm
