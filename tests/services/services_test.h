#pragma once

#include <string>
#include <vector>

#include "panel/form1.h"
#include "services/form12.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/routing_test.h"
#include "tests/support/rows.h"

namespace gsm {

using Texts = std::vector<std::string>;

enum Tab { forwarding = 1, barring = 2, waitingCalls = 3, userGroup = 4 };

/// The window of the supplementary services over an open port with a scripted modem.
class ServicesTest : public RoutingTest {
 protected:
  /// How long the window takes to read the forwarding: six times three seconds.
  static constexpr double kLoad = 18;

  /// Shows the window, and lets no time pass.
  void beginLoad() {
    inPanel([this] { form().Show(); });
    run(0);
  }
  /// Shows the window with a modem that says nothing, and lets its reads end.
  void openWindow() {
    beginLoad();
    settle();
    sent();
  }
  /// The user clicks a tab, and no time passes.
  void clickTab(Tab tab) {
    world().time().after(Duration::zero(), [this, tab] { form().TabStrip1.userTab(tab); });
    run(0);
  }
  /// The user clicks a tab, and what follows ends.
  void turnTo(Tab tab) {
    clickTab(tab);
    settle();
  }
  template <class Clickable>
  void press(Clickable& control) {
    click(control);
    settle();
  }
  void choose(std::initializer_list<OptionButton*> options) {
    for (OptionButton* option : options) click(*option);
  }
  void closePort() {
    inPanel([this] { form1().MSComm1.PortOpen = false; });
    run(0);
  }
  void closeWindow() {
    inPanel([this] { form().userClose(); });
    run(0);
  }

  /// The modem answers `command` without its echo.
  void replyWithoutEcho(const std::string& command, const std::string& text) {
    world().modem.add({.write = command + "\r",
                       .replies = {{{ModemScript::kDefaultDelay, text}}},
                       .echo = false});
  }

  void expectBox(const std::string& text, const std::string& title) {
    const auto shown = machine().boxes.takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, text);
    EXPECT_EQ(shown[0].title, title);
    EXPECT_EQ(shown[0].icon, BoxIcon::none);
  }
  /// No handler waits, no box came up, and the program goes on.
  void expectAtRest() {
    EXPECT_EQ(waiting(), 0);
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
  }

  Form12& form() { return panel().form12; }
  std::string caption(const Label& label) { return label.Caption.peek(); }
  /// The frames of the pages that are on view, and the button that comes and goes with one.
  Texts pages() {
    Texts shown;
    const Control* const parts[] = {&form().Frame1,  &form().Frame13, &form().Frame9,
                                    &form().Frame5,  &form().Frame10, &form().Frame11,
                                    &form().Frame12, &form().Command6};
    for (const Control* part : parts) {
      if (part->Visible.peek()) shown.push_back(part->name());
    }
    return shown;
  }
  /// The state of the forwarding, a line for each reason.
  Texts forwardingShown() {
    Form12& window = form();
    Texts shown;
    for (const Label* label : {&window.Label11, &window.Label12, &window.Label13, &window.Label14,
                               &window.Label15, &window.Label16}) {
      shown.push_back(caption(*label));
    }
    return shown;
  }
};

inline const Texts kForwardingReads = {"AT+CCFC=0,2\r", "AT+CCFC=1,2\r", "AT+CCFC=2,2\r",
                                       "AT+CCFC=3,2\r", "AT+CCFC=4,2\r", "AT+CCFC=5,2\r"};
inline const Texts kBarringReads = {"AT+CLCK=\"AO\",2\r", "AT+CLCK=\"OI\",2\r",
                                    "AT+CLCK=\"OX\",2\r", "AT+CLCK=\"AI\",2\r",
                                    "AT+CLCK=\"IR\",2\r"};

}  // namespace gsm
