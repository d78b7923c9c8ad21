#include "modem/form11.h"
#include "modem/form20.h"
#include "modem/form7.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"

namespace gsm {

Form11::Form11(Panel& panel) : Window(panel.platform, "Form11", {.Quiet = true, .Notice = true}) {}

Form7::Form7(Panel& panel)
    : Window(panel.platform, "Form7", {.Caption = "GSM-N/W", .Quiet = true}) {}

Form20::Form20(Panel& panel)
    : Window(panel.platform, "Form20", {.Quiet = true, .Notice = true}), panel_(panel) {
  Timer1.Tick = [this] { Timer1_Tick(); };
}

void Form20::Timer1_Tick() try {
  Show();
  panel_.form1.Pause(3);
  Hide();
} catch (const RuntimeFailure&) {
  // Ends silently: after a midnight within the three seconds the picture stays until the next tick.
}

}  // namespace gsm
