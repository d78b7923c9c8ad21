#include <algorithm>
#include <array>

#include "link/conversation.h"
#include "platform/runtime_failure.h"
#include "sms/form8.h"

namespace gsm {

/// What an option switches, and how.
struct Form8::Switch {
  OptionButton Form8::*option;
  std::string_view parameters = {};  // a command before the one that switches, where there is one
  std::string_view command;
  OutcomeWords words;
};

// "OK" of the cell broadcast.
void Form8::switchBroadcast() try {
  static constexpr std::array kSwitches = {
      Switch{.option = &Form8::Option1,
             .command = "AT+CSCB=1",
             .words = {.ok = "Cell BroadCast Enabled", .error = "Error,Cudnt Enable"}},
      Switch{.option = &Form8::Option2,
             .command = "AT+CSCB=0",
             .words = {.ok = "Cell BroadCast Disabled", .error = "Error,Cudnt Disable"}},
  };
  Label4.Caption = "";
  apply(kSwitches, nullptr);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "OK" of the status report. What the parameters set stays set when reports are switched off.
void Form8::switchReports() try {
  static constexpr std::array kSwitches = {
      Switch{.option = &Form8::Option3,
             .parameters = "AT+CSMP=33,167,0,0",
             .command = "AT+CNMI=0,1,0,1,0",
             .words = {.ok = "Status Report Enabled", .error = "Error,Cudnt Enable Status report"}},
      Switch{.option = &Form8::Option4,
             .command = "AT+CNMI=0,1,0,0,0",
             .words = {.ok = "Status Report Disabled", .error = "Error,Cudnt Disable"}},
  };
  Label6.Caption = "";
  Label4.Caption = "Please Wait";
  apply(kSwitches, &Label6);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// Runs the switch whose option is set, if any is. `state`, where there is one, shows what now
// holds.
void Form8::apply(std::span<const Switch> switches, Label* state) {
  const auto chosen = std::find_if(switches.begin(), switches.end(), [this](const Switch& each) {
    return (this->*each.option).Value.get();
  });
  if (chosen == switches.end()) return;
  modem().clear();
  // Both replies are judged as one, so a single "OK" of the two will do.
  if (!chosen->parameters.empty()) modem().exchangeOnTop(chosen->parameters);
  modem().exchangeOnTop(chosen->command);
  const Outcome outcome = modem().report(Label4, chosen->words);
  if (outcome == Outcome::ok && state != nullptr) state->Caption = std::string(chosen->words.ok);
  modem().clear();
}

}  // namespace gsm
