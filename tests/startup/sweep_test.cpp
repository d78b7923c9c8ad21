#include <gtest/gtest.h>

#include "modem/form2.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/start_up_words.h"
#include "tests/support/sweep_test.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;

class Sweep : public SweepTest {};

TEST_F(Sweep, TriesEachPortAtTenSpeedsFromTheSlowestUp) {
  startSweep({.ports = {{.number = 2}, {.number = 5}}});
  std::vector<Attempt> expected;
  expectPort(2, expected);
  expectPort(5, expected);
  EXPECT_EQ(attempts(60), expected);
  EXPECT_EQ(waiting(), 0);
}

TEST_F(Sweep, WaitsAtEachSpeedTwoSecondsPastTheSending) {
  startSweep({});
  attempts(60);
  ASSERT_EQ(times_.size(), 10U);
  double begin = 0;
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_NEAR(times_[i], begin, 0.02) << kSpeeds[i];
    begin += lasting(kSpeeds[i]);
  }
}

// A modem that only notes at which speeds it is spoken to.
class NotingModem : public LineModem {
 public:
  void hear(std::string_view, int baud) override { speeds.push_back(baud); }
  std::vector<int> speeds;
};

TEST_F(Sweep, SpeaksAtTheSpeedsThatItShows) {
  NotingModem modem;
  startSweep({});
  machine().line.setModem(&modem);
  settle();
  EXPECT_EQ(modem.speeds, std::vector<int>(std::begin(kSpeeds), std::end(kSpeeds)));
}

TEST_F(Sweep, ShowsThePortThatItScans) {
  startSweep({.ports = {{.number = 2}, {.number = 16}}});
  run(1);
  EXPECT_EQ(statusLine(), "Scanning Port  2");
  run(lastingWholePort());
  EXPECT_EQ(statusLine(), "Scanning Port  16");
  EXPECT_EQ(form1().Combo1.ListIndex.peek(), 1);
  EXPECT_EQ(form1().PortIndex, "1");
}

TEST_F(Sweep, LeavesPortSettingsToTheUser) {
  startSweep({});
  run(1);
  EXPECT_TRUE(form1().Command7.Enabled.peek());
}

TEST_F(Sweep, FindsAModemOnTheSecondPortAtTheHighestSpeedAfterAllTenOfTheFirst) {
  startSweep({.ports = {{.number = 2}, {.number = 5}}, .modemPort = 5, .modemSpeed = 115200});
  reply("AT+CGSN", kImeiReply);
  std::vector<Attempt> expected;
  expectPort(2, expected);
  expectPort(5, expected);
  const double lastAttempt = 2 * lastingWholePort() - lasting(115200);
  EXPECT_EQ(attempts(lastAttempt + 1), expected);
  ASSERT_EQ(times_.size(), 20U);
  EXPECT_NEAR(times_[10], lastingWholePort(), 0.02);
  EXPECT_NEAR(times_[19], lastAttempt, 0.05);
  EXPECT_EQ(portNumber(), "");
  run(2);
  EXPECT_EQ(portNumber(), "Port 5");
}

TEST_F(Sweep, TakesAnAnsweringModemAndTriesNoMore) {
  startSweep({.ports = {{.number = 3}, {.number = 4}}});
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(portSettings(), "9600,N,8,1");
  EXPECT_EQ(form1().Label1.Caption.peek(), "Open");
  EXPECT_EQ(panel().form2.Label2.Caption.peek(), "IMEI: ");
  EXPECT_EQ(panel().form2.Label3.Caption.peek(), "012345678901234");
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  EXPECT_EQ(std::string(form1().MSComm1.Settings), "9600,n,8,1");
  EXPECT_EQ(form1().PortIndex, "0");
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(file("COM.txt"), "\r\n");
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(Sweep, SetsSettingsThatChangedDuringTheWaitBack) {
  startSweep({.modemSpeed = 300});
  reply("AT+CGSN", kImeiReply);
  inPanel([this] { form1().MSComm1.Settings = std::string("1200,n,8,1"); }, 1);
  settle();
  EXPECT_EQ(portSettings(), "300,N,8,1");
  EXPECT_EQ(std::string(form1().MSComm1.Settings), "300,n,8,1");
}

TEST_F(Sweep, TakesAnyDeviceWhoseAnswerHoldsOk) {
  startSweep({});
  reply("AT+CGSN", "BOOK OF HOURS");
  settle();
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(panel().form2.Label3.Caption.peek(), "OK OF HOURS");
}

TEST_F(Sweep, OfADeviceWithoutEchoShowsWhatStandsAtTheTenthCharacter) {
  startSweep({});
  world().modem.add({.write = "AT+CGSN\r",
                     .replies = {{{ModemScript::kDefaultDelay, kImeiReply}}},
                     .echo = false});
  settle();
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(panel().form2.Label3.Caption.peek(), "78901234\r\n\r\nOK\r");
}

TEST_F(Sweep, TakesNoDeviceThatAnswersWithoutOk) {
  startSweep({});
  reply("AT+CGSN", kError);
  settle();
  EXPECT_EQ(statusLine(), kNothingFound);
}

TEST_F(Sweep, CountsALateReplyForTheSpeedThatIsTriedWhenItComes) {
  startSweep({.modemSpeed = 300});
  reply("AT+CGSN", kImeiReply, std::chrono::milliseconds(2500));
  settle();
  EXPECT_EQ(portSettings(), "600,N,8,1");
}

TEST_F(Sweep, ForgetsAtEachSpeedWhatCameBefore) {
  startSweep({});
  receive("O", 0.5);
  receive("K", 3.5);
  settle();
  EXPECT_EQ(statusLine(), kNothingFound);
}

TEST_F(Sweep, WaitsLongerWhereADeviceKeepsTalking) {
  startSweep({});
  receive("noise", 1.5);
  attempts(5);
  ASSERT_GE(times_.size(), 2U);
  EXPECT_NEAR(times_[1], 3.5, 0.02);
}

TEST_F(Sweep, ThatFindsNothingSaysSoWithThePortClosed) {
  startSweep({.ports = {{.number = 2}, {.number = 5}}});
  settle();
  EXPECT_EQ(statusLine(), kNothingFound);
  EXPECT_FALSE(form1().MSComm1.PortOpen);
  EXPECT_EQ(form1().PortIndex, "2");
  EXPECT_EQ(form1().PortsFound, 2);
  EXPECT_EQ(form1().PortsToScan, 2);
  EXPECT_EQ(form1().MSComm1.CommPort, 5);
  EXPECT_EQ(std::string(form1().MSComm1.Settings), "115200,n,8,1");
}

TEST_F(Sweep, BeginsAgainWithTheFirstPortEachTime) {
  layComFile("\r\n\r\n");
  start({.ports = {{.number = 2}}});
  std::vector<Attempt> expected;
  expectPort(2, expected);
  expectPort(2, expected);
  EXPECT_EQ(attempts(60), expected);
}

TEST_F(Sweep, LetsTheUserLookAtTheSignalMeanwhile) {
  startSweep({});
  run(0.5);
  click(form1().Label8);
  EXPECT_EQ(sent(), (Texts{"AT+CGSN\r", "AT\r"}));
  EXPECT_TRUE(panel().form7.Visible.peek());
  const auto rest = attempts(40);
  ASSERT_EQ(rest.size(), 9U);
  EXPECT_EQ(rest[0], (Attempt{3, "600,n,8,1", "AT+CGSN\r"}));
  // The click's own wait has held the sweep up.
  EXPECT_NEAR(times_[0], 0.5 + 3 * 10 / 300.0 + 2, 0.02);
  EXPECT_EQ(statusLine(), kNothingFound);
}

TEST_F(Sweep, TakesTheReplyToTheUsersCommandForTheModem) {
  startSweep({.modemSpeed = 300});
  run(0.5);
  inPanel([this] { form1().modem.send("AT+CMEE=0"); });
  reply("AT+CMEE=0", kOk);
  settle();
  EXPECT_EQ(portSettings(), "300,N,8,1");
}

// The sweep by itself, with what start-up would have prepared.
class SweepAlone : public SweepTest {
 protected:
  void sweep(const Texts& ports, int portsToScan) {
    start();
    settle();
    inPanel([this, ports, portsToScan] {
      for (const std::string& port : ports) form1().Combo1.AddItem(port);
      form1().Command7.Enabled = false;
      form1().PortIndex = "0";
      form1().PortsToScan = portsToScan;
      form1().ScanForModem();
    });
    settle();
  }
};

TEST_F(SweepAlone, EnablesPortSettingsWhenItFindsNothing) {
  sweep({"3"}, 1);
  EXPECT_EQ(statusLine(), kNothingFound);
  EXPECT_TRUE(form1().Command7.Enabled.peek());
}

TEST_F(SweepAlone, OfNoPortsReturnsAtOnce) {
  sweep({}, 0);
  EXPECT_EQ(form1().PortIndex, "0");
  EXPECT_EQ(statusLine(), "");
  EXPECT_FALSE(form1().Command7.Enabled.peek());
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(SweepAlone, ThatStopsBeforeTheLastPortSaysNothing) {
  sweep({"3", "4"}, 1);
  EXPECT_EQ(statusLine(), "Scanning Port  3");
  EXPECT_FALSE(form1().Command7.Enabled.peek());
  EXPECT_FALSE(form1().MSComm1.PortOpen);
}

}  // namespace
}  // namespace gsm
