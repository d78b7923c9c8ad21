#include "panel/form1.h"
#include "platform/runtime_failure.h"

namespace gsm {

void Form1::OnComm() try {
  std::string received;
  if (MSComm1.CommEvent == CommEvent::receive) received = MSComm1.Input();
  // Every other event routes the transcript anew as well, with nothing added.
  ProcessResponse(received, /*marked=*/false);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form1::ShowResponse(const std::string& text) {
  Text1.append("Response Received\r\n" + text + "\r\nEnd of Reponse\r\n");
  Text1.SelStart = Text1.length();
}

}  // namespace gsm
