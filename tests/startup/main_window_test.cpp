#include <gtest/gtest.h>

#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/open_port_test.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;

class MainWindow : public OpenPortTest {
 protected:
  void state(int value) {
    inPanel([this, value] { form1().userState(value); });
    run(0);
  }
  int statusWindowState() { return panel().form7.WindowState.peek(); }

  void close() {
    inPanel([this] { form1().userClose(); });
    run(0);
  }
};

TEST_F(MainWindow, TakesTheStatusWindowWithItWhenMinimisedAndBackAgain) {
  state(WindowState::minimised);
  EXPECT_EQ(statusWindowState(), WindowState::minimised);
  state(WindowState::normal);
  EXPECT_EQ(statusWindowState(), WindowState::normal);
}

TEST_F(MainWindow, LeavesTheStatusWindowAloneWhenMaximised) {
  state(WindowState::maximised);
  EXPECT_EQ(statusWindowState(), WindowState::normal);
  panel().form7.WindowState = WindowState::minimised;
  state(WindowState::normal);
  panel().form7.WindowState = WindowState::minimised;
  state(WindowState::maximised);
  EXPECT_EQ(statusWindowState(), WindowState::minimised);
}

TEST_F(MainWindow, AsksForTheSignalAtAClickOnItsLabel) {
  click(form1().Label8);
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_TRUE(panel().form7.Visible.peek());
}

TEST_F(MainWindow, StoresTheProfileOfTheModemWhenClosedAndEndsTheProgram) {
  panel().form7.Show();
  close();
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
  run(1.9);
  EXPECT_FALSE(ended());
  EXPECT_TRUE(panel().form7.Visible.peek());
  run(0.2);
  EXPECT_TRUE(ended());
  EXPECT_FALSE(panel().form7.Visible.peek());
  EXPECT_FALSE(machine().line.isOpen());
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(MainWindow, WaitsWithItsEndForTheReplyToTheStoring) {
  reply("AT&W", kOk, std::chrono::milliseconds(1500));
  close();
  run(3.4);
  EXPECT_FALSE(ended());
  run(0.2);
  EXPECT_TRUE(ended());
}

TEST_F(MainWindow, ClosedWithThePortClosedEndsTheProgramAtOnce) {
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  run(0);
  panel().form7.Show();
  close();
  EXPECT_TRUE(ended());
  EXPECT_EQ(sent(), Texts{});
  EXPECT_FALSE(panel().form7.Visible.peek());
}

TEST_F(MainWindow, EndsTheProgramUnderneathAWaitingHandler) {
  bool wentOn = false;
  inPanel([&] {
    form1().Pause(100);
    wentOn = true;
  });
  run(1);
  close();
  run(10);
  EXPECT_TRUE(ended());
  EXPECT_FALSE(wentOn);
}

}  // namespace
}  // namespace gsm
