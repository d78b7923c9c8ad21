#include "tests/phonebook/failing_database.h"

#include <gtest/gtest.h>

#include <memory>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "phonebook/form5.h"
#include "tests/phonebook/download_test.h"

namespace gsm {
namespace {

// A book of two entries in an engine that takes notes.
class NotedDatabase : public DownloadTest {
 protected:
  void SetUp() override {
    useDatabase(engine_);
    DownloadTest::SetUp();
    layEntries({{"1", "111", "ONE"}, {"2", "112", "TWO"}});
    layCounts("100", "2");
    openCalls();
  }

  const std::shared_ptr<FailingEngine> engine_ = std::make_shared<FailingEngine>();
};

// Each operation of the database fails once; the handler ends there, and what it has done stays.
class FailingDatabase : public NotedDatabase, public ::testing::WithParamInterface<int> {
 protected:
  void failFromNow() { engine_->failAt(GetParam()); }
  /// The last of the operations has gone well by itself, so that all have had their turn.
  void expectSilentEnd(int operations) {
    EXPECT_EQ(engine_->hasFailed(), GetParam() <= operations) << "of " << engine_->done();
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
    EXPECT_EQ(waiting(), 0);
    engine_->failAt(0);
    clearTranscript();
    receive(unsolicited("RING") + unsolicited("+CLIP: \"0299999999\",129"));
    settle();
    EXPECT_EQ(caller(), "Call Received-  0299999999");
  }
};

// Of a download of one entry: opening and emptying 3, the counts 2+4, the entry 5, at the end 4.
class FailingDownload : public FailingDatabase {};

TEST_P(FailingDownload, KeepsWhatWasStored) {
  answerEntry(1, "0146290801", "One");
  inPanel([this] {
    calls().Hide();
    calls().List1.Clear();
  });
  run(0);
  failFromNow();
  const std::string reply = "AT+CPBS?\r" + information("+CPBS: \"SM\",1,150");
  const std::string entry = "AT+CPBR=1\r" + information(entryLine(1, "0146290801", "One"));
  receive(reply);
  settle();
  const int failed = GetParam();
  // The transcript is cleared once the counts are stored, and after each entry.
  EXPECT_EQ(transcript(), failed <= 9 ? reply : failed <= 14 ? entry : "");
  EXPECT_EQ(statusLine(), kSaving);
  const BookRows old{{"1", "111", "ONE"}, {"2", "112", "TWO"}};
  const BookRows none;
  const BookRows one{{"1", "0146290801", "One"}};
  EXPECT_EQ(storedEntries(), failed <= 2 ? old : failed <= 14 ? none : one);
  EXPECT_EQ(storedCounts(), failed <= 3   ? (BookRows{{"100", "2"}})
                            : failed <= 9 ? BookRows{}
                                          : (BookRows{{"150", "1"}}));
  EXPECT_EQ(rows().size(), failed <= 9 ? 0U : 1U);
  EXPECT_EQ(used(), failed <= 3 ? "2" : "1");
  EXPECT_EQ(sent().size(), failed <= 9 ? 0U : 1U);
  EXPECT_EQ(calls().Visible.peek(), failed > 18);
  expectSilentEnd(18);
}

INSTANTIATE_TEST_SUITE_P(AtOperation, FailingDownload, ::testing::Range(1, 20));

// Of an added entry: the entry 5, the counts 5, at the end 2.
class FailingAdd : public FailingDatabase {};

TEST_P(FailingAdd, KeepsWhatWasStored) {
  click(calls().Command2);
  panel().form4.Text3.Text = "113";
  panel().form4.Text4.Text = "Al";
  failFromNow();
  click(panel().form4.Command1);
  settle();
  const int failed = GetParam();
  EXPECT_EQ(sent().size(), 1U);
  EXPECT_EQ(rows().size(), 3U);
  EXPECT_EQ(used(), "3");
  EXPECT_EQ(storedEntries().size(), failed <= 5 ? 2U : 3U);
  EXPECT_EQ(storedCounts(), (BookRows{{"100", failed <= 10 ? "2" : "3"}}));
  EXPECT_EQ(callStatus(), failed <= 10 ? "" : "New Entry  113");
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(panel().form4.Visible.peek(), failed <= 12);
  expectSilentEnd(12);
}

INSTANTIATE_TEST_SUITE_P(AtOperation, FailingAdd, ::testing::Range(1, 14));

// Of a deleted entry: the entry 2, the counts 5, at the end 4.
class FailingDelete : public FailingDatabase {};

TEST_P(FailingDelete, KeepsWhatWasStored) {
  reply("AT+CPBW=2", kOk);
  select(1);
  failFromNow();
  click(calls().Command3);
  settle();
  const int failed = GetParam();
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(rows().size(), 1U);
  EXPECT_EQ(used(), "1");
  EXPECT_EQ(storedEntries().size(), failed <= 2 ? 2U : 1U);
  EXPECT_EQ(storedCounts(), (BookRows{{"100", failed <= 7 ? "2" : "1"}}));
  EXPECT_EQ(dialBox(), failed <= 11 ? "112" : "");
  expectSilentEnd(11);
}

INSTANTIATE_TEST_SUITE_P(AtOperation, FailingDelete, ::testing::Range(1, 13));

// Of a load of two entries and the counts: 2, then 1 and 4 an entry, then 2, 1 and 2.
class FailingLoad : public FailingDatabase {};

TEST_P(FailingLoad, OpensTheWindowWithWhatItHasRead) {
  inPanel([this] { calls().userClose(); });
  settle();
  failFromNow();
  openCalls();
  const int failed = GetParam();
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(rows().size(), failed <= 6 ? 0U : failed <= 10 ? 1U : 2U);
  EXPECT_EQ(total(), failed <= 15 ? "" : "100");
  EXPECT_EQ(used(), failed <= 16 ? "" : "2");
  expectSilentEnd(16);
}

INSTANTIATE_TEST_SUITE_P(AtOperation, FailingLoad, ::testing::Range(1, 18));

// Of a known caller: opening 2, looking up 1, the name 1.
class FailingLookUp : public FailingDatabase {};

TEST_P(FailingLookUp, OpensNoPromptAndKeepsTheRing) {
  const std::string ring = unsolicited("RING") + unsolicited("+CLIP: \"112\",129");
  failFromNow();
  route(ring);
  const bool found = GetParam() > 4;
  EXPECT_EQ(promptUp(), found);
  EXPECT_EQ(polls(), found);
  EXPECT_EQ(transcript(), found ? "" : ring);
  expectSilentEnd(4);
}

// The prompt of a waiting call is up before the name is read.
TEST_P(FailingLookUp, OfAWaitingCallOpensThePromptBeforeTheName) {
  inPanel([this] { prompt().Label1.Caption = "as it was"; });
  run(0);
  failFromNow();
  route(unsolicited("+CCWA: \"112\",129,1"));
  const bool lookedUp = GetParam() > 3;
  const bool found = GetParam() > 4;
  EXPECT_EQ(promptUp(), lookedUp);
  EXPECT_EQ(caller(), found ? "Call Waiting- TWO" : "as it was");
  expectSilentEnd(4);
}

INSTANTIATE_TEST_SUITE_P(AtOperation, FailingLookUp, ::testing::Range(1, 6));

// The criteria, to the letter: another engine may count the blank in the caller's.
class Criteria : public NotedDatabase {};

TEST_F(Criteria, OfACallerAreTheLastTenCharactersAndABlank) {
  for (const char* number : {"0146290800", "+33146290800", "112", ""}) {
    receive(unsolicited("RING") + unsolicited("+CLIP: \"" + std::string(number) + "\",129"));
    settle();
  }
  form1().Timer2.Enabled = false;  // or its routings show the waiting call again
  receive(unsolicited("+CCWA: \"+33146290800\",129,1"));
  settle();
  EXPECT_EQ(engine_->takeCriteria(),
            (Texts{"right(number,10) = '0146290800 '", "right(number,10) = '3146290800 '",
                   "right(number,10) = '112 '", "right(number,10) = ' '",
                   "right(number,10) = '3146290800 '"}));
}

TEST_F(Criteria, OfAnAddAndADeleteAreTheCountAndTheIndex) {
  click(calls().Command2);
  panel().form4.Text3.Text = "113";
  panel().form4.Text4.Text = "Al";
  click(panel().form4.Command1);
  settle();
  EXPECT_EQ(engine_->takeCriteria(), Texts{"UsedIndex='2'"});
  reply("AT+CPBW=1", kOk);
  select(0);
  click(calls().Command3);
  settle();
  EXPECT_EQ(engine_->takeCriteria(), (Texts{"INDEX='1'", "USEDINDEX='1'"}));
}

}  // namespace
}  // namespace gsm
