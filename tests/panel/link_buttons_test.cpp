#include <gtest/gtest.h>

#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/healthy_modem_test.h"
#include "tests/support/property_watch.h"
#include "tests/support/start_up_words.h"

namespace gsm {
namespace {

// The buttons that store, restart and reset.
class LinkButton : public HealthyModemTest {
 protected:
  void SetUp() override { startUnlocked(); }
};

TEST_F(LinkButton, ExitStoresTheProfileAndEndsTheProgram) {
  click(form1().Command8);
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
  run(2.04);
  EXPECT_FALSE(ended());
  EXPECT_TRUE(panel().form7.Visible.peek());
  run(0.02);
  EXPECT_TRUE(ended());
  EXPECT_FALSE(panel().form7.Visible.peek());
  EXPECT_FALSE(machine().line.isOpen());
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(LinkButton, ExitWithASilentModemEndsTheProgramAsWell) {
  silence("AT&W");
  click(form1().Command8);
  run(2.1);
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
  EXPECT_TRUE(ended());
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(LinkButton, ExitWithThePortClosedEndsTheProgramAtOnce) {
  closePort();
  click(form1().Command8);
  EXPECT_TRUE(ended());
  EXPECT_EQ(sent(), Texts{});
  EXPECT_FALSE(panel().form7.Visible.peek());
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(LinkButton, ExitWithThePortGoneEndsTheProgramWithTheFailure) {
  machine().ports.set({});
  click(form1().Command8);
  expectEndedBy("Device I/O error");
}

TEST_F(LinkButton, FactorySettingsSendsItsThreeCommands) {
  form1().Label5.Caption = kBefore;
  click(form1().Command13);
  EXPECT_EQ(statusLine(), "IniTializing To Factory Settings");
  run(3 * 2.05 - 0.05);
  EXPECT_EQ(statusLine(), "IniTializing To Factory Settings");
  settle();
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), 3U);
  EXPECT_EQ(writes[0].text, "AT&F\r");
  EXPECT_EQ(writes[1].text, "AT+SPEAKER=1\r");
  EXPECT_EQ(writes[2].text, "AT&W\r");
  EXPECT_NEAR(toSeconds(writes[1].at - writes[0].at), 2.05, 0.002);
  EXPECT_NEAR(toSeconds(writes[2].at - writes[1].at), 2.05, 0.002);
  EXPECT_EQ(statusLine(), "Restart in Process.Click Refresh ");
  EXPECT_EQ(transcript(), "");
  expectWorking();
  expectAtRest();
}

TEST_F(LinkButton, FactorySettingsClearsTheTranscriptBeforeEachCommandAndAfterTheLast) {
  inPanel([this] { form1().Text1.Text = "junk"; });
  Texts commands;
  click(form1().Command13);
  for (int i = 0; i < 400; ++i) {
    for (const std::string& command : sent()) {
      EXPECT_EQ(transcript(), "") << command;
      commands.push_back(command);
      receive("junk", 1);
    }
    run(0.03);
  }
  EXPECT_EQ(commands, (Texts{"AT&F\r", "AT+SPEAKER=1\r", "AT&W\r"}));
  EXPECT_EQ(statusLine(), "Restart in Process.Click Refresh ");
  EXPECT_EQ(transcript(), "");
}

TEST_F(LinkButton, FactorySettingsDoesntLookAtTheAnswers) {
  for (const char* command : {"AT&F", "AT+SPEAKER=1", "AT&W"}) reply(command, kError);
  click(form1().Command13);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT&F\r", "AT+SPEAKER=1\r", "AT&W\r"}));
  EXPECT_EQ(statusLine(), "Restart in Process.Click Refresh ");
  expectAtRest();
}

TEST_F(LinkButton, FactorySettingsDoesntWaitForASilentModem) {
  world().modem.forget();
  click(form1().Command13);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT&F\r", "AT+SPEAKER=1\r", "AT&W\r"}));
  EXPECT_EQ(statusLine(), "Restart in Process.Click Refresh ");
  expectAtRest();
}

TEST_F(LinkButton, FactorySettingsWithThePortClosedSaysSo) {
  closePort();
  inPanel([this] { form1().Text1.Text = kBefore; });
  click(form1().Command13);
  settle();
  EXPECT_EQ(statusLine(), "Port Not Open ");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(transcript(), kBefore);
  expectAtRest();
}

TEST_F(LinkButton, FactorySettingsWhosePortIsClosedMeanwhileEndsTheProgram) {
  click(form1().Command13);
  run(1);
  closePort();
  settle();
  expectEndedBy(kFailureOfAClosedPort);
  EXPECT_EQ(sent(), Texts{"AT&F\r"});
}

TEST_F(LinkButton, FactorySettingsPressedTwiceRunsTheSecondOnTopOfTheFirst) {
  click(form1().Command13);
  run(0.5);
  click(form1().Command13);
  settle();
  EXPECT_EQ(sent(),
            (Texts{"AT&F\r", "AT&F\r", "AT+SPEAKER=1\r", "AT&W\r", "AT+SPEAKER=1\r", "AT&W\r"}));
  expectAtRest();
}

const Texts kWholeStart = {"AT+CGSN\r",  "AT\r",        "AT+CPIN?\r",  "AT+CMEE=0\r",
                           "AT+CRC=0\r", "AT+CLIP=1\r", "AT+WIND=0\r", "AT+CMGF=1\r",
                           "AT\r",       "AT+CSQ\r",    "AT+CREG?\r",  "AT+SPEAKER=1\r",
                           "ATE1\r",     "ATI0\r",      "ATI3\r",      "AT+CCED=2\r",
                           "ATS0?\r",    "AT+IPR?\r",   "AT+ICF?\r"};

TEST_F(LinkButton, RefreshRunsTheWholeStartUpAgain) {
  click(form1().Command9);
  settle();
  EXPECT_EQ(sent(), kWholeStart);
  EXPECT_EQ(portState(), "Open");
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(portSettings(), "9600,N,8,1");
  EXPECT_EQ(log(), (Texts{kWelcome, "Check SIM PIN", "Setting to Text Mode", "Speaker Set ",
                          "Echo Enabled", "Checking Modem Speed"}));
  expectWorking();
  expectAtRest();
}

TEST_F(LinkButton, RefreshShowsTheStartUpPanelWithAFreshLog) {
  inPanel([this] { form1().List1.Visible = false; });
  click(form1().Command9);
  EXPECT_TRUE(form1().Frame5.Visible.peek());
  EXPECT_TRUE(form1().List1.Visible.peek());
  EXPECT_EQ(log(), Texts{kWelcome});
}

TEST_F(LinkButton, RefreshEmptiesThePortsLabelsUntilTheModemAnswers) {
  click(form1().Command9);
  EXPECT_EQ(portState() + portNumber() + portSettings(), "");
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  run(2.04);
  EXPECT_EQ(portState() + portNumber() + portSettings(), "");
  run(0.02);
  EXPECT_EQ(portState(), "Open");
}

TEST_F(LinkButton, RefreshWithThePortClosedKeepsThePortsLabels) {
  closePort();
  silence("AT+CGSN");
  click(form1().Command9);
  EXPECT_EQ(portState(), "Open");
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(portSettings(), "9600,N,8,1");
  EXPECT_EQ(sent(), Texts{"AT+CGSN\r"});
}

TEST_F(LinkButton, RefreshWithThePortClosedStartsUpAsWell) {
  closePort();
  click(form1().Command9);
  settle();
  EXPECT_EQ(sent(), kWholeStart);
  expectWorking();
  expectAtRest();
}

TEST_F(LinkButton, RefreshSaysSinceWhenTheSystemRuns) {
  run(100 - now());
  click(form1().Command9);
  EXPECT_EQ(form1().Label9.Caption.peek(), "System Started  01/03/2026,00:01:40");
}

TEST_F(LinkButton, RefreshWithASilentModemSweepsAndLeavesThePanelOnTheLog) {
  silence("AT+CGSN");
  click(form1().Command9);
  settle();
  EXPECT_EQ(statusLine(), "No Modem Device Found.Set The Comm Ports");
  EXPECT_TRUE(form1().Frame5.Visible.peek());
  EXPECT_FALSE(form1().MSComm1.PortOpen);
  EXPECT_EQ(portState() + portNumber() + portSettings(), "");
  expectAtRest();
}

TEST_F(LinkButton, RefreshWithThePortHeldElsewhereMeanwhileSweeps) {
  closePort();
  machine().ports.set({{.number = 3, .held = true}});
  click(form1().Command9);
  settle();
  ASSERT_GE(log().size(), 2U);
  EXPECT_EQ(log()[1], "Port Selected Already Open in Other Application");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(boxes(), Texts{""});  // the sweep has skipped the port
  EXPECT_EQ(waiting(), 0);
  EXPECT_FALSE(ended());
}

class LockedPanel : public HealthyModemTest {};

TEST_F(LockedPanel, IsUnlockedByRefreshOnceTheModemAnswers) {
  startHealthy();
  silence("AT+ICF?");
  settle();
  expectLocked();
  reply("AT+ICF?", information("+ICF: 3,4"));
  sent();
  click(form1().Command9);
  settle();
  EXPECT_EQ(sent(), kWholeStart);
  expectWorking();
  expectAtRest();
}

TEST_F(LockedPanel, WithoutASavedPortStaysLockedAfterRefresh) {
  start();
  settle();
  click(form1().Command9);
  settle();
  EXPECT_EQ(log(), Texts{kWelcome});
  EXPECT_EQ(sent(), Texts{});
  expectLocked();
  expectAtRest();
}

TEST_F(LockedPanel, SaysThatThePortIsNotOpenToFactorySettings) {
  start();
  settle();
  click(form1().Command13);
  EXPECT_EQ(statusLine(), "Port Not Open ");
}

TEST_F(LockedPanel, RefreshDuringTheStartUpStartsAnewOnTopOfIt) {
  startHealthy();
  run(5);
  EXPECT_EQ(sent(), (Texts{"AT+CGSN\r", "AT\r", "AT+CPIN?\r"}));
  click(form1().Command9);
  EXPECT_EQ(sent(), Texts{"AT+CGSN\r"});
  settle();
  expectWorking();
  expectAtRest();
}

TEST_F(LinkButton, PortStatusIsShownOnCall) {
  inPanel([this] {
    form1().MSComm1.PortOpen = false;
    form1().MSComm1.Settings = "1200,e,7,1";
    form1().ShowPortStatus();
  });
  run(0);
  EXPECT_EQ(portState(), "Closed");
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(portSettings(), "1200,E,7,1");
}

}  // namespace
}  // namespace gsm
