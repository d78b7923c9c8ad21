#pragma once

#include <string>
#include <vector>

#include "panel/form1.h"
#include "security/form9.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/routing_test.h"
#include "tests/support/rows.h"

namespace gsm {

using Texts = std::vector<std::string>;

enum Tab { phone = 1, simPin = 2, network = 3 };

inline constexpr const char* kReading = "Please Wait....";
inline constexpr const char* kPhoneLocked = "Current Status:SIM Locked";
inline constexpr const char* kPhoneUnlocked = "Current Status:SIM Not Locked";
inline constexpr const char* kPinActivated = "Current Status:PIN Activated";
inline constexpr const char* kPinDeactivated = "Current Status:PIN Deactivated";
inline constexpr const char* kNetworkLocked = "Current Status:NetWork Locked";
inline constexpr const char* kNetworkUnlocked = "Current Status:NetWork UNlocked";

/// The window of the locks over an open port with a scripted modem.
class SecurityTest : public RoutingTest {
 protected:
  /// The modem's answer to the query for the locks.
  void answerLocks(const std::string& text) { reply("AT+CLCK?", text); }

  /// Shows the window, and lets its read end.
  void openWindow() {
    inPanel([this] { form().Show(); });
    settle();
    sent();
  }
  void turnTo(int tab) {
    world().time().after(Duration::zero(), [this, tab] { form().TabStrip1.userTab(tab); });
    run(0);
  }
  /// The user clicks, and what follows ends.
  template <class Clickable>
  void press(Clickable& control) {
    click(control);
    settle();
  }
  void closePort() {
    inPanel([this] { form1().MSComm1.PortOpen = false; });
    run(0);
  }
  void closeWindow() {
    inPanel([this] { form().userClose(); });
    run(0);
  }

  void expectBox(const std::string& text) {
    const auto shown = machine().boxes.takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, text);
    EXPECT_EQ(shown[0].title, "GSM");
    EXPECT_EQ(shown[0].icon, BoxIcon::none);
  }
  /// No handler waits, no box came up, and the program goes on.
  void expectAtRest() {
    EXPECT_EQ(waiting(), 0);
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
  }

  Form9& form() { return panel().form9; }
  std::string caption(const Label& label) { return label.Caption.peek(); }
  /// The status lines of the three pages.
  Texts states() {
    return {caption(form().Label2), caption(form().Label6), caption(form().Label10)};
  }
  /// The controls on the page of `frame` that would show with it.
  Texts shownIn(const Frame& frame) {
    Texts names;
    for (const Control* control : form().controls()) {
      if (control->container() == &frame && control->Visible.peek()) {
        names.push_back(control->name());
      }
    }
    return names;
  }
  /// Sets the visibility of every control on the three pages.
  void setAll(bool visible) {
    inPanel([this, visible] {
      for (Control* control : form().controls()) {
        const Control* frame = control->container();
        if (frame != nullptr && frame != &form().Frame1) control->Visible = visible;
      }
    });
    run(0);
  }
};

}  // namespace gsm
