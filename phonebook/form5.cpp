#include "phonebook/form5.h"

#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"

namespace gsm {

Form5::Form5(Panel& panel)
    // Quiet, for a key that is meant for another window must not answer a call.
    : Window(panel.platform, "Form5",
             {.Caption = "Call Received.....", .Quiet = true, .Urgent = true}),
      panel_(panel) {
  Command1.Click = [this] { answer(); };
  Command2.Click = [this] { hangUp(); };
}

// The window stays, so that the call can be ended from it.
void Form5::answer() try {
  panel_.form1.modem.exchangeOnTop("ATA");
  panel_.form1.modem.clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form5::hangUp() try {
  panel_.form1.modem.exchange("ATH");
  panel_.form1.modem.clear();
  Hide();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
