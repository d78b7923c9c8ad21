#include <gtest/gtest.h>

#include "phonebook/form3.h"
#include "phonebook/form5.h"
#include "tests/support/phone_book_test.h"
#include "tests/support/property_watch.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

// The name or number on the prompt when a call rings or waits.
class Caller : public PhoneBookTest {
 protected:
  void SetUp() override {
    PhoneBookTest::SetUp();
    layEntries({{"1", "0146290800", "ALICE"},
                {"2", "+33612345678", "BOB"},
                {"3", "0146290800", "SECOND"},
                {"4", "112", "HELP"}});
  }
  /// As `route`, also while the poll runs.
  void take(const std::string& text) {
    receive(text);
    settle();
  }
};

std::string ring(const std::string& number) {
  return unsolicited("RING") + unsolicited("+CLIP: \"" + number + "\",129");
}

std::string waitingCall(const std::string& number) {
  return unsolicited("+CCWA: \"" + number + "\",129,1");
}

struct CallerRow {
  std::string name;
  std::string number;
  std::string ringing;
  std::string waiting;
};

class NamedCaller : public Caller, public ::testing::WithParamInterface<CallerRow> {};

TEST_P(NamedCaller, ShowsOnTheRingThatClearsAndStartsThePoll) {
  route(ring(GetParam().number));
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(caller(), GetParam().ringing);
  EXPECT_EQ(transcript(), "");
  EXPECT_TRUE(polls());
}

TEST_P(NamedCaller, ShowsAsAWaitingCallThatStaysInTheTranscript) {
  route(waitingCall(GetParam().number));
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(caller(), GetParam().waiting);
  EXPECT_EQ(transcript(), waitingCall(GetParam().number));
  EXPECT_FALSE(polls());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NamedCaller,
    ::testing::Values(CallerRow{"Unknown", "0299999999", "Call Received-  0299999999",
                                "Call Waiting-  0299999999"},
                      CallerRow{"KnownByTheFirstOfTwoEntries", "0146290800",
                                "Call Received From  ALICE", "Call Waiting- ALICE"},
                      CallerRow{"KnownByTheLastTenDigits", "0033612345678",
                                "Call Received From  BOB", "Call Waiting- BOB"},
                      CallerRow{"OfFewerThanTenDigits", "112", "Call Received From  HELP",
                                "Call Waiting- HELP"},
                      CallerRow{"OfFewerThanTenDigitsIsNoEndOfALongerNumber", "345678",
                                "Call Received-  345678", "Call Waiting-  345678"},
                      CallerRow{"Hidden", "", "Call Received-  ", "Call Waiting-  "}),
    RowName());

// The blank that is all of the criterion then is no number that an entry could have.
TEST_F(Caller, WhoHidesTheNumberIsNoEntryWithoutOne) {
  for (const char* number : {"''", "'  '", "null"}) {
    const auto book = SqliteEngine().OpenDatabase(bookFile());
    book->Execute("delete from DATA where Name='NOBODY'");
    book->Execute("insert into DATA values ('5', " + std::string(number) + ", 'NOBODY')");
    take(ring(""));
    EXPECT_EQ(caller(), "Call Received-  ");
    take(waitingCall(""));
    EXPECT_EQ(caller(), "Call Waiting-  ");
    clearTranscript();
  }
}

TEST_F(Caller, WithBlanksAfterTheNumberInTheBookIsKnown) {
  layEntries({{"5", "0299999999 ", "TRAILING"}, {"6", "0288888888", "trailing"}});
  take(ring("0288888888"));
  EXPECT_EQ(caller(), "Call Received From  trailing");
  // The blank is one of the last ten characters there, so the first digit isn't.
  take(ring("0299999999"));
  EXPECT_EQ(caller(), "Call Received-  0299999999");
  take(ring("299999999"));
  EXPECT_EQ(caller(), "Call Received From  TRAILING");
}

TEST_F(Caller, IsComparedWithoutRegardToCase) {
  layEntries({{"5", "01#AB", "LETTERS"}});
  take(ring("01#ab"));
  EXPECT_EQ(caller(), "Call Received From  LETTERS");
}

TEST_F(Caller, ComesUpOnlyWhenTheRingHasWaitedForTheNumber) {
  receive(unsolicited("RING"));
  receive(unsolicited("+CLIP: \"0146290800\",129"), 0.5);
  run(2.4);
  EXPECT_FALSE(promptUp());
  run(0.2);
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(caller(), "Call Received From  ALICE");
}

TEST_F(Caller, WithoutANumberOpensNoPromptButStartsThePoll) {
  route(unsolicited("RING"));
  EXPECT_FALSE(promptUp());
  EXPECT_EQ(transcript(), "");
  EXPECT_TRUE(polls());
}

TEST_F(Caller, IsShownAgainAtEachRing) {
  route(ring("0146290800"));
  inPanel([this] { prompt().Hide(); });
  run(0);
  ASSERT_FALSE(promptUp());
  receive(ring("0299999999"));
  settle();
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(caller(), "Call Received-  0299999999");
}

TEST_F(Caller, WhoWaitsIsShownAgainAtTheNextUnrelatedReply) {
  route(waitingCall("0146290800"));
  inPanel([this] { prompt().Hide(); });
  run(0);
  ASSERT_FALSE(promptUp());
  route(kOk);
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(caller(), "Call Waiting- ALICE");
  EXPECT_EQ(transcript(), waitingCall("0146290800") + kOk);
}

TEST_F(Caller, WhoWaitsWithoutAQuoteOpensNoPrompt) {
  route(unsolicited("+CCWA: ,,1"));
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(calls().isLoaded());
}

// The quote may be that of another line.
TEST_F(Caller, WhoWaitsWithAQuoteAnywhereIsReadFromItsOwnLine) {
  route(unsolicited("+CCWA: 0299999999,129") + unsolicited("\"x\""));
  EXPECT_EQ(caller(), "Call Waiting-  29999999");
}

TEST_F(Caller, WhoWaitsAfterAnEarlierCommaEndsTheRouting) {
  leaveInTranscript("a,b");
  route(waitingCall("0146290800") + unsolicited("NO CARRIER"));
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(calls().isLoaded());
}

// Each chunk that was waiting routes what stays in the transcript.
TEST_F(Caller, WhoWaitsIsShownOnceForEachChunk) {
  int shown = 0;
  prompt().Label1.Caption = "old";
  prompt().Show();
  PropertyWatch watch(prompt(), [&](PropertyId property) {
    if (property == PropertyId::Visible) ++shown;
  });
  receive("\r\n+CCWA: ");
  receive("\"0299999999\",", 0.1);
  receive("129,1\r\n", 0.2);
  settle();
  EXPECT_EQ(shown, 3);
  EXPECT_EQ(caller(), "Call Waiting-  0299999999");
}

TEST_F(Caller, WhoWaitsAndRingsAtOnceIsShownAsRinging) {
  take(waitingCall("0146290800") + unsolicited("RING"));
  EXPECT_EQ(caller(), "Call Waiting- ALICE");
  EXPECT_EQ(transcript(), "");
  EXPECT_TRUE(polls());
  take(unsolicited("RING") + waitingCall("0146290800") + ring("0146290800"));
  EXPECT_EQ(caller(), "Call Waiting- ALICE");
  EXPECT_EQ(transcript().find("RING"), 2U);
}

TEST_F(Caller, IsMissedWhenAClearingReplySharesTheTranscript) {
  route(information("+CSQ: 15,99") + ring("0146290800"));
  EXPECT_FALSE(promptUp());
  EXPECT_EQ(transcript(), "");
  EXPECT_FALSE(polls());
}

TEST_F(Caller, AfterAnEarlierCommaEndsTheRouting) {
  leaveInTranscript("a,b");
  route(ring("0146290800"));
  EXPECT_FALSE(promptUp());
  EXPECT_EQ(transcript(), "a,b" + ring("0146290800"));
  EXPECT_FALSE(polls());
}

TEST_F(Caller, AfterALaterFirstCommaHasMoreThanTheNumber) {
  route("\r\nRING\r\n\r\n+CLIP: \"0146290800\"\r\nx,y");
  EXPECT_EQ(caller(), "Call Received-  0146290800\"\r\n");
}

TEST_F(Caller, IsLookedUpInWhatWasStoredMeanwhile) {
  route(ring("0299999999"));
  layEntries({{"5", "0299999999", "NEW"}});
  receive(ring("0299999999"));
  settle();
  EXPECT_EQ(caller(), "Call Received From  NEW");
}

TEST_F(Caller, WithAnApostropheEndsTheRoutingWithoutAPrompt) {
  route(ring("01'1"));
  EXPECT_FALSE(promptUp());
  EXPECT_EQ(transcript(), ring("01'1"));
  EXPECT_FALSE(polls());
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

class CallerWithoutABook : public PhoneBookTest, public ::testing::WithParamInterface<bool> {
 protected:
  void breakBook() {
    if (GetParam()) {
      removeBook();
    } else {
      SqliteEngine().OpenDatabase(bookFile())->Execute("drop table DATA");
    }
  }
};

TEST_P(CallerWithoutABook, EndsTheRoutingWithoutAPrompt) {
  breakBook();
  for (const std::string& line : {ring("0146290800"), waitingCall("0146290800")}) {
    route(line);
    EXPECT_FALSE(promptUp());
    EXPECT_FALSE(polls());
    EXPECT_EQ(transcript(), line);
    clearTranscript();
  }
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

std::string missing(const ::testing::TestParamInfo<bool>& row) {
  return row.param ? "MissingFile" : "MissingTable";
}

INSTANTIATE_TEST_SUITE_P(Rows, CallerWithoutABook, ::testing::Bool(), missing);

}  // namespace
}  // namespace gsm
