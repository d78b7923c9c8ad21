#include "panel/form1.h"
#include "panel/panel.h"
#include "phonebook/form5.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {

void Form1::showTime() { Label4.Caption = platform().clock.localTime().timeOfDay(); }

// The poll: takes the call prompt down when the call has gone, since no line says so when the
// caller gives up silently. Nothing guards it against other handlers, and it clears nothing.
void Form1::pollCall() try {
  modem.exchangeOnTop("AT+CIND?");
  const Position key = modem.position("+CIND:");
  if (modem.holds("ERROR")) Timer2.Enabled = false;
  if (key == 0) return;

  // +CIND: 5,4,1,0,1,0,0 - the fifth field is the call's.
  constexpr int kCallField = 5;
  constexpr int kFieldsTaken = 6;
  std::string fields = modem.slice(key + 7, modem.position("OK"));
  std::string call;
  for (int field = 1; field <= kFieldsTaken; ++field) {
    const std::string value = takeReplyField(fields);
    if (field == kCallField) call = value;
  }
  if (number(call) == 0) {
    panel_.form5.Hide();
    Timer2.Enabled = false;
  }
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
