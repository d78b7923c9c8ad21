#include <array>
#include <string_view>

#include "link/pair_reply.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

// The steps are coarse on purpose, and the fifth bar is never lit.
struct SignalStep {
  double from;
  double to;
  int bars;
  std::string_view words;  // empty: the values themselves
};
constexpr std::array kSignalSteps = {
    SignalStep{0, 0, 1, ""},
    SignalStep{1, 1, 2, ""},
    SignalStep{2, 30, 3, ""},
    SignalStep{31, 31, 4, ""},
    SignalStep{99, 99, 0, "Unknown/Undetectable"},
};

constexpr std::array kRegistrationWords = {
    "Not Registered",
    "Registered/Home Network",
    "Not Registered.Searching Operator",
    "Registration Denied",
    "Unknown",
    "Registered/Roaming",
};

}  // namespace

void Form1::networkset() try {
  Form7& window = panel_.form7;
  window.Show();
  window.Label4.Caption = "";
  window.Label5.Caption = "";
  modem.exchangeOnTop("AT");
  if (!modem.holds("OK")) return;
  modem.exchange("AT+CSQ");         // its reply is routed to showSignal during the wait,
  modem.exchangeOnTop("AT+CREG?");  // and this one to showRegistration
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form1::showSignal(Position key) {
  const PairReply reply = pairReply(modem, key + 5);
  const double strength = number(reply.first);
  Form7& window = panel_.form7;
  for (const SignalStep& step : kSignalSteps) {
    if (strength < step.from || strength > step.to) continue;
    window.Image1.Visible = step.bars >= 1;
    window.Image2.Visible = step.bars >= 2;
    window.Image3.Visible = step.bars >= 3;
    window.Image4.Visible = step.bars >= 4;
    window.Image5.Visible = step.bars >= 5;
    window.Label4.Caption =
        step.words.empty() ? reply.first + "," + reply.second : std::string(step.words);
  }
}

void Form1::showRegistration(Position key) {
  const double status = number(pairReply(modem, key + 6).second);
  for (std::size_t value = 0; value < kRegistrationWords.size(); ++value) {
    if (status == static_cast<double>(value)) {
      panel_.form7.Label5.Caption = kRegistrationWords[value];
    }
  }
}

}  // namespace gsm
