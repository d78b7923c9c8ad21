#include <gtest/gtest.h>

#include "modem/form2.h"
#include "panel/form1.h"
#include "tests/startup/port_settings_test.h"

namespace gsm {
namespace {

// Whether the accepted port is saved. While a start-up runs it never is, however the file of the
// saved port has been closed meanwhile.
class SavingThePort : public PortSettingsTest {
 protected:
  // The port settings are the way by which a port is saved.
  void acceptInPortSettings() {
    openWindow();
    choose(window().cboPort, " 3");
    ok();
    settle();
  }
};

TEST_F(SavingThePort, IsNotDoneByTheSweepForAHeldPort) {
  layComFile("9600,N,8,1 3\r\n");
  start({.ports = {{.number = 3, .held = true}, {.number = 4}}, .modemPort = 4, .modemSpeed = 600});
  answerEverything();
  settle();
  EXPECT_EQ(portNumber(), "Port 4");
  EXPECT_TRUE(file("Model.txt").has_value());  // its writing closes all files
  EXPECT_EQ(boxes(), Texts{""});
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
  EXPECT_EQ(machine().files.freeFile(), 1);
}

TEST_F(SavingThePort, IsNotDoneByARefreshThatReadsUnderAnotherNumber) {
  const std::string saved = "9600,n,8,1 3 and more";
  startHealthy(unsolicited("+CPIN: READY"), saved);
  settle();
  inPanel([this] {
    panel().form2.Show();
    panel().form2.Command1.userClick();
    panel().form2.Unload();
  });
  settle();
  EXPECT_EQ(machine().files.freeFile(), 2);
  click(form1().Command9);
  settle();
  expectWorking();
  EXPECT_EQ(file("COM.txt"), saved);
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(SavingThePort, IsNotDoneByStartUpsOnTopOfEachOther) {
  const std::string saved = "9600,n,8,1 3 and more";
  for (const double firstClick : {0.5, 2.5, 10.0, 20.0, 30.0}) {
    for (const double secondClick : {0.3, 1.0, 5.0, 20.0}) {
      startHealthy(unsolicited("+CPIN: READY"), saved);
      run(firstClick);
      click(form1().Command9);
      run(secondClick);
      click(form1().Command9);
      settle();
      EXPECT_EQ(file("COM.txt"), saved) << firstClick << " " << secondClick;
      EXPECT_EQ(machine().files.freeFile(), 1);
      expectAtRest();
    }
  }
}

TEST_F(SavingThePort, IsNotDoneByThePortSettingsWhileAStartUpRuns) {
  const std::string saved = "\r\n";
  layComFile(saved);
  start({.ports = {{.number = 3}, {.number = 4}}, .modemPort = 3, .modemSpeed = 9600});
  answerEverything();
  run(1);
  openWindow();
  choose(window().cboPort, " 3");
  choose(window().cboBaud, "9600");
  ok();
  settle();
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(file("COM.txt"), saved);
}

struct LoadRow {
  std::string name;
  std::string bytes;
};

class SavingThePortAfterALoad : public SavingThePort,
                                public ::testing::WithParamInterface<LoadRow> {};

TEST_P(SavingThePortAfterALoad, IsDoneAtOnceByThePortSettings) {
  layComFile(GetParam().bytes);
  startWith({{.number = 3}, {.number = 5, .fails = "Device I/O error"}});
  EXPECT_EQ(file("COM.txt"), GetParam().bytes);
  EXPECT_EQ(machine().files.freeFile(), 1);
  acceptInPortSettings();
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
  EXPECT_EQ(boxes(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SavingThePortAfterALoad,
    ::testing::Values(LoadRow{.name = "OfNoLine", .bytes = ""},
                      LoadRow{.name = "OfALineWithoutABlank", .bytes = "no-blank\r\n"},
                      LoadRow{.name = "OfRefusedSettings", .bytes = "9601,N,8,1 3\r\n"},
                      LoadRow{.name = "OfAPortThatIsGone", .bytes = "9600,N,8,1 4\r\n"},
                      LoadRow{.name = "OfAPortThatFails", .bytes = "9600,N,8,1 5\r\nmore"},
                      LoadRow{.name = "ThatSucceeded", .bytes = "9600,N,8,1 3\r\n\r\n\r\n"}),
    RowName());

TEST_F(SavingThePort, IsDoneAtOnceAfterASweepForAHeldPortThatFoundNothing) {
  layComFile("9600,N,8,1 4\r\n9600,N,8,1 4\r\n");
  startWith({{.number = 4, .held = true}});
  boxes();
  EXPECT_EQ(machine().files.freeFile(), 1);
  machine().ports.set({{.number = 3}});
  acceptInPortSettings();
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
}

}  // namespace
}  // namespace gsm
