#include "phonebook/auto_answer.h"

#include "link/conversation.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "phonebook/form5.h"

namespace gsm {

std::optional<std::string> autoAnswerReply(const Conversation& modem) {
  const Position echo = modem.position("ATS0?");
  if (echo == 0 || !modem.holds("OK")) return std::nullopt;
  return modem.slice(echo + 8, 3);  // behind the echo and the line ends
}

void Form1::showAutoAnswer() {
  const auto reply = autoAnswerReply(modem);
  if (reply) panel_.form5.answerByHand(*reply == kAnswersByHand);
}

// A modem that answers by itself leaves the prompt nothing to answer.
void Form5::answerByHand(bool byHand) {
  Command1.Enabled = byHand;
  Label2.Caption = byHand ? "" : "AutoAnswer Enabled";
}

}  // namespace gsm
