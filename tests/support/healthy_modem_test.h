#pragma once

#include <string>
#include <vector>

#include "panel/form1.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/panel_fixture.h"
#include "tests/support/rows.h"

namespace gsm {

using Texts = std::vector<std::string>;

inline constexpr const char* kManufacturerReply =
    "\r\n WAVECOM MODEM\r\n\r\n MULTIBAND  900E  1800 \r\n\r\nOK\r\n";
inline constexpr const char* kRevision = "641b09gg.Q2403A 1320676 061804 14:38";
inline constexpr const char* kProfileReply =
    "\r\nQ:0 V:1 S0:000 S2:043 S3:013 S4:010 S5:008\r\n"
    "+CR:0 +CRC:0 +CMEE:0 +CBST:0,0,1\r\n"
    "+SPEAKER:0 +ECHO:0,1 &C:1 &D:1 %C:2\r\n"
    "+IPR:115200 +ICF:3,4 +IFC:2,2\r\n\r\nOK\r\n";
/// What a test puts into a text that a handler must leave as it is.
inline constexpr const char* kBefore = "as it was";
inline constexpr const char* kFailureOfAClosedPort = "Operation valid only when the port is open";

/// A panel whose saved port 3 has a modem with echo, which answers everything that the panel may
/// ask it from the start to the buttons, each after 50 milliseconds in one chunk.
///
/// Its clock begins at midnight, where single precision is finer than anything that a test looks
/// at.
class HealthyModemTest : public PanelTest {
 protected:
  /// Starts the program; nothing happens before time passes.
  void startHealthy(const std::string& simReply = unsolicited("+CPIN: READY"),
                    const std::string& comFile = "9600,N,8,1 3\r\n");

  /// Starts it and lets the start-up end; what was written so far is forgotten.
  void startUnlocked();

  void answerEverything(const std::string& simReply = unsolicited("+CPIN: READY"));

  /// The modem hears `command` and says nothing, not even its echo.
  void silence(const std::string& command);

  /// The user types `keys` into `box`.
  template <class Box>
  void type(Box& box, const std::string& keys) {
    world().time().after(Duration::zero(), [&box, keys] { box.userType(keys); });
    run(0);
  }

  /// The user closes `window` by its box, and all that follows happens.
  void close(Window& window);

  void closePort();

  std::vector<CommandButton*> buttons();
  /// The numbers of the panel's buttons that are enabled.
  std::vector<int> enabledButtons();

  void expectLocked();
  void expectWorking();
  /// What the no-SIM state sets on the panel, whether or not the modem told its framing.
  void expectNoSim();
  /// No handler waits, no box came up, and the program goes on.
  void expectAtRest();

  /// Exactly one box has come up.
  void expectBox(const std::string& text, const std::string& title, BoxIcon icon = BoxIcon::none);
  /// A run-time failure that no handler trapped has ended the program.
  void expectEndedBy(const std::string& failure);

  std::string statusLine() { return form1().Label5.Caption.peek(); }
  std::string portState() { return form1().Label1.Caption.peek(); }
  std::string portNumber() { return form1().Label2.Caption.peek(); }
  std::string portSettings() { return form1().Label3.Caption.peek(); }
};

}  // namespace gsm
