#include <algorithm>
#include <array>

#include "link/conversation.h"
#include "panel/choices.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"
#include "services/form12.h"

namespace gsm {
namespace {

struct WaitingState {
  std::string_view reply;
  std::string_view words;
};
// The first that the transcript holds decides. A line with a number, which reports a waiting call,
// is the dispatcher's.
constexpr std::array kStates = {
    WaitingState{"+CCWA: 1,1", "Current Status:Call Waiting Enabled"},
    WaitingState{"+CCWA: 0,7", "Current Status:Call Waiting Disabled"},
    WaitingState{"ERROR", "Error Occured.Please Try Later"},
};

// Enabling is for voice, disabling for all classes.
constexpr std::array kChanges = {
    OptionCode<Form12>{"AT+CCWA=1,1,1", &Form12::Option29},
    OptionCode<Form12>{"AT+CCWA=1,0,7", &Form12::Option30},
};

}  // namespace

void Form12::readWaiting() {
  modem().exchange("AT+CCWA=1,2", 3);
  const auto state = std::find_if(kStates.begin(), kStates.end(), [this](const WaitingState& each) {
    return modem().holds(each.reply);
  });
  if (state != kStates.end()) Label6.Caption = std::string(state->words);
  modem().clear();
}

void Form12::openWaitingChange() {
  Frame11.Visible = true;
  Command6.Visible = true;
}

void Form12::changeWaiting() try {
  const auto* change = selectedOption<Form12>(*this, kChanges);
  if (change == nullptr) {
    platform().boxes.show("Please Select the Option Correctly", "GSM");
  } else {
    Label6.Caption = "Please Wait";
    modem().exchange(change->code, 3);
    modem().report(Label6, {.ok = "Changes SuccessFul", .error = "Changes UnsuccessFul"});
  }
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
