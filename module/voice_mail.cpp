#include <array>

#include "link/conversation.h"
#include "module/form17.h"
#include "panel/choices.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

constexpr std::array kVoiceMailModes = {
    Item{"DeActivate", "0"},
    Item{"Activate", "1"},
    Item{"Interrogate", "2"},
};

}  // namespace

void Form17::openVoiceMail() {
  turnTo(Frame5);
  refill(Combo4, kVoiceMailModes);
}

// What an interrogation tells isn't shown, only that the modem has answered. Of the features of the
// card this is about the first.
void Form17::changeVoiceMail() try {
  if (Combo4.Text.empty()) return;
  change("AT+CPHS=" + selectedCode(Combo4, kVoiceMailModes) + ",1", Label6,
         {.ok = "Changes SuccessFul-CPHS", .error = "Changes UnSuccessFul-CPHS"});
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
