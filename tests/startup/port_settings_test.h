#pragma once

#include <algorithm>
#include <map>

#include "panel/form1.h"
#include "startup/frm_settings.h"
#include "tests/support/healthy_modem_test.h"

namespace gsm {

/// A panel without a saved port, whose user opens the port settings. Port 3 has a modem that
/// answers everything.
class PortSettingsTest : public HealthyModemTest {
 protected:
  using Ports = std::vector<HeadlessPorts::Port>;
  using Saved = std::map<std::string, std::string>;

  void startWith(const Ports& ports, std::optional<int> modemPort = 3) {
    start({.ports = ports, .modemPort = modemPort, .now = {2026, 3, 1, 0, 0, 0}});
    answerEverything();
    settle();
  }
  /// The port as the window will find it.
  void setLine(int port, const std::string& line, int handshaking, bool open) {
    inPanel([=, this] {
      SerialControl& control = form1().MSComm1;
      control.CommPort = port;
      control.Settings = line;
      control.Handshaking = handshaking;
      control.PortOpen = open;
    });
    run(0);
  }

  frmSettings& window() { return panel().settings; }
  void openWindow() {
    click(form1().Command7);
    ASSERT_TRUE(window().isLoaded());
  }

  /// The user picks `item` of `combo`.
  void choose(ComboBox& combo, const std::string& item) {
    const auto& items = combo.List.peek();
    const auto place = std::find(items.begin(), items.end(), item);
    ASSERT_NE(place, items.end()) << item;
    const int index = static_cast<int>(place - items.begin());
    world().time().after(Duration::zero(), [&combo, index] { combo.userSelect(index); });
    run(0);
  }
  /// The user opens the list of the ports.
  void openPortList() {
    world().time().after(Duration::zero(), [this] { window().cboPort.userDropDown(); });
    run(0);
  }
  void ok() { click(window().cmdAction[0]); }
  void cancel() { click(window().cmdAction[1]); }

  std::string port() { return window().cboPort.Text.peek(); }
  std::string baud() { return window().cboBaud.Text.peek(); }
  /// The index of the option that is set, -1 when none is.
  static int chosen(ControlArray<OptionButton>& options) {
    for (OptionButton& option : options) {
      if (option.Value.peek()) return option.index();
    }
    return -1;
  }

  Saved saved() { return machine().settings.values(); }
  std::string line() { return form1().MSComm1.Settings; }
};

}  // namespace gsm
