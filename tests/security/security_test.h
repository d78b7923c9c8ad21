#pragma once

#include <string>

#include "security/form9.h"
#include "tests/support/feature_window_test.h"

namespace gsm {

enum Tab { phone = 1, simPin = 2, network = 3 };

inline constexpr const char* kReading = "Please Wait....";
inline constexpr const char* kPhoneLocked = "Current Status:SIM Locked";
inline constexpr const char* kPhoneUnlocked = "Current Status:SIM Not Locked";
inline constexpr const char* kPinActivated = "Current Status:PIN Activated";
inline constexpr const char* kPinDeactivated = "Current Status:PIN Deactivated";
inline constexpr const char* kNetworkLocked = "Current Status:NetWork Locked";
inline constexpr const char* kNetworkUnlocked = "Current Status:NetWork UNlocked";

/// The window of the locks over an open port with a scripted modem.
class SecurityTest : public FeatureWindowTest {
 protected:
  /// The modem's answer to the query for the locks.
  void answerLocks(const std::string& text) { reply("AT+CLCK?", text); }

  void turnTo(int tab) {
    act([this, tab] { form().TabStrip1.userTab(tab); });
  }

  Window& window() override { return form(); }
  Form9& form() { return panel().form9; }
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
