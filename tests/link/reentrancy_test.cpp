#include <gtest/gtest.h>

#include "audio/form6.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/open_port_test.h"
#include "tests/support/routing_watch.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;

// What happens on the line and at the user's hand while a handler waits.
class Reentrancy : public OpenPortTest {
 protected:
  // A handler that sends a command now, and notes when it goes on and what it then reads.
  void exchanging(const std::string& command) {
    inPanel([this, command] {
      form1().modem.exchange(command);
      ends_.push_back(now());
      reads_.push_back(form1().Text1.Text.get());
    });
  }

  // The audio window, whose load would otherwise come in the middle of its first reply.
  void loadAudio() {
    inPanel([this] { panel().form6.reference(); });
    settle();
  }

  std::string signal() { return panel().form7.Label4.Caption.peek(); }
  static constexpr double kLineTime = 3 * 10 / 9600.0;  // of "AT" and its carriage return

  std::vector<double> ends_;
  Texts reads_;
};

TEST_F(Reentrancy, ChunksInARowAreRoutedByTheNewestCallFirst) {
  RoutingWatch watch(world());
  receive("one ", 0);
  receive("two ", 0.1);
  receive("three", 0.2);
  run(2.19);
  EXPECT_EQ(watch.routings.size(), 0U);
  EXPECT_EQ(waiting(), 3);
  run(1);
  EXPECT_EQ(watch.depths(), (std::vector<int>{3, 2, 1}));
  for (const auto& routing : watch.routings) {
    EXPECT_NEAR(routing.at, 2.2, 0.002);
    EXPECT_EQ(routing.transcript, "one two three");
  }
}

TEST_F(Reentrancy, ABranchThatDoesntClearFiresOnceForEachChunk) {
  // The gain's caption is written before the reading of its number fails.
  loadAudio();
  Label& caption = panel().form6.Label7;
  int fired = 0;
  PropertyWatch watch(caption, [&](PropertyId) {
    if (caption.Caption.peek().empty()) return;
    EXPECT_EQ(caption.Caption.peek(), "Default Values-Speaker \r\n");
    ++fired;
    caption.Caption.store("");
  });
  receive("\r\n+V", 0);
  receive("GR: ", 0.1);
  receive("\r\n", 0.2);
  run(2.19);
  EXPECT_EQ(fired, 0);
  run(1);
  EXPECT_EQ(fired, 3);
}

TEST_F(Reentrancy, ABranchThatClearsLeavesTheOlderCallsNothing) {
  RoutingWatch watch(world());
  receive("\r\n+CSQ", 0);
  receive(": 15,", 0.1);
  receive("99\r\n\r\nOK\r\n", 0.2);
  run(2.19);
  EXPECT_EQ(signal(), "");
  run(1);
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(watch.routings.size(), 0U);
  EXPECT_EQ(waiting(), 0);
}

TEST_F(Reentrancy, AChunkThatComesAfterTheTwoSecondsIsRoutedByItself) {
  RoutingWatch watch(world());
  receive("one ", 0);
  receive("two", 2.1);
  settle();
  ASSERT_EQ(watch.routings.size(), 2U);
  EXPECT_EQ(watch.routings[0].transcript, "one ");
  EXPECT_NEAR(watch.routings[0].at, 2, 0.002);
  EXPECT_EQ(watch.routings[1].transcript, "one two");
  EXPECT_NEAR(watch.routings[1].at, 4.1, 0.002);
}

TEST_F(Reentrancy, AReplyCutByMoreThanTwoSecondsIsPutTogether) {
  receive("\r\n+CSQ: 1", 0);
  receive("5,99\r\n", 2.5);
  run(2.4);
  EXPECT_EQ(transcript(), "\r\n+CSQ: 1");
  settle();
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(transcript(), "");
}

TEST_F(Reentrancy, TwoRepliesWithinOneWaitAreOneText) {
  loadAudio();
  receive(information("+VGR: 128"), 0);
  receive(information("+CSQ: 15,99"), 0.5);
  settle();
  EXPECT_EQ(panel().form6.Label5.Caption.peek(), "128");
  EXPECT_EQ(signal(), "");  // lost with the clearing of the gain's test
  EXPECT_EQ(transcript(), "");
}

TEST_F(Reentrancy, AWaitOfOneSecondLastsTwoBecauseOfTheSendEvent) {
  exchanging("AT");
  settle();
  ASSERT_EQ(ends_.size(), 1U);
  EXPECT_NEAR(ends_[0], 2 + kLineTime, 0.002);
}

TEST_F(Reentrancy, AWaitLastsTwoSecondsPastTheLastChunk) {
  exchanging("AT");
  receive("a", 0.5);
  receive("b", 1.9);
  receive("c", 3.8);
  settle();
  ASSERT_EQ(ends_.size(), 1U);
  EXPECT_NEAR(ends_[0], 5.8, 0.002);
  EXPECT_EQ(reads_, Texts{"abc"});
}

TEST_F(Reentrancy, AWaitIsOverWhenNothingCameForTwoSeconds) {
  exchanging("AT");
  receive("late", 2.1);
  settle();
  ASSERT_EQ(ends_.size(), 1U);
  EXPECT_NEAR(ends_[0], 2 + kLineTime, 0.002);
  EXPECT_EQ(reads_, Texts{""});
}

TEST_F(Reentrancy, AWaitWithoutSendEventsLastsItsSecond) {
  form1().MSComm1.SThreshold = 0;
  exchanging("AT");
  settle();
  ASSERT_EQ(ends_.size(), 1U);
  EXPECT_NEAR(ends_[0], 1, 0.002);
}

TEST_F(Reentrancy, AKeyThatRoutingClearsIsGoneBeforeTheHandlerReads) {
  reply("AT+CSQ", information("+CSQ: 15,99"));
  exchanging("AT+CSQ");
  settle();
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(reads_, Texts{""});
}

TEST_F(Reentrancy, ASecondCommandGoesOutWhileTheFirstOneWaitsAndTheRepliesMix) {
  reply("AT", kOk);
  reply("AT+CMEE=0", kOk);
  exchanging("AT");
  run(0.5);
  inPanel([this] {
    form1().modem.exchangeOnTop("AT+CMEE=0");
    reads_.push_back(form1().Text1.Text.get());
  });
  settle();
  EXPECT_EQ(sent(), (Texts{"AT\r", "AT+CMEE=0\r"}));
  const std::string both = "AT\r\r\nOK\r\nAT+CMEE=0\r\r\nOK\r\n";
  EXPECT_EQ(reads_, (Texts{both, both}));
}

TEST_F(Reentrancy, AClickDuringAWaitRunsToItsEndBeforeTheWaitingHandlerGoesOn) {
  exchanging("AT+CGSN");
  run(0.5);
  click(form1().Label8);
  EXPECT_EQ(sent(), (Texts{"AT+CGSN\r", "AT\r"}));
  EXPECT_TRUE(panel().form7.Visible.peek());
  settle();
  ASSERT_EQ(ends_.size(), 1U);
  EXPECT_NEAR(ends_[0], 0.5 + 2 + kLineTime, 0.002);
}

TEST_F(Reentrancy, AHandlerThatClearsTakesTheReplyFromTheOneUnderneath) {
  reply("AT", kOk);
  exchanging("AT");
  inPanel([this] { form1().Text1.clear(); }, 0.5);
  settle();
  EXPECT_EQ(reads_, Texts{""});
}

TEST_F(Reentrancy, AModemThatTalksWithoutEndLosesNoByteAndEndsNoProgram) {
  std::string all;
  for (int i = 0; i < 2000; ++i) {
    const std::string chunk = std::to_string(i) + " ";
    receive(chunk, i * 0.005);
    all += chunk;
  }
  int deepest = 0;
  for (int i = 0; i < 200; ++i) {
    inPanel([&] { deepest = std::max(deepest, waiting()); }, i * 0.05);
  }
  run(30);
  EXPECT_EQ(transcript(), all);
  EXPECT_EQ(waiting(), 0);
  EXPECT_LE(deepest, HandlerStack::kDeepest + 2);  // a timer's tick and the looking one on top
  EXPECT_FALSE(ended());
}

}  // namespace
}  // namespace gsm
