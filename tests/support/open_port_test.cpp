#include "tests/support/open_port_test.h"

namespace gsm {

void OpenPortTest::startWithOpenPort(LocalTime clock) {
  start({.now = clock});
  settle();
  inPanel([this] {
    form1().MSComm1.CommPort = 3;
    form1().MSComm1.PortOpen = true;
  });
  run(0);
}

void OpenPortTest::leaveInTranscript(const std::string& text) {
  inPanel([this, text] { form1().Text1.append(text); });
  run(0);
}

}  // namespace gsm
