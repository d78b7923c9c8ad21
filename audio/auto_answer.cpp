#include <cmath>

#include "audio/form6.h"
#include "link/conversation.h"
#include "panel/panel.h"
#include "phonebook/auto_answer.h"
#include "phonebook/form5.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

// A number without fraction and leading zeros. What isn't a number stays as it is.
std::string inDigits(const std::string& rings) {
  double value = 0;
  try {
    value = number(rings);
  } catch (const RuntimeFailure&) {
    return rings;
  }
  return std::to_string(std::llround(value));
}

}  // namespace

void Form6::readAnswerAndToneLength() {
  readAutoAnswer();
  readToneLength();
}

// The options show and hide the rings.
void Form6::readAutoAnswer() {
  modem().exchange("ATS0?");
  const auto reply = autoAnswerReply(modem());
  if (!reply) return;
  if (*reply == kAnswersByHand) {
    Option3.Value = true;
    Label7.Caption = "Auto Answer Disabled";
  } else {
    const std::string rings = inDigits(*reply);
    Option4.Value = true;
    Combo3.Text = rings;
    Label7.Caption = "Auto Answer Enabled,Total Rings" + rings;
  }
}

void Form6::showRings(bool visible) {
  Label33.Visible = visible;
  Combo3.Visible = visible;
}

// The number of rings is wanted for "Disable" too, and comes first: without one nothing is sent and
// nothing is said.
void Form6::changeAutoAnswer() try {
  constexpr int kTooManyRings = 9;
  const int rings = wholeNumber(Combo3.Text.get());
  if (rings < kTooManyRings && Option4.Value) {
    sendAutoAnswer("ATS0=" + Combo3.Text, "Changes SuccessFul.AutoAnswer Enabled", false);
  } else if (Option3.Value) {
    sendAutoAnswer("ATS0=0", "Changes SuccessFul.AutoAnswer Disabled", true);
  } else {
    platform().boxes.show("UnsuccessFul Changes.Check Rings ", "GSM");
  }
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form6::sendAutoAnswer(const std::string& command, std::string_view done, bool byHand) {
  modem().exchange(command);
  if (modem().holds("OK")) {
    Label7.Caption = std::string(done);
    panel_.form5.answerByHand(byHand);
  } else {
    Label7.Caption = "Changes UNSuccessFul.Try Again";
  }
}

}  // namespace gsm
