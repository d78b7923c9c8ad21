#include <gtest/gtest.h>

#include "modem/form10.h"
#include "modem/form2.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/startup/port_settings_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

const Texts kProbeAndStart = {"AT+CGSN\r",  "AT\r",        "AT+CPIN?\r",  "AT+CMEE=0\r",
                              "AT+CRC=0\r", "AT+CLIP=1\r", "AT+WIND=0\r", "AT+CMGF=1\r",
                              "AT\r",       "AT+CSQ\r",    "AT+CREG?\r",  "AT+SPEAKER=1\r",
                              "ATE1\r",     "ATI0\r",      "ATI3\r",      "AT+CCED=2\r",
                              "ATS0?\r",    "AT+IPR?\r",   "AT+ICF?\r"};

// What the main window does once a port has been chosen.
class PortProbing : public PortSettingsTest {
 protected:
  void chooseAndAccept(const std::string& item, const std::string& speed = "9600") {
    openWindow();
    choose(window().cboPort, item);
    choose(window().cboBaud, speed);
    ok();
  }
};

TEST_F(PortProbing, OfAnAnsweringModemStartsItAndSavesThePort) {
  startWith({{.number = 3}});
  chooseAndAccept(" 3");
  settle();
  EXPECT_EQ(sent(), kProbeAndStart);
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
  EXPECT_EQ(panel().form2.Label2.Caption.peek(), "IMEI: ");
  EXPECT_EQ(panel().form2.Label3.Caption.peek(), "012345678901234");
  EXPECT_EQ(portState(), "Open");
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(portSettings(), "9600,N,8,1");
  EXPECT_EQ(statusLine(), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_TRUE(file("Model.txt").has_value());
  EXPECT_EQ(machine().files.freeFile(), 1);
  expectWorking();
  expectAtRest();
}

TEST_F(PortProbing, SavesAPortAboveNineWhole) {
  startWith({{.number = 3}, {.number = 12}}, 12);
  chooseAndAccept(" 12");
  settle();
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 12\r\n");
  EXPECT_EQ(portNumber(), "Port 12");
  expectWorking();
}

TEST_F(PortProbing, ReplacesTheSavedPort) {
  layComFile("300,N,8,1 1\r\nand more\r\n");
  startWith({{.number = 3}});
  chooseAndAccept(" 3");
  settle();
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
}

TEST_F(PortProbing, IsReadBackByTheNextStart) {
  startWith({{.number = 3}});
  chooseAndAccept(" 3");
  settle();
  start({.now = {2026, 3, 1, 0, 0, 0}});
  answerEverything();
  settle();
  EXPECT_EQ(sent(), kProbeAndStart);
  expectWorking();
}

TEST_F(PortProbing, ShowsThePortAtOnceAndAsksForTheImei) {
  startWith({{.number = 3}});
  inPanel([this] { form1().Text1.Text = "OK from before"; });
  run(0);
  chooseAndAccept(" 3");
  EXPECT_EQ(sent(), Texts{"AT+CGSN\r"});
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(portState(), "Open");
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(portSettings(), "9600,N,8,1");
  EXPECT_TRUE(form1().Visible.peek());
  run(2.04);
  EXPECT_EQ(panel().form2.Label3.Caption.peek(), "");
  run(0.02);
  EXPECT_EQ(panel().form2.Label3.Caption.peek(), "012345678901234");
}

TEST_F(PortProbing, OfASilentPortSaysSoWithAndWithoutAFullStop) {
  layComFile("300,N,8,1 1");
  startWith({{.number = 3}}, std::nullopt);
  chooseAndAccept(" 3");
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CGSN\r"});
  EXPECT_EQ(statusLine(), "Check If Modem Is Connected Properly");
  EXPECT_EQ(log().back(), "Check If Modem Is Connected Properly.");
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  EXPECT_EQ(portState(), "Open");
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(file("COM.txt"), "300,N,8,1 1");
  EXPECT_EQ(panel().form2.Label3.Caption.peek(), "");
  EXPECT_FALSE(panel().form7.Visible.peek());
  expectLocked();
  expectAtRest();
}

TEST_F(PortProbing, OfAModemAtAnotherSpeedSaysSo) {
  startWith({{.number = 3}});
  chooseAndAccept(" 3", "19200");
  settle();
  EXPECT_EQ(statusLine(), "Check If Modem Is Connected Properly");
  EXPECT_EQ(portSettings(), "19200,N,8,1");
  EXPECT_EQ(file("COM.txt"), std::nullopt);
}

TEST_F(PortProbing, OfAReplyWithoutOkSaysSo) {
  startWith({{.number = 3}});
  reply("AT+CGSN", kError);
  chooseAndAccept(" 3");
  settle();
  EXPECT_EQ(statusLine(), "Check If Modem Is Connected Properly");
  EXPECT_EQ(file("COM.txt"), std::nullopt);
}

TEST_F(PortProbing, FollowsCancelWhenThePortWasOpen) {
  startWith({{.number = 3}});
  setLine(3, "9600,n,8,1", 0, true);
  openWindow();
  cancel();
  settle();
  EXPECT_EQ(sent(), kProbeAndStart);
  EXPECT_EQ(portSettings(), "9600,N,8,1");
  EXPECT_EQ(line(), "9600,N,8,1");
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
  expectWorking();
}

TEST_F(PortProbing, OfAMissingSimSavesThePortToo) {
  startWith({{.number = 3}});
  reply("AT+CPIN?", kError);
  chooseAndAccept(" 3");
  settle();
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
  expectNoSim();
}

TEST_F(PortProbing, OfASimThatWantsItsPinSavesThePortBeforeItIsEntered) {
  startWith({{.number = 3}});
  reply("AT+CPIN?", unsolicited("+CPIN: SIM PIN"));
  chooseAndAccept(" 3");
  settle();
  EXPECT_TRUE(panel().form10.Visible.peek());
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
}

TEST_F(PortProbing, DoesntSaveThePortWhileTheDetailsHoldTheFileNumber) {
  startWith({{.number = 3}});
  chooseAndAccept(" 3");
  settle();
  inPanel([this] {
    panel().form2.Show();
    panel().form2.Command1.userClick();
  });
  settle();
  EXPECT_EQ(machine().files.freeFile(), 2);
  layComFile("old");
  silence("ATI3");  // so that nothing closes the file
  openWindow();
  cancel();
  settle();
  EXPECT_EQ(file("COM.txt"), "old");
  EXPECT_EQ(machine().files.freeFile(), 1);
  expectAtRest();
}

TEST_F(PortProbing, WithThePortGoneShowsTheFailure) {
  startWith({{.number = 3}});
  openWindow();
  choose(window().cboPort, " 3");
  PropertyWatch watch(window(), [this](PropertyId property) {
    if (property == PropertyId::Visible) machine().ports.set({});
  });
  ok();
  settle();
  expectBox("Device I/O error", MessageBoxes::kDefaultTitle);
  EXPECT_FALSE(ended());
  EXPECT_EQ(waiting(), 0);
}

TEST_F(PortProbing, FromTheWorkingPanelStartsTheModemAnew) {
  startUnlocked();
  openWindow();
  EXPECT_EQ(port(), " 3");
  ok();
  settle();
  EXPECT_EQ(sent(), kProbeAndStart);
  EXPECT_EQ(file("COM.txt"), "9600,N,8,1 3\r\n");
  expectWorking();
  expectAtRest();
}

}  // namespace
}  // namespace gsm
