#include "app/panel.h"

namespace gsm {

Form11::Form11(Panel& panel) : Window(panel.platform, "Form11") {}

Form7::Form7(Panel& panel) : Window(panel.platform, "Form7", {.Caption = "GSM-N/W"}) {}

Form20::Form20(Panel& panel) : Window(panel.platform, "Form20"), panel_(panel) {
  Timer1.Tick = [this] { Timer1_Tick(); };
}

// Without a trap: a midnight within the three seconds ends the program.
void Form20::Timer1_Tick() {
  Show();
  panel_.form1.Pause(3);
  Hide();
}

}  // namespace gsm
