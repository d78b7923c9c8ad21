#include <gtest/gtest.h>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "phonebook/form5.h"
#include "tests/phonebook/simulated_book_test.h"

namespace gsm {
namespace {

constexpr const char* kAnna = "+33639981201";  // of the card's own book

// Calls on a modem that knows what a call is, named from a book that was downloaded from it.
class SimulatedCalls : public SimulatedBookTest {
 protected:
  void SetUp() override {
    SimulatedBookTest::SetUp();
    openCalls();
    ASSERT_EQ(rows().size(), 8U);
    inPanel([this] {
      calls().userClose();
      form1().modem.send("AT+CLIP=1");
      form1().modem.send("AT+CCWA=1,1,1");
    });
    settle();
    clearTranscript();
    sent();
  }
  void ring(const std::string& caller) {
    console("ring " + caller);
    run(2.5);
  }
  int asked() {
    int count = 0;
    for (const std::string& text : sent()) count += text == "AT+CIND?\r" ? 1 : 0;
    return count;
  }
};

TEST_F(SimulatedCalls, OfAKnownNumberShowTheNameAndGoOnRinging) {
  ring(kAnna);
  EXPECT_EQ(caller(), "Call Received From  Anna");
  EXPECT_TRUE(polls());
  run(30);
  EXPECT_TRUE(promptUp());
  EXPECT_TRUE(polls());
  EXPECT_GE(asked(), 5);
}

TEST_F(SimulatedCalls, OfAKnownNumberInItsNationalFormShowTheName) {
  ring("0033639981201");
  EXPECT_EQ(caller(), "Call Received From  Anna");
}

TEST_F(SimulatedCalls, OfAnUnknownNumberShowTheNumber) {
  ring("0299999999");
  EXPECT_EQ(caller(), "Call Received-  0299999999");
}

TEST_F(SimulatedCalls, OfAHiddenNumberShowTheWordsAlone) {
  ring("hidden");
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(caller(), "Call Received-  ");
}

TEST_F(SimulatedCalls, GivenUpAreTakenDownByTheWord) {
  ring(kAnna);
  console("giveup");
  settle();
  EXPECT_FALSE(promptUp());
  EXPECT_EQ(callStatus(), "No Carrier.Plz Disconnect");
}

// The answers of the poll from before are the first in the transcript until the next ring or any
// other clearing.
TEST_F(SimulatedCalls, GivenUpSilentlyBeforeTheFirstPollAreTakenDownByIt) {
  ring(kAnna);
  console("giveup silent");
  run(1);
  EXPECT_TRUE(promptUp());
  run(5);
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(polls());
  EXPECT_EQ(asked(), 1);
}

TEST_F(SimulatedCalls, GivenUpSilentlyAfterAPollStayUpUntilAHandlerClears) {
  ring(kAnna);
  run(4.2);
  ASSERT_EQ(asked(), 1);
  console("giveup silent");
  run(60);
  EXPECT_TRUE(promptUp());
  EXPECT_TRUE(polls());
  clearTranscript();
  run(8);
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(polls());
}

TEST_F(SimulatedCalls, AnsweredKeepThePromptUntilThePollSeesTheirEnd) {
  ring(kAnna);
  click(prompt().Command1);
  run(30);
  EXPECT_TRUE(promptUp());
  EXPECT_TRUE(polls());
  EXPECT_EQ(caller(), "Call Received From  Anna");
  console("hangup silent");
  // What clears is the user's next key.
  inPanel([this] { calls().Show(); });
  run(1);
  click(calls().Image[1]);
  run(10);
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(polls());
}

TEST_F(SimulatedCalls, AnsweredAndEndedByTheOtherSideAreTakenDownByTheWord) {
  ring(kAnna);
  click(prompt().Command1);
  run(10);
  console("hangup");
  settle();
  EXPECT_FALSE(promptUp());
}

TEST_F(SimulatedCalls, AreEndedByThePromptsButton) {
  ring(kAnna);
  click(prompt().Command1);
  run(5);
  ASSERT_TRUE(promptUp());
  click(prompt().Command2);
  run(3);
  EXPECT_FALSE(promptUp());
  EXPECT_TRUE(prompt().isLoaded());
  run(20);
  EXPECT_FALSE(polls());
  EXPECT_FALSE(promptUp());
  EXPECT_EQ(modem_->console("hangup"), modem_->console("hangup"));
  EXPECT_NE(modem_->console("hangup"), "");
}

TEST_F(SimulatedCalls, AreRejectedByThePromptsButton) {
  ring(kAnna);
  click(prompt().Command2);
  run(6);
  EXPECT_FALSE(promptUp());
  EXPECT_NE(modem_->console("giveup"), "");
  run(20);
  EXPECT_FALSE(promptUp());
}

TEST_F(SimulatedCalls, AnsweredByTheModemItselfKeepThePrompt) {
  inPanel([this] { form1().modem.send("ATS0=1"); });
  settle();
  clearTranscript();
  ring(kAnna);
  run(10);
  EXPECT_TRUE(promptUp());
  EXPECT_TRUE(polls());
}

TEST_F(SimulatedCalls, WaitingShowTheNameOnTopOfTheOther) {
  ring("0299999999");
  click(prompt().Command1);
  run(5);
  clearTranscript();
  console("wait +33639984477");
  run(6);
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(caller(), "Call Waiting- Ben");
}

TEST_F(SimulatedCalls, WaitingAfterAPollsAnswerAreNotSeen) {
  ring("0299999999");
  click(prompt().Command1);
  run(12);
  ASSERT_NE(transcript().find("+CIND:"), std::string::npos);
  console("wait +33639984477");
  run(2.5);
  // The commas of the poll's answer stand before that of the waiting call.
  EXPECT_EQ(caller(), "Call Received-  0299999999");
}

TEST_F(SimulatedCalls, WaitingWithAHiddenNumberHaveNoQuoteAndNoPrompt) {
  ring("0299999999");
  click(prompt().Command1);
  run(3.2);
  clearTranscript();
  form1().Timer2.Enabled = false;
  clearTranscript();
  console("wait hidden");
  run(2.5);
  EXPECT_EQ(caller(), "Call Received-  0299999999");
}

TEST_F(SimulatedCalls, AnsweredByTheOtherSideAreConnected) {
  openCalls();
  calls().Text1.Text = "0299999998";
  click(calls().Command1);
  run(4);
  EXPECT_EQ(callStatus(), "Dialing....0299999998");
  console("answer");
  run(4.5);
  EXPECT_EQ(callStatus(), "Connected SuccessFully-0299999998");
}

TEST_F(SimulatedCalls, ToABusyNumberAreToldSo) {
  openCalls();
  calls().Text1.Text = "0299999998";
  click(calls().Command1);
  run(4);
  console("busy");
  settle();
  EXPECT_EQ(callStatus(), "Busy.Plz Disconnect");
}

TEST_F(SimulatedCalls, PickedFromTheListReachTheModem) {
  openCalls();
  select(1);
  EXPECT_EQ(dialBox(), kAnna);
  click(calls().Command1);
  run(4);
  EXPECT_EQ(sent(), Texts{"ATD" + std::string(kAnna) + ";\r"});
  EXPECT_EQ(callStatus(), "Dialing...." + std::string(kAnna));
  click(calls().Command4);
  settle();
  EXPECT_EQ(callStatus(), "DisConnected ");
  EXPECT_NE(modem_->console("answer"), "");
}

}  // namespace
}  // namespace gsm
