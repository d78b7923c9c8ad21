#include <gtest/gtest.h>

#include "panel/form1.h"
#include "panel/form7.h"
#include "platform/runtime_failure.h"
#include "startup/frm_settings.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/panel_fixture.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;

// The last step of every way in which a modem is accepted, taken outside of start-up.
class AcceptPort : public PanelTest {
 protected:
  void SetUp() override {
    start({.ports = {{.number = 3}, {.number = 12}}});
    settle();
  }

  void accept(int port, const std::string& settings, bool open = true) {
    inPanel([this, port, settings, open] {
      SerialControl& control = form1().MSComm1;
      control.CommPort = port;
      control.Settings = settings;
      control.PortOpen = open;
      form1().AcceptPort();
    });
    settle();
  }

  std::string portState() { return form1().Label1.Caption.peek(); }
  std::string portNumber() { return form1().Label2.Caption.peek(); }
  std::string portSettings() { return form1().Label3.Caption.peek(); }

  void expectShown() {
    EXPECT_EQ(portNumber(), "Port 3");
    EXPECT_EQ(portSettings(), "9600,N,8,1");
    EXPECT_EQ(portState(), "Open");
    EXPECT_TRUE(form1().Visible.peek());
    EXPECT_TRUE(panel().form7.Visible.peek());
  }
};

TEST_F(AcceptPort, ShowsThePortAndBothWindowsAndSavesIt) {
  form1().Hide();
  accept(3, "9600,n,8,1");
  expectShown();
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_EQ(machine().files.freeFile(), 1);
}

TEST_F(AcceptPort, SavesAPortAboveNineWhole) {
  accept(12, "115200,n,8,1");
  EXPECT_EQ(file("COM.txt"), "115200,N,8,1 12\r\n");
}

TEST_F(AcceptPort, SavesTheSettingsInUpperCase) {
  accept(3, "19200,e,7,2");
  EXPECT_EQ(portSettings(), "19200,E,7,2");
  EXPECT_EQ(file("COM.txt"), "19200,E,7,2 3\r\n");
}

TEST_F(AcceptPort, ReplacesWhatWasSavedBefore) {
  layComFile("a much longer line than the new one\r\nand another\r\n");
  accept(3, "9600,n,8,1");
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
}

TEST_F(AcceptPort, ShowsAClosedPortAsClosed) {
  accept(3, "9600,n,8,1", /*open=*/false);
  EXPECT_EQ(portState(), "Closed");
  EXPECT_EQ(portNumber(), "Port 3");
}

TEST_F(AcceptPort, SavesWhatTheNextStartUpReads) {
  accept(3, "9600,n,8,1");
  start();
  reply("AT+CGSN", kImeiReply);
  settle();
  expectShown();
}

TEST_F(AcceptPort, ThatCantSaveShowsTheReasonAndLeavesTheRestStanding) {
  std::filesystem::create_directory(folder() / "COM.txt");
  accept(3, "9600,n,8,1");
  const auto shown = machine().boxes.takeShown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].text, "Path/File access error");
  EXPECT_EQ(shown[0].title, "GSM-APPLICATION");
  expectShown();
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  EXPECT_FALSE(ended());
}

TEST_F(AcceptPort, WhoseFileNumberIsInUseClosesAllFilesSilently) {
  layComFile("old\r\n");
  machine().files.openForInput(1, "COM.txt");
  machine().files.openForInput(2, "COM.txt");
  accept(3, "9600,n,8,1");
  EXPECT_EQ(file("COM.txt"), "old\r\n");
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_EQ(machine().files.freeFile(), 1);
  EXPECT_THROW(machine().files.atEnd(2), RuntimeFailure);
  expectShown();
}

TEST_F(AcceptPort, SavesUnderANumberThatOtherOpenFilesLeaveFreeAndClosesThem) {
  layComFile("old\r\n");
  machine().files.openForInput(2, "COM.txt");
  accept(3, "9600,n,8,1");
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
  EXPECT_THROW(machine().files.atEnd(2), RuntimeFailure);
}

// All three ways in clear the transcript once the port is accepted, so that nobody finds what came
// meanwhile: here a reply to the question for the SIM that nothing claims.
class AcceptedPort : public PanelTest {
 protected:
  void startBefore(const std::string& comFile) {
    layComFile(comFile);
    start({.ports = {{.number = 3}}, .modemSpeed = 300});
    reply("AT+CGSN", kImeiReply);
    reply("AT", kOk);
    reply("AT+CPIN?", information("+SIM: a word that nothing claims"));
  }
  void expectClearedAfterTheQuestion() {
    const Texts written = sent();
    ASSERT_FALSE(written.empty());
    EXPECT_EQ(written.back(), "AT+CPIN?\r");
    EXPECT_EQ(portNumber(), "Port 3");
    EXPECT_EQ(transcript(), "");
    EXPECT_EQ(waiting(), 0);
  }
  std::string portNumber() { return form1().Label2.Caption.peek(); }
};

TEST_F(AcceptedPort, ThatWasSavedLeavesNoTranscript) {
  startBefore("300,N,8,1 3\r\n");
  settle();
  expectClearedAfterTheQuestion();
}

TEST_F(AcceptedPort, OfASweepLeavesNoTranscript) {
  startBefore("\r\n");
  settle();
  expectClearedAfterTheQuestion();
}

TEST_F(AcceptedPort, OfThePortSettingsLeavesNoTranscript) {
  startBefore("");
  settle();
  inPanel([this] {
    form1().MSComm1.CommPort = 3;
    form1().MSComm1.Settings = std::string("300,n,8,1");
    form1().MSComm1.PortOpen = true;
  });
  run(0);
  click(form1().Command7);
  click(panel().settings.cmdAction[1]);
  settle();
  expectClearedAfterTheQuestion();
}

}  // namespace
}  // namespace gsm
