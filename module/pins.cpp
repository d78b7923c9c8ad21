#include <string>

#include "link/conversation.h"
#include "link/transcript.h"
#include "module/form17.h"
#include "platform/runtime_failure.h"

namespace gsm {

void Form17::openPins() {
  turnTo(Frame6);
  Combo5.Clear();
  constexpr int kPins = 8;
  for (int pin = 0; pin < kPins; ++pin) Combo5.AddItem(std::to_string(pin));
}

void Form17::readPin() try {
  if (Combo5.Text.empty()) return;
  Label9.Caption = "";
  const std::string pin = std::to_string(Combo5.ListIndex.get());
  modem().exchange("AT+WIOR=" + pin);
  const Outcome outcome = modem().outcome();
  if (outcome == Outcome::ok) showPin(pin);
  if (outcome == Outcome::error) Label9.Caption = "Not Supported";
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// Fails at its first look, since nothing has given it the transcript to look into. So no pin's
// state is ever shown, and the reply stays for the next clearing.
void Form17::showPin(std::string_view pin) {
  if (pinReply_ == nullptr) throw failure::objectNotSet();
  if (!pinReply_->holds("+WIOR:")) return;
  const std::string words = std::string("PIN ").append(pin);
  if (modem().holds("0")) {
    Label9.Caption = words + " RESET";
  } else if (modem().holds("1")) {
    Label9.Caption = words + " SET";
  }
}

}  // namespace gsm
