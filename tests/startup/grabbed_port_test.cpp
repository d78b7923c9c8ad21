// A service of the desktop opens each modem that is plugged in, finds after some seconds that it is
// none of its own, and lets go of it. Meanwhile the port is held by another program.

#include <gtest/gtest.h>

#include "tests/startup/port_settings_test.h"

namespace gsm {
namespace {

class GrabbedPort : public PortSettingsTest {
 protected:
  /// Starts the program while the service has its saved port.
  void startGrabbed() {
    layComFile("9600,N,8,1 3\r\n");
    start({.ports = {kGrabbed}, .now = {2026, 3, 1, 0, 0, 0}});
    answerEverything();
    settle();
    sent();
    boxes();
  }
  void letGo() { machine().ports.set({{.number = 3}}); }

  inline static const HeadlessPorts::Port kGrabbed = {
      .number = 3, .held = true, .trouble = "held by 812 (modem-service)"};
};

TEST_F(GrabbedPort, LeavesAPanelThatWaitsForItsUser) {
  startGrabbed();
  EXPECT_FALSE(form1().MSComm1.PortOpen);
  EXPECT_EQ(waiting(), 0);
  EXPECT_FALSE(ended());
  expectLocked();
}

TEST_F(GrabbedPort, IsOpenedByTheNextRefreshOnceItIsLetGo) {
  startGrabbed();
  letGo();
  click(form1().Command9);
  settle();
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  expectWorking();
}

TEST_F(GrabbedPort, TellsWhoHasItInTheListAndIsFreeThereOnceItIsLetGo) {
  startGrabbed();
  openWindow();
  EXPECT_EQ(window().cboPort.List.peek(), (Texts{"<none>", " 3 - Not Available"}));
  EXPECT_TRUE(window().cboPort.ItemTips.peek().at(1).ends_with(": held by 812 (modem-service)"));
  letGo();
  openPortList();
  EXPECT_EQ(window().cboPort.List.peek(), (Texts{"<none>", " 3"}));
  choose(window().cboPort, " 3");
  ok();
  settle();
  expectWorking();
}

}  // namespace
}  // namespace gsm
