#include <gtest/gtest.h>

#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/start_up_words.h"
#include "tests/support/sweep_test.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;

class SweepFailures : public SweepTest {};

TEST_F(SweepFailures, AHeldFirstPortIsSkippedAndAnsweredForWithABlankBoxAtTheEnd) {
  startSweep({.ports = {{.number = 2, .held = true}, {.number = 5}}});
  std::vector<Attempt> expected;
  expectPort(5, expected);
  EXPECT_EQ(attempts(30), expected);
  const auto shown = machine().boxes.takeShown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].text, "");
  EXPECT_EQ(shown[0].title, "GSM-APPLICATION");
  EXPECT_NEAR(toSeconds(shown[0].at), lastingWholePort(), 0.1);
  EXPECT_EQ(statusLine(), kNothingFound);
}

TEST_F(SweepFailures, AfterAHeldFirstPortTheModemIsFound) {
  startSweep({.ports = {{.number = 2, .held = true}, {.number = 3}}});
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  EXPECT_EQ(boxes(), Texts{""});
}

TEST_F(SweepFailures, AHeldPortThatTheModemPrecedesIsNeverMet) {
  startSweep({.ports = {{.number = 3}, {.number = 4, .held = true}}});
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(SweepFailures, AHeldLastPortKeepsItsNumberOnTheStatusLine) {
  startSweep({.ports = {{.number = 2}, {.number = 5, .held = true}}});
  settle();
  EXPECT_EQ(statusLine(), "Scanning Port  5");
  EXPECT_EQ(form1().PortIndex, "2");
  EXPECT_EQ(boxes(), Texts{""});
  EXPECT_FALSE(form1().MSComm1.PortOpen);
}

TEST_F(SweepFailures, TwoHeldPortsCostTwoBlankBoxes) {
  startSweep({.ports = {{.number = 1, .held = true},
                        {.number = 2},
                        {.number = 4, .held = true},
                        {.number = 5}}});
  settle();
  EXPECT_EQ(statusLine(), kNothingFound);
  EXPECT_EQ(boxes(), (Texts{"", ""}));
  EXPECT_EQ(sent().size(), 20U);
}

TEST_F(SweepFailures, HeldPortsAloneEndTheSweepAtOnce) {
  startSweep({.ports = {{.number = 1, .held = true}, {.number = 2, .held = true}}});
  run(0);
  EXPECT_EQ(boxes(), (Texts{"", ""}));
  EXPECT_EQ(statusLine(), "Scanning Port  2");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(waiting(), 0);
}

TEST_F(SweepFailures, ABlankBoxHoldsTheLoadUntilItIsAnswered) {
  layComFile("\r\n14400,N,8,1 3\r\n");
  start({.ports = {{.number = 2, .held = true}, {.number = 3}}, .modemSpeed = 14400});
  reply("AT+CGSN", kImeiReply);
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  run(60);
  EXPECT_TRUE(machine().boxes.isUp());
  EXPECT_EQ(sent().size(), 10U);
  EXPECT_FALSE(form1().Label8.userClick());

  machine().boxes.answerTop();
  settle();
  EXPECT_EQ(portNumber(), "Port 3");
}

TEST_F(SweepFailures, AnyOtherFailureShowsItsTextAndEndsTheSweep) {
  startSweep({.ports = {{.number = 2, .fails = "Permission denied"}, {.number = 3}}});
  reply("AT+CGSN", kImeiReply);
  settle();
  const auto shown = machine().boxes.takeShown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].text, "Permission denied");
  EXPECT_EQ(shown[0].title, "GSM-APPLICATION");
  EXPECT_EQ(statusLine(), "Scanning Port  2");
  EXPECT_EQ(form1().PortIndex, "0");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(portNumber(), "");
}

TEST_F(SweepFailures, AfterAHeldPortAnyOtherFailureShowsItsTextFirst) {
  startSweep({.ports = {{.number = 1, .held = true},
                        {.number = 2, .fails = "Permission denied"},
                        {.number = 3}}});
  settle();
  EXPECT_EQ(boxes(), (Texts{"Permission denied", ""}));
}

TEST_F(SweepFailures, TheNextLineIsTriedAfterAFailedSweep) {
  layComFile("\r\n9600,N,8,1 3\r\n");
  start({.ports = {{.number = 2, .fails = "Permission denied"}, {.number = 3}}});
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(boxes(), Texts{"Permission denied"});
  EXPECT_EQ(portNumber(), "Port 3");
}

TEST_F(SweepFailures, APortThatVanishesBetweenTwoSpeedsEndsTheSweep) {
  startSweep({.ports = {{.number = 2}, {.number = 5}}});
  run(1);
  machine().ports.set({{.number = 5}});
  settle();
  EXPECT_EQ(boxes(), Texts{"Invalid Port Number"});
  EXPECT_EQ(sent().size(), 1U);
  EXPECT_EQ(statusLine(), "Scanning Port  2");
}

TEST_F(SweepFailures, APortThatVanishesBeforeItsTurnEndsTheSweep) {
  startSweep({.ports = {{.number = 2}, {.number = 5}, {.number = 6}}});
  run(1);
  machine().ports.set({{.number = 2}, {.number = 6}});
  settle();
  EXPECT_EQ(boxes(), Texts{"Invalid Port Number"});
  EXPECT_EQ(sent().size(), 10U);
  EXPECT_EQ(statusLine(), "Scanning Port  5");
}

TEST_F(SweepFailures, AMidnightEndsTheSweepWithItsDescription) {
  layComFile("\r\n");
  start({.now = {2026, 3, 1, 23, 59, 55}});
  settle();
  EXPECT_EQ(boxes(), Texts{"Overflow"});
  EXPECT_FALSE(ended());
  EXPECT_EQ(statusLine(), "Scanning Port  3");
}

}  // namespace
}  // namespace gsm
