#include "link/conversation.h"
#include "module/form17.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/program.h"
#include "platform/runtime_failure.h"

namespace gsm {

// A modem that is off has nothing to say to a program: it ends with it, once the user has read so.
void Form17::switchOff() try {
  modem().exchange("AT&W");
  modem().exchange("AT+CPOF", 3);
  const Outcome outcome =
      modem().report(Label13, {.ok = "POWER OFF SuccessFul", .error = "Changes Unsuccessful"});
  if (outcome == Outcome::ok) {
    platform().boxes.show("Power OFF SuccessFul.....Restart...");
    platform().program.end();
  }
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
