#include "modem/form11.h"
#include "modem/form20.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"

namespace gsm {

Form11::Form11(Panel& panel) : Window(panel.platform, "Form11", {.Quiet = true, .Notice = true}) {}

Form20::Form20(Panel& panel)
    : Window(panel.platform, "Form20", {.Quiet = true, .Notice = true}), panel_(panel) {
  Timer1.Tick = [this] { comeUp(); };
}

void Form20::comeUp() try {
  Show();
  panel_.form1.modem.pause(3);
  Hide();
} catch (const RuntimeFailure&) {
  // Ends silently: after a midnight within the three seconds the picture stays until the next tick.
}

}  // namespace gsm
