#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/startup/port_settings_test.h"

namespace gsm {
namespace {

constexpr const char* kBefore = "as it was";

// What the buttons of the port settings make of the choices.
class PortChoice : public PortSettingsTest {
 protected:
  void startWithLine(const std::string& settings, bool open, const Ports& ports = {{.number = 3}},
                     int handshaking = 0) {
    startWith(ports, std::nullopt);  // nobody answers behind the window
    setLine(3, settings, handshaking, open);
    openWindow();
  }
};

struct ChoiceRow {
  std::string name;
  std::string before;
  std::string baud;
  int parity;  // the options that the user clicks; -1: leaves them
  int dataBits;
  int stopBits;
  int handshake;
  std::string after;
};
class LineChoice : public PortChoice, public ::testing::WithParamInterface<ChoiceRow> {};

TEST_P(LineChoice, IsSetAndSaved) {
  const ChoiceRow& row = GetParam();
  startWithLine(row.before, true);
  if (!row.baud.empty()) choose(window().cboBaud, row.baud);
  if (row.parity >= 0) click(window().optParity[row.parity]);
  if (row.dataBits >= 0) click(window().optDataBits[row.dataBits]);
  if (row.stopBits >= 0) click(window().optStopBits[row.stopBits]);
  if (row.handshake >= 0) click(window().optHandshake[row.handshake]);
  ok();
  const int handshaking = std::max(row.handshake, 0);
  EXPECT_EQ(line(), row.after);
  EXPECT_EQ(form1().MSComm1.CommPort, 3);
  EXPECT_EQ(form1().MSComm1.Handshaking, handshaking);
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  EXPECT_FALSE(window().isLoaded());
  EXPECT_EQ(saved(), (Saved{{"Port", "3"},
                            {"Settings", row.after},
                            {"Handshaking", std::to_string(handshaking)}}));
}

INSTANTIATE_TEST_SUITE_P(
    Choices, LineChoice,
    ::testing::Values(
        ChoiceRow{"OfNothingNew", "9600,n,8,1", "", -1, -1, -1, -1, "9600,N,8,1"},
        ChoiceRow{"OfASpeed", "9600,n,8,1", "115200", -1, -1, -1, -1, "115200,N,8,1"},
        ChoiceRow{"OfTheLowestSpeed", "9600,n,8,1", "300", -1, -1, -1, -1, "300,N,8,1"},
        ChoiceRow{"OfEvenParity", "9600,n,8,1", "", 0, -1, -1, -1, "9600,E,8,1"},
        ChoiceRow{"OfOddParity", "9600,n,8,1", "", 1, -1, -1, -1, "9600,O,8,1"},
        ChoiceRow{"OfNoParity", "9600,e,8,1", "", 2, -1, -1, -1, "9600,N,8,1"},
        ChoiceRow{"OfNoParityWhereNoneWasSet", "9600,m,8,1", "", -1, -1, -1, -1, "9600,N,8,1"},
        ChoiceRow{"OfSevenBits", "9600,n,8,1", "", -1, 0, -1, -1, "9600,N,7,1"},
        ChoiceRow{"OfEightBits", "9600,n,7,1", "", -1, 1, -1, -1, "9600,N,8,1"},
        ChoiceRow{"OfEightBitsWhereNoneWereSet", "9600,n,6,1", "", -1, -1, -1, -1, "9600,N,8,1"},
        ChoiceRow{"OfOneStopBit", "9600,n,7,2", "", -1, -1, 0, -1, "9600,N,7,1"},
        ChoiceRow{"OfTwoStopBitsIsRefused", "9600,n,7,1", "", -1, -1, 1, -1, "9600,n,7,1"},
        ChoiceRow{"OfTwoStopBitsTakesTheRestAlong", "9600,n,7,1", "300", 0, -1, 1, -1,
                  "9600,n,7,1"},
        ChoiceRow{"OfTwoStopBitsAsTheyWere", "9600,n,8,2", "19200", -1, -1, -1, -1, "9600,n,8,2"},
        ChoiceRow{"OfNoStopBitsIsTwo", "9600,n,7,1.5", "", -1, -1, -1, -1, "9600,n,7,1.5"},
        ChoiceRow{"OfNoSpeedIsRefused", "14400,n,8,1", "", 0, -1, -1, -1, "14400,n,8,1"},
        ChoiceRow{"OfXon", "9600,n,8,1", "", -1, -1, -1, 1, "9600,N,8,1"},
        ChoiceRow{"OfRts", "9600,n,8,1", "", -1, -1, -1, 2, "9600,N,8,1"},
        ChoiceRow{"OfBothHandshakes", "9600,n,8,1", "", -1, -1, -1, 3, "9600,N,8,1"},
        ChoiceRow{"OfTwoStopBitsKeepsTheHandshake", "9600,n,7,1", "", -1, -1, 1, 2, "9600,n,7,1"}),
    RowName());

TEST_F(PortChoice, OfNoHandshakeTakesTheOldOneAway) {
  startWithLine("9600,n,8,1", true, {{.number = 3}}, 2);
  click(window().optHandshake[0]);
  ok();
  EXPECT_EQ(form1().MSComm1.Handshaking, 0);
}

TEST_F(PortChoice, KeepsTheHandshakeThatIsNotTouched) {
  startWithLine("9600,n,8,1", true, {{.number = 3}}, 2);
  ok();
  EXPECT_EQ(form1().MSComm1.Handshaking, 2);
  EXPECT_EQ(saved().at("Handshaking"), "2");
}

TEST_F(PortChoice, OfAnotherPortOpensThatOne) {
  startWithLine("9600,n,8,1", true, {{.number = 3}, {.number = 12}});
  choose(window().cboPort, " 12");
  ok();
  EXPECT_EQ(form1().MSComm1.CommPort, 12);
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  EXPECT_EQ(saved().at("Port"), "12");
}

TEST_F(PortChoice, OpensAPortThatWasClosedAtEntry) {
  startWithLine("9600,n,8,1", false);
  choose(window().cboPort, " 3");
  ok();
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  EXPECT_EQ(saved(), (Saved{{"Port", "3"}, {"Settings", "9600,N,8,1"}, {"Handshaking", "0"}}));
}

TEST_F(PortChoice, OfAPortThatIsntAvailableKeepsTheOldOne) {
  startWithLine("9600,n,8,1", true, {{.number = 2, .held = true}, {.number = 3}});
  EXPECT_EQ(port(), " 2 - Not Available");
  choose(window().cboBaud, "19200");
  ok();
  EXPECT_EQ(form1().MSComm1.CommPort, 3);
  EXPECT_EQ(line(), "19200,N,8,1");
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  EXPECT_FALSE(window().isLoaded());
  EXPECT_EQ(saved().at("Port"), "3");
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(PortChoice, OfNoneClosesThePortAndLeavesThePanelAlone) {
  startWithLine("9600,n,8,1", true);
  for (Label* label : {&form1().Label1, &form1().Label2, &form1().Label3, &form1().Label5}) {
    label->Caption = kBefore;
  }
  const Texts lines = log();
  choose(window().cboPort, "<none>");
  choose(window().cboBaud, "19200");
  ok();
  settle();
  EXPECT_FALSE(form1().MSComm1.PortOpen);
  EXPECT_EQ(form1().MSComm1.CommPort, 3);
  EXPECT_EQ(line(), "9600,n,8,1");
  EXPECT_EQ(saved(), (Saved{{"Port", "0"}}));
  EXPECT_FALSE(window().isLoaded());
  for (const Label* label : {&form1().Label1, &form1().Label2, &form1().Label3, &form1().Label5}) {
    EXPECT_EQ(label->Caption.peek(), kBefore) << label->name();
  }
  EXPECT_EQ(log(), lines);
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

TEST_F(PortChoice, OfAnEntryThatSaysNotIsReportedInABoxAndTheWindowStays) {
  startWithLine("9600,n,8,1", true);
  inPanel([this] { window().cboPort.AddItem(" 9 is not free"); });
  run(0);
  choose(window().cboPort, " 9 is not free");
  ok();
  expectBox("Port  9 is already open by another process. Please select a different Comm port.",
            "GSM");
  EXPECT_TRUE(window().isLoaded());
  EXPECT_TRUE(window().Visible.peek());
  EXPECT_FALSE(form1().MSComm1.PortOpen);
  EXPECT_EQ(saved(), Saved{});
}

TEST_F(PortChoice, OfAPortThatIsTakenMeanwhileEndsQuietly) {
  startWithLine("9600,n,8,1", true);
  machine().ports.set({{.number = 3, .held = true}});
  const Texts lines = log();
  ok();
  settle();
  EXPECT_FALSE(form1().MSComm1.PortOpen);
  EXPECT_FALSE(window().isLoaded());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(log(), lines);
  expectAtRest();
}

TEST_F(PortChoice, CancelReopensThePortAsItWas) {
  startWithLine("9600,n,8,1", true, {{.number = 3}, {.number = 12}}, 1);
  choose(window().cboPort, " 12");
  choose(window().cboBaud, "300");
  click(window().optParity[0]);
  click(window().optHandshake[3]);
  cancel();
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  EXPECT_EQ(form1().MSComm1.CommPort, 3);
  EXPECT_EQ(line(), "9600,n,8,1");
  EXPECT_EQ(form1().MSComm1.Handshaking, 1);
  EXPECT_EQ(saved(), Saved{});
  EXPECT_FALSE(window().isLoaded());
}

TEST_F(PortChoice, CancelLeavesAPortThatWasClosedAtEntryClosed) {
  startWithLine("9600,n,8,1", false);
  choose(window().cboPort, " 3");
  cancel();
  settle();
  EXPECT_FALSE(form1().MSComm1.PortOpen);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(saved(), Saved{});
  EXPECT_TRUE(form1().Visible.peek());
  expectAtRest();
}

TEST_F(PortChoice, TheCloseBoxIsNeitherAndLeavesThePortClosed) {
  startWithLine("9600,n,8,1", true);
  inPanel([this] { form1().Hide(); });
  close(window());
  EXPECT_FALSE(form1().MSComm1.PortOpen);
  EXPECT_FALSE(window().isLoaded());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(saved(), Saved{});
  expectAtRest();
}

TEST_F(PortChoice, ClosingTheWindowAlwaysShowsTheMainWindow) {
  startWithLine("9600,n,8,1", false);
  inPanel([this] { form1().Hide(); });
  run(0);
  EXPECT_FALSE(form1().Visible.peek());
  cancel();
  EXPECT_TRUE(form1().Visible.peek());
}

// While the window is open, the port is closed.
class PortSettingsOpen : public PortSettingsTest {
 protected:
  void SetUp() override {
    startWith({{.number = 3}});
    setLine(3, "9600,n,8,1", 0, true);
    openWindow();
  }
};

TEST_F(PortSettingsOpen, KeepsTheMainWindowsHandlerWaiting) {
  run(100);
  EXPECT_GE(waiting(), 1);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_TRUE(window().Visible.peek());
  EXPECT_FALSE(form1().MSComm1.PortOpen);
}

TEST_F(PortSettingsOpen, LosesWhatArrives) {
  receive(unsolicited("+CPIN: READY"));
  run(5);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(PortSettingsOpen, LetsTheClockRun) {
  run(65 - now());
  EXPECT_EQ(form1().Label4.Caption.peek(), "00:01:05");
}

TEST_F(PortSettingsOpen, LetsThePollFailHarmlessly) {
  inPanel([this] { form1().Timer2.Enabled = true; });
  run(20);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
  EXPECT_TRUE(window().Visible.peek());
}

TEST_F(PortSettingsOpen, MakesAnotherButtonsWriteEndTheProgram) {
  inPanel([this] { form1().Command3.Enabled = true; });
  click(form1().Command3);
  expectEndedBy(kFailureOfAClosedPort);
}

}  // namespace
}  // namespace gsm
