#pragma once

#include <string>

#include "controls/serial_control.h"
#include "tests/support/platform_fixture.h"

namespace gsm {

/// A serial control on a machine with some ports, whose every event is noted.
class SerialControlTest : public PlatformTest {
 protected:
  void SetUp() override {
    machine().ports.set({{.number = 3},
                         {.number = 5, .held = true},
                         {.number = 7, .fails = "The port is on fire"},
                         {.number = 12}});
    machine().line.plug(3);
    port.OnComm = [this] {
      const CommEvent event = port.CommEvent;
      note(event == CommEvent::receive ? "receive " + port.Input()
                                       : "event " + std::to_string(static_cast<int>(event)));
    };
  }
  void open() {
    port.CommPort = 3;
    port.PortOpen = true;
  }
  void arrive(const std::string& bytes, double after = 0) {
    time().after(fromSeconds(after), [this, bytes] { machine().line.arrive(bytes); });
  }

  SerialControl port{platform(), "MSComm1"};
};

}  // namespace gsm
