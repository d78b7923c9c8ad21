#include <gtest/gtest.h>

#include <algorithm>

#include "audio/form6.h"
#include "module/form16.h"
#include "panel/form1.h"
#include "security/form9.h"
#include "services/form12.h"
#include "settings/form14.h"
#include "tests/support/healthy_modem_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

class LockedButtons : public PanelTest {};

TEST_F(LockedButtons, DoNothing) {
  start();
  settle();
  click(form1().Command5);
  click(form1().Command12);
  settle();
  EXPECT_FALSE(panel().form9.isLoaded());
  EXPECT_FALSE(panel().form16.isLoaded());
  EXPECT_TRUE(form1().Visible.peek());
}

// A button that opens a window without asking the modem before.
struct SwapRow {
  std::string name;
  CommandButton Form1::*button;
  Window& (*window)(Panel&);
  std::string title;
  std::string status;       // the main window's, once it has been pressed
  std::string statusAfter;  // and once the window has been closed
  bool hidesFirst;
};

class SwapButton : public HealthyModemTest, public ::testing::WithParamInterface<SwapRow> {
 protected:
  void SetUp() override {
    startUnlocked();
    form1().Label5.Caption = kBefore;
  }
  Window& opened() { return GetParam().window(panel()); }
  void press() {
    click(form1().*GetParam().button);
    settle();
  }
};

TEST_P(SwapButton, OpensItsWindowInTheMainWindowsPlace) {
  press();
  EXPECT_TRUE(opened().Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  EXPECT_EQ(opened().Caption.peek(), GetParam().title);
  EXPECT_EQ(statusLine(), GetParam().status);
  expectAtRest();
}

TEST_P(SwapButton, ShowsAndHidesInItsOrder) {
  Texts order;
  PropertyWatch one(form1(), [&](PropertyId property) {
    if (property == PropertyId::Visible) order.push_back("main");
  });
  PropertyWatch other(opened(), [&](PropertyId property) {
    if (property == PropertyId::Visible) order.push_back("window");
  });
  press();
  // A window that shows itself while it loads is then shown once more.
  order.erase(std::unique(order.begin(), order.end()), order.end());
  EXPECT_EQ(order, GetParam().hidesFirst ? (Texts{"main", "window"}) : (Texts{"window", "main"}));
}

TEST_P(SwapButton, ClosingTheWindowBringsTheMainWindowBack) {
  press();
  close(opened());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(opened().Visible.peek());
  EXPECT_FALSE(opened().isLoaded());
  EXPECT_EQ(statusLine(), GetParam().statusAfter);
  EXPECT_FALSE(ended());
}

TEST_P(SwapButton, OpensItsWindowAlsoWithThePortClosed) {
  closePort();
  press();
  EXPECT_TRUE(opened().Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, SwapButton,
    ::testing::Values(SwapRow{"SupplementaryService", &Form1::Command4,
                              [](Panel& panel) -> Window& { return panel.form12; },
                              "GSM-Supplementary Service", "Please Wait....", "", true},
                      SwapRow{"Security", &Form1::Command5,
                              [](Panel& panel) -> Window& { return panel.form9; }, "GSM-SECURITY",
                              kBefore, kBefore, false},
                      SwapRow{"CallControl", &Form1::Command6,
                              [](Panel& panel) -> Window& { return panel.form6; },
                              "GSM-Call Control", "Please Wait...", "", false},
                      SwapRow{"DataFaxSetup", &Form1::Command10,
                              [](Panel& panel) -> Window& { return panel.form14; },
                              "GSM-DATA&FAX SETUP", kBefore, kBefore, false},
                      SwapRow{"OtherFeatures", &Form1::Command12,
                              [](Panel& panel) -> Window& { return panel.form16; },
                              "GSM-Others FeaTures", kBefore, kBefore, false}),
    RowName());

}  // namespace
}  // namespace gsm
