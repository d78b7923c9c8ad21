#pragma once

#include <string>
#include <vector>

#include "modem/form20.h"
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
                    const std::string& comFile = "9600,N,8,1 3\r\n") {
    layComFile(comFile);
    start({.now = {2026, 3, 1, 0, 0, 0}});
    answerEverything(simReply);
  }

  /// Starts it and lets the start-up end; what was written so far is forgotten.
  void startUnlocked() {
    startHealthy();
    settle();
    sent();
  }

  void answerEverything(const std::string& simReply = unsolicited("+CPIN: READY")) {
    for (const char* command : {"AT", "AT+CMEE=0", "AT+CRC=0", "AT+CLIP=1", "AT+WIND=0",
                                "AT+CMGF=1", "AT+SPEAKER=1", "ATE1", "AT+CCED=2", "AT&F", "AT&W"}) {
      reply(command, kOk);
    }
    reply("AT+CGSN", kImeiReply);
    reply("AT+CPIN?", simReply);
    reply("AT+CSQ", information("+CSQ: 29,0"));
    reply("AT+CREG?", information("+CREG: 0,1"));
    reply("ATI0", kManufacturerReply);
    reply("ATI3", information(kRevision));
    reply("ATS0?", information("000"));
    reply("AT+IPR?", information("+IPR: 9600"));
    reply("AT+ICF?", information("+ICF: 3,4"));
    reply("AT&V", kProfileReply);
    reply("AT+CNMI?", information("+CNMI: 0,1,0,0,0"));
  }

  /// The modem hears `command` and says nothing, not even its echo.
  void silence(const std::string& command) { world().modem.add({.write = command + "\r"}); }

  /// The user types `keys` into `box`.
  template <class Box>
  void type(Box& box, const std::string& keys) {
    world().time().after(Duration::zero(), [&box, keys] { box.userType(keys); });
    run(0);
  }

  /// The user closes `window` by its box, and all that follows happens.
  void close(Window& window) {
    inPanel([&window] { window.userClose(); });
    settle();
  }

  void closePort() {
    inPanel([this] { form1().MSComm1.PortOpen = false; });
    run(0);
  }

  std::vector<CommandButton*> buttons() {
    Form1& form = form1();
    return {&form.Command1,  &form.Command2,  &form.Command3, &form.Command4, &form.Command5,
            &form.Command6,  &form.Command7,  &form.Command8, &form.Command9, &form.Command10,
            &form.Command11, &form.Command12, &form.Command13};
  }
  /// The numbers of the panel's buttons that are enabled.
  std::vector<int> enabledButtons() {
    std::vector<int> numbers;
    int number = 0;
    for (const CommandButton* button : buttons()) {
      ++number;
      if (button->Enabled.peek()) numbers.push_back(number);
    }
    return numbers;
  }

  void expectLocked() {
    EXPECT_EQ(enabledButtons(), (std::vector<int>{7, 8, 9, 13}));
    EXPECT_TRUE(form1().Frame5.Visible.peek());
    EXPECT_FALSE(panel().form20.Timer1.Enabled.peek());
  }
  void expectWorking() {
    EXPECT_EQ(enabledButtons(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}));
    EXPECT_FALSE(form1().Frame5.Visible.peek());
    EXPECT_TRUE(panel().form20.Timer1.Enabled.peek());
  }
  /// What the no-SIM state sets on the panel, whether or not the modem told its framing.
  void expectNoSim() {
    EXPECT_EQ(enabledButtons(), (std::vector<int>{1, 6, 7, 8, 9, 10, 11, 12, 13}));
    EXPECT_FALSE(form1().Frame5.Visible.peek());
  }
  /// No handler waits, no box came up, and the program goes on.
  void expectAtRest() {
    EXPECT_EQ(waiting(), 0);
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
  }

  /// Exactly one box has come up.
  void expectBox(const std::string& text, const std::string& title, BoxIcon icon = BoxIcon::none) {
    const auto shown = machine().boxes.takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, text);
    EXPECT_EQ(shown[0].title, title);
    EXPECT_EQ(shown[0].icon, icon);
  }
  /// A run-time failure that no handler trapped has ended the program.
  void expectEndedBy(const std::string& failure) {
    expectBox(failure, MessageBoxes::kDefaultTitle);
    EXPECT_TRUE(ended());
  }

  std::string statusLine() { return form1().Label5.Caption.peek(); }
  std::string portState() { return form1().Label1.Caption.peek(); }
  std::string portNumber() { return form1().Label2.Caption.peek(); }
  std::string portSettings() { return form1().Label3.Caption.peek(); }
};

}  // namespace gsm
