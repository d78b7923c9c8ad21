#include "panel/form1.h"
#include "panel/panel.h"
#include "phonebook/form5.h"

namespace gsm {

// The reply to "ATS0?" is three digits after the echo and a line end. A modem that answers by
// itself leaves the call prompt nothing to answer.
void Form1::showAutoAnswer() {
  const Position echo = modem.position("ATS0?");
  if (echo == 0 || !modem.holds("OK")) return;
  const bool byHand = modem.slice(echo + 8, 3) == "000";
  panel_.form5.Command1.Enabled = byHand;
  panel_.form5.Label2.Caption = byHand ? "" : "AutoAnswer Enabled";
}

}  // namespace gsm
