#include <cmath>

#include "audio/form6.h"
#include "link/conversation.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

constexpr int kTenth = 100;  // the modem counts in tenths of a second, the window in milliseconds

// The nearest whole number, of two that are as near the even one.
std::string nearest(double value) {
  return std::to_string(static_cast<int>(std::nearbyint(value)));
}

}  // namespace

// Of the three characters that are taken the last must be the carriage return at the latest, so the
// value has two digits at most.
void Form6::readToneLength() {
  modem().clear();
  Text1.Text = "";
  modem().exchangeOnTop("AT+VTD?");
  const Position key = modem().position("+VTD:");
  if (key != 0 && modem().holds("OK")) {
    const std::string tenths = before("\r", modem().slice(key + 6, 3));
    const std::string length = nearest(number(tenths) * kTenth);
    Label7.Caption = "Tone Lenght Currently Is" + length;
    Text1.Text = length;
  }
  modem().clear();
}

// The range that the label names isn't looked at: the modem is the judge. The colour stays for what
// the label says later, and the reply stays in the transcript.
void Form6::changeToneLength() try {
  constexpr int kDarkBlue = 0x400000;
  constexpr int kDarkRed = 0x0000C0;
  if (Text1.Text.empty()) {
    platform().boxes.show("Tone Length Cannot Be Blank,Enter Proper Data", "GSM");
    return;
  }
  const double length = wholeNumber(Text1.Text.get());
  modem().exchange("AT+VTD=" + nearest(length / kTenth));
  const Outcome outcome = modem().report(
      Label7,
      {.ok = "Changes SuccessFul-TONE LENGTH", .error = "Changes Unsuccessful,CHECK TONE LENGTH"});
  if (outcome == Outcome::ok) Label7.ForeColor = kDarkBlue;
  if (outcome == Outcome::error) Label7.ForeColor = kDarkRed;
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
