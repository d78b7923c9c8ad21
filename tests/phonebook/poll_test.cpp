#include <gtest/gtest.h>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "phonebook/form5.h"
#include "tests/support/phone_book_test.h"

namespace gsm {
namespace {

constexpr const char* kRing = "\r\nRING\r\n\r\n+CLIP: \"0146290800\",129\r\n";
const std::string kCall = information("+CIND: 5,4,1,0,1,0,0");
const std::string kNoCall = information("+CIND: 5,4,1,0,0,0,0");

// The question about the call while it rings.
class Poll : public PhoneBookTest {
 protected:
  void SetUp() override {
    PhoneBookTest::SetUp();
    layEntries({{"1", "112", "HELP"}});
  }

  /// A call has just been shown; the next tick is two seconds away.
  void ringNow() {
    route(kRing);
    ASSERT_TRUE(promptUp());
    ASSERT_TRUE(polls());
    sent();
  }
};

TEST_F(Poll, AsksTwoSecondsAfterTheRingOnTopOfTheTranscript) {
  ringNow();
  leaveInTranscript("kept");
  run(1.8);
  EXPECT_EQ(sent(), Texts{});
  run(0.2);
  EXPECT_EQ(sent(), Texts{"AT+CIND?\r"});
  EXPECT_EQ(transcript(), "kept");
}

TEST_F(Poll, TakesThePromptDownAndEndsWhenTheCallHasGone) {
  reply("AT+CIND?", kNoCall);
  ringNow();
  run(60);
  EXPECT_EQ(sent(), Texts{"AT+CIND?\r"});
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(polls());
  EXPECT_EQ(transcript(), "AT+CIND?\r" + kNoCall);
}

TEST_F(Poll, GoesOnWhileTheCallIsUp) {
  reply("AT+CIND?", kCall);
  ringNow();
  run(9);
  EXPECT_EQ(sent(), (Texts{"AT+CIND?\r", "AT+CIND?\r"}));
  EXPECT_TRUE(promptUp());
  EXPECT_TRUE(polls());
}

TEST_F(Poll, ReadsTheFirstReplyInTheTranscriptForEver) {
  world().modem.add({.write = "AT+CIND?\r",
                     .replies = {{{ModemScript::kDefaultDelay, kCall}},
                                 {{ModemScript::kDefaultDelay, kNoCall}}}});
  ringNow();
  run(30);
  EXPECT_TRUE(promptUp());
  EXPECT_TRUE(polls());
  clearTranscript();
  run(10);
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(polls());
}

TEST_F(Poll, SkipsTheTickThatComesDueWhileItWaits) {
  reply("AT+CIND?", kCall);
  ringNow();
  const double start = now();
  run(13);
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(toSeconds(writes[i].at) - start, 1.9 + 4 * static_cast<double>(i), 0.06);
  }
}

TEST_F(Poll, OfASilentModemGoesOn) {
  ringNow();
  run(9);
  EXPECT_EQ(sent().size(), 2U);
  EXPECT_TRUE(promptUp());
  EXPECT_TRUE(polls());
}

TEST_F(Poll, EndsAtAnErrorThatWasLeftOverAndLeavesThePromptUp) {
  ringNow();
  leaveInTranscript("ERROR");
  run(20);
  EXPECT_EQ(sent(), Texts{"AT+CIND?\r"});
  EXPECT_FALSE(polls());
  EXPECT_TRUE(promptUp());
}

TEST_F(Poll, TakesThePromptDownBesideAnError) {
  reply("AT+CIND?", kNoCall);
  ringNow();
  leaveInTranscript("ERROR");
  run(20);
  EXPECT_FALSE(polls());
  EXPECT_FALSE(promptUp());
}

struct BadReply {
  std::string name;
  std::string before;
  std::string reply;
};

class PollOf : public Poll, public ::testing::WithParamInterface<BadReply> {};

TEST_P(PollOf, GoesOnWithThePromptUp) {
  reply("AT+CIND?", GetParam().reply);
  ringNow();
  leaveInTranscript(GetParam().before);
  run(9);
  EXPECT_GE(sent().size(), 2U);
  EXPECT_TRUE(polls());
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

std::string badReplyName(const ::testing::TestParamInfo<BadReply>& row) { return row.param.name; }

INSTANTIATE_TEST_SUITE_P(
    Rows, PollOf,
    ::testing::Values(BadReply{"SixFields", "", information("+CIND: 5,4,1,0,0,0")},
                      BadReply{"OneField", "", information("+CIND: 5")},
                      BadReply{"NoOkYet", "", "\r\n+CIND: 5,4,1,0,0,0,0\r\n"},
                      BadReply{"AnOlderOk", "OK", kNoCall},
                      // The fields are taken as far as that word stands from the beginning.
                      BadReply{"AnOlderOkOnlyFarEnoughForTheFields", std::string(14, 'x') + "OK",
                               kNoCall},
                      BadReply{"ACallFieldThatIsNoNumber", "", information("+CIND: 5,4,1,0,x,0,0")},
                      BadReply{"AnotherLine", "", information("+CSCS: 5,4,1,0,0,0,0")}),
    badReplyName);

struct GoodReply {
  std::string name;
  std::string before;
  std::string reply;
};

class PollThatEnds : public Poll, public ::testing::WithParamInterface<GoodReply> {};

TEST_P(PollThatEnds, TakesThePromptDown) {
  reply("AT+CIND?", GetParam().reply);
  ringNow();
  leaveInTranscript(GetParam().before);
  run(9);
  EXPECT_EQ(sent(), Texts{"AT+CIND?\r"});
  EXPECT_FALSE(polls());
  EXPECT_FALSE(promptUp());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PollThatEnds,
    ::testing::Values(GoodReply{"EightFields", "", information("+CIND: 5,4,1,0,0,0,0,1")},
                      GoodReply{"TwoDigits", "", information("+CIND: 5,4,1,0,00,0,0")},
                      GoodReply{"NothingButTheCallField", "", information("+CIND: ,,,,0,,")},
                      // The older word stands far enough after the beginning.
                      GoodReply{"AnOlderOkFarBehind", std::string(40, 'x') + "OK", kNoCall}),
    [](const ::testing::TestParamInfo<GoodReply>& row) { return row.param.name; });

TEST_F(Poll, OfAClosedPortTriesAgain) {
  reply("AT+CIND?", kNoCall);
  ringNow();
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  run(9);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_TRUE(polls());
  EXPECT_TRUE(promptUp());
  inPanel([this] { form1().MSComm1.PortOpen = true; });
  run(5);
  EXPECT_EQ(sent(), Texts{"AT+CIND?\r"});
  EXPECT_FALSE(promptUp());
}

TEST_F(Poll, IsNotEndedByThePromptsButtons) {
  reply("AT+CIND?", kCall);
  ringNow();
  click(prompt().Command1);
  run(8);
  EXPECT_TRUE(polls());
  click(prompt().Command2);
  run(8);
  EXPECT_FALSE(promptUp());
  EXPECT_TRUE(polls());
}

TEST_F(Poll, WhoseAnswerAHandlerClearsAwayGoesOn) {
  reply("AT+CIND?", kNoCall);
  reply("AT+VTS=1", kOk);
  inPanel([this] { calls().Show(); });
  ringNow();
  run(2.5);
  ASSERT_EQ(sent(), Texts{"AT+CIND?\r"});
  click(calls().Image[1]);
  run(2);
  EXPECT_TRUE(promptUp());
  EXPECT_TRUE(polls());
  run(5);
  EXPECT_FALSE(promptUp());
}

// Its result is anybody's.
TEST_F(Poll, GivesADialAnOkThatIsTakenForItsOwn) {
  reply("AT+CIND?", kCall);
  inPanel([this] { calls().Show(); });
  calls().Text1.Text = "123";
  ringNow();
  click(calls().Command1);
  run(10);
  EXPECT_EQ(callStatus(), "Connected SuccessFully-123");
}

TEST_F(Poll, GivesADeleteAnOkThatIsTakenForItsOwn) {
  reply("AT+CIND?", kCall);
  layCounts("100", "1");
  inPanel([this] { calls().Show(); });
  ringNow();
  select(0);
  run(1);
  click(calls().Command3);
  run(6);
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(storedEntries(), BookRows{});
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(Poll, IsNotEndedByNoCarrier) {
  reply("AT+CIND?", kCall);
  ringNow();
  receive(unsolicited("NO CARRIER"));
  run(9);
  EXPECT_FALSE(promptUp());
  EXPECT_TRUE(polls());
}

}  // namespace
}  // namespace gsm
