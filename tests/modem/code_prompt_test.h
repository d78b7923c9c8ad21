#pragma once

#include <algorithm>

#include "modem/form10.h"
#include "panel/form1.h"
#include "tests/support/healthy_modem_test.h"

namespace gsm {

/// A start-up that stands at the prompt for a code of the SIM.
class CodePromptTest : public HealthyModemTest {
 protected:
  void startAtPrompt(const std::string& word) {
    startHealthy(unsolicited("+CPIN: " + word));
    settle();
    sent();
  }

  Form10& prompt() { return panel().form10; }

  /// The modem answers codes with `replies` in turn, the last for ever after.
  void answerCodes(const Texts& replies) {
    ModemScript::Rule rule = {.fit = ModemScript::Rule::Fit::beginning, .write = "AT+CPIN="};
    for (const std::string& text : replies) {
      rule.replies.push_back({{ModemScript::kDefaultDelay, text}});
    }
    world().modem.add(rule);
  }

  void enterPin(const std::string& pin) {
    type(prompt().Text1, pin);
    click(prompt().Command1);
  }
  void enterPuk(const std::string& puk, const std::string& pin) {
    type(prompt().Text2, puk);
    enterPin(pin);
  }

  std::string refusals() { return form1().Text2.Text.peek(); }
  /// Whether the prompt's four parts are on view: both labels with their boxes, the PIN's first.
  std::vector<bool> parts() {
    return {prompt().Label1.Visible.peek(), prompt().Text1.Visible.peek(),
            prompt().Label2.Visible.peek(), prompt().Text2.Visible.peek()};
  }
  const std::vector<bool> kPinForm = {true, true, false, false};
  const std::vector<bool> kPukForm = {true, true, true, true};

  /// How often `line` stands in the log.
  long logged(const std::string& line) {
    const Texts lines = log();
    return std::count(lines.begin(), lines.end(), line);
  }
  /// The log after the line of the SIM check.
  Texts logAfterTheCheck() {
    const Texts lines = log();
    const auto check = std::find(lines.begin(), lines.end(), "Check SIM PIN");
    return check == lines.end() ? Texts{} : Texts(check + 1, lines.end());
  }
  void expectNoCodeInTheLog(const Texts& codes) {
    for (const std::string& line : log()) {
      for (const std::string& code : codes) EXPECT_EQ(line.find(code), std::string::npos) << line;
    }
  }
};

inline const Texts kFullSequence = {"AT+CMEE=0\r",    "AT+CRC=0\r", "AT+CLIP=1\r", "AT+WIND=0\r",
                                    "AT+CMGF=1\r",    "AT\r",       "AT+CSQ\r",    "AT+CREG?\r",
                                    "AT+SPEAKER=1\r", "ATE1\r",     "ATI0\r",      "ATI3\r",
                                    "AT+CCED=2\r",    "ATS0?\r",    "AT+IPR?\r",   "AT+ICF?\r"};

inline Texts withSequence(Texts before) {
  before.insert(before.end(), kFullSequence.begin(), kFullSequence.end());
  return before;
}

}  // namespace gsm
