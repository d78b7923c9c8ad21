#include <gtest/gtest.h>

#include "modem/form2.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/panel_fixture.h"
#include "tests/support/property_watch.h"
#include "tests/support/start_up_words.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;

class StartUp : public PanelTest {
 protected:
  std::string portNumber() { return form1().Label2.Caption.peek(); }
  std::string portSettings() { return form1().Label3.Caption.peek(); }
  std::string portState() { return form1().Label1.Caption.peek(); }
  std::string statusLine() { return form1().Label5.Caption.peek(); }
  std::string imei() { return panel().form2.Label3.Caption.peek(); }

  // The lines that announce a sweep over so many ports.
  static Texts searchLog(int ports) {
    return {"Checking For Available Communication Ports",
            "Found  " + std::to_string(ports) + " Ports", "Detecting Modem Present.."};
  }
  // The log begins with the welcome and `lines`; what a found modem adds comes after them.
  void expectLogBegins(Texts lines) {
    lines.insert(lines.begin(), kWelcome);
    Texts beginning = log();
    if (beginning.size() > lines.size()) beginning.resize(lines.size());
    EXPECT_EQ(beginning, lines);
  }
};

TEST_F(StartUp, ShowsSinceWhenTheSystemRunsAndTheWelcome) {
  start({.now = {2026, 12, 3, 9, 5, 7}});
  settle();
  EXPECT_EQ(form1().Label9.Caption.peek(), "System Started  03/12/2026,09:05:07");
  EXPECT_EQ(log(), Texts{kWelcome});
}

TEST_F(StartUp, LeavesAllButFourButtonsLocked) {
  start();
  settle();
  Form1& form = form1();
  for (CommandButton* button :
       {&form.Command1, &form.Command2, &form.Command3, &form.Command4, &form.Command5,
        &form.Command6, &form.Command10, &form.Command11, &form.Command12}) {
    EXPECT_FALSE(button->Enabled.peek()) << button->name();
  }
  for (CommandButton* button : {&form.Command7, &form.Command8, &form.Command9, &form.Command13}) {
    EXPECT_TRUE(button->Enabled.peek()) << button->name();
  }
}

TEST_F(StartUp, AsksTheSavedPortForTheImei) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  run(0);
  EXPECT_EQ(sent(), Texts{"AT+CGSN\r"});
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  EXPECT_EQ(form1().MSComm1.CommPort, 3);
  EXPECT_EQ(std::string(form1().MSComm1.Settings), "9600,N,8,1");
}

TEST_F(StartUp, ShowsTheMainWindowBeforeItWritesAndTheLabelsOnlyAfterTheReply) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  reply("AT+CGSN", kImeiReply);
  Texts writtenBeforeTheWindow = {"not shown"};
  PropertyWatch watch(form1(), [&](PropertyId property) {
    if (property == PropertyId::Visible) writtenBeforeTheWindow = sent();
  });
  run(0);
  EXPECT_EQ(writtenBeforeTheWindow, Texts{});
  run(1.9);
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(portNumber() + portSettings() + portState() + imei(), "");
  EXPECT_FALSE(panel().form7.Visible.peek());
  run(0.2);
  EXPECT_EQ(portNumber(), "Port 3");
}

TEST_F(StartUp, AnAnsweringModemOnTheSavedPortIsAccepted) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(panel().form2.Label2.Caption.peek(), "IMEI: ");
  EXPECT_EQ(imei(), "012345678901234");
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(portSettings(), "9600,N,8,1");
  EXPECT_EQ(portState(), "Open");
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(StartUp, TheSettingsAreShownInUpperCaseAndUsedAsTheyWereSaved) {
  layComFile("9600,n,8,1 3\r\n");
  start();
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(portSettings(), "9600,N,8,1");
  EXPECT_EQ(std::string(form1().MSComm1.Settings), "9600,n,8,1");
}

TEST_F(StartUp, SettingsThatChangedDuringTheWaitAreSetBack) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  reply("AT+CGSN", kImeiReply);
  inPanel([this] { form1().MSComm1.Settings = std::string("1200,n,8,1"); }, 1);
  settle();
  EXPECT_EQ(portSettings(), "9600,N,8,1");
  EXPECT_EQ(std::string(form1().MSComm1.Settings), "9600,N,8,1");
}

TEST_F(StartUp, SetsTheThresholdsAndTheModeOfThePort) {
  start();
  settle();
  layComFile("9600,N,8,1 3\r\n");
  inPanel([this] {
    SerialControl& port = form1().MSComm1;
    port.RThreshold = 7;
    port.SThreshold = 0;
    port.InputMode = 0;
    form1().Form_Load();
  });
  run(1);
  EXPECT_EQ(form1().MSComm1.RThreshold, 1);
  EXPECT_EQ(form1().MSComm1.SThreshold, 1);
  EXPECT_EQ(form1().MSComm1.InputMode, 1);
}

TEST_F(StartUp, ASweepAloneLeavesTheThresholdsAndTheModeAlone) {
  start();
  settle();
  layComFile("\r\n");
  inPanel([this] {
    form1().MSComm1.RThreshold = 7;
    form1().MSComm1.SThreshold = 2;
    form1().MSComm1.InputMode = 0;
    form1().Form_Load();
  });
  settle();
  EXPECT_EQ(form1().MSComm1.RThreshold, 7);
  EXPECT_EQ(form1().MSComm1.SThreshold, 2);
  EXPECT_EQ(form1().MSComm1.InputMode, 0);
}

TEST_F(StartUp, ClosesAllFilesAtTheEndOfItsOwn) {
  start({.ports = {}});
  settle();
  layComFile("");
  inPanel([this] {
    machine().files.openForOutput(3, "Model.txt");
    form1().Form_Load();
  });
  run(0);
  machine().files.openForInput(3, "Model.txt");  // fails where the number is still in use
  EXPECT_EQ(machine().files.freeFile(), 1);
}

TEST_F(StartUp, AHitIsNotSavedAndLeavesNoFileOpen) {
  const std::string bytes = "9600,n,8,1 3 and more\nanother line";
  layComFile(bytes);
  start();
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(file("COM.txt"), bytes);
  EXPECT_EQ(machine().files.freeFile(), 1);
}

TEST_F(StartUp, AfterAHitNoFurtherLineIsRead) {
  layComFile("9600,N,8,1 3\r\n\r\n9600,N,8,1 4\r\n");
  start({.ports = {{.number = 3}, {.number = 4}}});
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(portNumber(), "Port 3");
  for (const std::string& line : log()) {
    EXPECT_NE(line, "Checking For Available Communication Ports");
  }
}

TEST_F(StartUp, ASilentSavedPortStartsTheSweepOfAllPorts) {
  layComFile("9600,N,8,1 3\r\n");
  start({.ports = {{.number = 1}, {.number = 3}}});
  run(2.1);
  expectLogBegins(searchLog(2));
  EXPECT_EQ(statusLine(), "Scanning Port  1");
  EXPECT_EQ(form1().MSComm1.CommPort, 1);
  EXPECT_EQ(std::string(form1().MSComm1.Settings), "300,n,8,1");
  EXPECT_EQ(sent(), (Texts{"AT+CGSN\r", "AT+CGSN\r"}));
}

TEST_F(StartUp, ASilentSavedPortIsClosedBeforeTheOthersAreLookedFor) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  run(1);
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  machine().ports.set({});
  settle();
  EXPECT_EQ(boxes(), Texts{"No Comm Ports Present"});
  EXPECT_FALSE(form1().MSComm1.PortOpen);
  EXPECT_EQ(log(), Texts{kWelcome});
}

TEST_F(StartUp, AReplyWithoutOkIsSilence) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  reply("AT+CGSN", kError);
  run(2.1);
  expectLogBegins(searchLog(1));
}

TEST_F(StartUp, ARingWithinTheReplyTakesTheReplyAlong) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  reply("AT+CGSN", unsolicited("RING") + kImeiReply);
  run(2.1);
  expectLogBegins(searchLog(1));
}

TEST_F(StartUp, ASweepThatFindsNothingSaysSoAndClosesThePort) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  settle();
  EXPECT_EQ(statusLine(), kNothingFound);
  EXPECT_TRUE(form1().Command7.Enabled.peek());
  EXPECT_FALSE(form1().MSComm1.PortOpen);
  EXPECT_EQ(portNumber() + portSettings() + portState(), "");
  EXPECT_FALSE(panel().form7.Visible.peek());
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
  EXPECT_EQ(machine().files.freeFile(), 1);
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(StartUp, ASweepAfterASilentSavedPortFindsTheModemElsewhere) {
  layComFile("9600,N,8,1 3\r\n");
  start({.ports = {{.number = 3}, {.number = 7}}, .modemPort = 7, .modemSpeed = 115200});
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(portNumber(), "Port 7");
  EXPECT_EQ(portSettings(), "115200,N,8,1");
  EXPECT_EQ(portState(), "Open");
  EXPECT_EQ(imei(), "012345678901234");
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(StartUp, APortHeldByAnotherProgramStartsTheSweepOfTheOthers) {
  layComFile("9600,N,8,1 3\r\n");
  start({.ports = {{.number = 3, .held = true}, {.number = 4}}, .modemPort = 4, .modemSpeed = 600});
  reply("AT+CGSN", kImeiReply);
  reply("AT", kOk);
  settle();
  Texts lines = searchLog(2);
  lines.insert(lines.begin(), "Port Selected Already Open in Other Application");
  lines.emplace_back("Check SIM PIN");
  expectLogBegins(lines);
  EXPECT_EQ(portNumber(), "Port 4");
  EXPECT_EQ(boxes(), Texts{""});  // the sweep has skipped the port as well
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
}

TEST_F(StartUp, AfterASweepForAHeldPortNoFurtherLineIsRead) {
  layComFile("9600,N,8,1 3\r\n14400,N,8,1 4\r\n");
  start({.ports = {{.number = 3, .held = true}, {.number = 4}},
         .modemPort = 4,
         .modemSpeed = 14400});  // no speed of the sweep
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(statusLine(), kNothingFound);
  EXPECT_FALSE(form1().MSComm1.PortOpen);
}

TEST_F(StartUp, AnEmptyFirstLineSweepsWithoutAnySavedPort) {
  layComFile("\r\n");
  start({.ports = {{.number = 5}}, .modemPort = 5, .modemSpeed = 1200});
  reply("AT+CGSN", kImeiReply);
  settle();
  expectLogBegins(searchLog(1));
  EXPECT_EQ(portNumber(), "Port 5");
  EXPECT_EQ(portSettings(), "1200,N,8,1");
}

TEST_F(StartUp, EachLineIsTriedInTurnWhileNoModemIsAccepted) {
  layComFile("9600,N,8,1 3\r\n\r\n14400,N,8,1 4\r\n\r\n");
  start({.ports = {{.number = 3}, {.number = 4}}, .modemPort = 4, .modemSpeed = 14400});
  reply("AT+CGSN", kImeiReply);
  settle();
  Texts lines = searchLog(2);
  for (const std::string& line : searchLog(2)) lines.push_back(line);
  expectLogBegins(lines);
  EXPECT_EQ(portNumber(), "Port 4");
  EXPECT_EQ(portSettings(), "14400,N,8,1");
  // Nothing was read after the accepted line.
  Texts behind = log();
  behind.erase(behind.begin(), behind.begin() + static_cast<int>(1 + lines.size()));
  for (const std::string& line : behind) EXPECT_NE(line, "Detecting Modem Present..");
}

TEST_F(StartUp, WithoutAnyPortSaysSoAndEndsSilently) {
  layComFile("\r\n");
  start({.ports = {}});
  settle();
  const auto shown = machine().boxes.takeShown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].text, "No Comm Ports Present");
  EXPECT_EQ(shown[0].title, "GSM");
  EXPECT_EQ(log(), Texts{kWelcome});
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_TRUE(form1().Command7.Enabled.peek());
  EXPECT_FALSE(ended());
}

TEST_F(StartUp, ShowsTheMainWindowBeforeTheBoxThatThereIsNoPort) {
  layComFile("\r\n");
  start({.ports = {}});
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  run(5);
  EXPECT_TRUE(machine().boxes.isUp());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(form1().Label4.Caption.peek(), "10:00:05");  // the clock goes on underneath
}

TEST_F(StartUp, EnablesPortSettingsForEachLineItHandles) {
  for (const char* line : {"\r\n", "9600,N,8,1 3\r\n", "no-blank\r\n"}) {
    start();
    settle();
    layComFile(line);
    form1().Command7.Enabled = false;
    inPanel([this] { form1().Form_Load(); });
    run(0);
    EXPECT_TRUE(form1().Command7.Enabled.peek()) << line;
  }
}

TEST_F(StartUp, WithoutASavedPortLeavesPortSettingsAsItIs) {
  start();
  settle();
  form1().Command7.Enabled = false;
  inPanel([this] { form1().Form_Load(); });
  settle();
  EXPECT_FALSE(form1().Command7.Enabled.peek());
}

}  // namespace
}  // namespace gsm
