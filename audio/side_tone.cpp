#include <array>

#include "audio/form6.h"
#include "link/conversation.h"
#include "link/pair_reply.h"
#include "panel/choices.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

constexpr std::array kStates = {
    OptionCode<Form6>{"0", &Form6::Option1},
    OptionCode<Form6>{"1", &Form6::Option2},
};

}  // namespace

void Form6::showSideTone(Position key) {
  const PairReply reply = pairReply(modem(), key + 6);
  const double told = number(reply.first);
  for (const auto& state : kStates) {
    if (told == number(state.code)) (this->*state.option).Value = true;
  }
  Slider10.Value = wholeNumber(reply.second);
}

// The level goes out with the side tone off too. The outcome is the dispatcher's to tell.
void Form6::changeSideTone() try {
  const auto* state = selectedOption<Form6>(*this, kStates);
  if (state == nullptr) {
    platform().boxes.show("Please Select The Options ", "GSM");
    return;
  }
  modem().exchange("AT+SIDET=" + std::string(state->code) + "," + std::to_string(Slider10.Value));
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
