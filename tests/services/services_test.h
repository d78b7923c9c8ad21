#pragma once

#include <string>

#include "services/form12.h"
#include "tests/support/feature_window_test.h"

namespace gsm {

enum Tab { forwarding = 1, barring = 2, waitingCalls = 3, userGroup = 4 };

/// The window of the supplementary services over an open port with a scripted modem.
class ServicesTest : public FeatureWindowTest {
 protected:
  /// How long the window takes to read the forwarding: six times three seconds.
  static constexpr double kLoad = 18;

  /// The user clicks a tab, and no time passes.
  void clickTab(Tab tab) {
    act([this, tab] { form().TabStrip1.userTab(tab); });
  }
  /// The user clicks a tab, and what follows ends.
  void turnTo(Tab tab) {
    clickTab(tab);
    settle();
  }
  void choose(std::initializer_list<OptionButton*> options) {
    for (OptionButton* option : options) click(*option);
  }

  Window& window() override { return form(); }
  Form12& form() { return panel().form12; }
  /// The frames of the pages that are on view, and the button that comes and goes with one.
  Texts pages() {
    return shownOf({&form().Frame1, &form().Frame13, &form().Frame9, &form().Frame5,
                    &form().Frame10, &form().Frame11, &form().Frame12, &form().Command6});
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
