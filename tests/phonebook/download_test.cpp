#include "tests/phonebook/download_test.h"

#include <gtest/gtest.h>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

class Download : public DownloadTest {};

TEST_F(Download, FillsTheListTheTablesAndTheCounts) {
  answerCounts("2,100");
  answerEntry(1, "0146290800", "Alice");
  answerEntry(2, "+33612345678", "Bob");
  download();
  EXPECT_EQ(sent(), (Texts{"AT+CPBS?\r", "AT+CPBR=1\r", "AT+CPBR=2\r"}));
  EXPECT_EQ(rows(), (Texts{"1  0146290800          Alice", "2  +33612345678        Bob"}));
  EXPECT_EQ(storedEntries(),
            (BookRows{{"1", "0146290800", "Alice"}, {"2", "+33612345678", "Bob"}}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
  EXPECT_EQ(used(), "2");
  EXPECT_EQ(total(), "100");
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(statusLine(), kSaving);
  EXPECT_EQ(transcript(), "");
}

TEST_F(Download, TakesAboutTwoSecondsForEachEntry) {
  answerCounts("3,100");
  for (int i = 1; i <= 3; ++i) answerEntry(i, "0146290800", "Alice");
  inPanel([this] { calls().Show(); });
  run(20);
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), 4U);
  for (std::size_t i = 1; i < 4; ++i) {
    EXPECT_NEAR(toSeconds(writes[i].at - writes[i - 1].at), 2.05, 0.03);
  }
}

TEST_F(Download, ListsTheEntriesAsTheyArrive) {
  answerCounts("2,100");
  answerEntry(1, "0146290800", "Alice");
  answerEntry(2, "0146290801", "Bob");
  inPanel([this] { calls().Show(); });
  run(4.3);
  EXPECT_EQ(rows(), Texts{"1  0146290800          Alice"});
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "0146290800", "Alice"}}));
  run(2.1);
  EXPECT_EQ(rows().size(), 2U);
}

TEST_F(Download, OfNoEntryStoresTheCountsAndShowsAnEmptyList) {
  answerCounts("0,100");
  download();
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(sent(), Texts{"AT+CPBS?\r"});
  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(storedEntries(), BookRows{});
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "0"}}));
  EXPECT_EQ(used(), "0");
}

TEST_F(Download, ReadsAsManyLocationsAsAreUsedAndSkipsHoles) {
  answerCounts("3,100");
  answerEntry(1, "0146290801", "One");
  answerEntry(2, "0146290802", "Two");
  answerEmpty(3);
  answerEntry(5, "0146290805", "Five");
  download();
  EXPECT_EQ(sent(), (Texts{"AT+CPBS?\r", "AT+CPBR=1\r", "AT+CPBR=2\r", "AT+CPBR=3\r"}));
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "0146290801", "One"}, {"2", "0146290802", "Two"}}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "3"}}));
}

TEST_F(Download, GoesOnAfterALocationThatIsRefusedSilentOrWithoutANumber) {
  answerCounts("4,100");
  reply("AT+CPBR=1", kError);
  answerEntry(3, "", "Nobody");
  answerEntry(4, "0146290804", "Four");
  download();
  EXPECT_EQ(sent().size(), 5U);
  EXPECT_EQ(rows(), Texts{"4  0146290804          Four"});
  EXPECT_EQ(storedEntries(), (BookRows{{"4", "0146290804", "Four"}}));
}

TEST_F(Download, KeepsWhatANameMayHold) {
  answerCounts("4,100");
  answerEntry(1, "0146290801", "Thirteen char");
  answerEntry(2, "0146290802", "Doe, Jane");
  answerEntry(3, "0146290803", "");
  answerEntry(4, "112", "O'Hara");
  download();
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "0146290801", "Thirteen char"},
                                       {"2", "0146290802", "Doe, Jane"},
                                       {"3", "0146290803", ""},
                                       {"4", "112", "O'Hara"}}));
  EXPECT_EQ(rows()[2], "3  0146290803          ");
  EXPECT_EQ(rows()[3], "4  112                 O'Hara");
}

TEST_F(Download, SkipsTheTypeOfANumberWhateverItsLength) {
  answerCounts("3,100");
  for (const std::string type : {"1", "81", "145"}) {
    const std::string index = std::to_string(type.size());
    reply("AT+CPBR=" + index,
          information("+CPBR: " + index + ",\"014629080" + index + "\"," + type + ",\"Name\""));
  }
  download();
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "0146290801", "Name"},
                                       {"2", "0146290802", "Name"},
                                       {"3", "0146290803", "Name"}}));
}

TEST_F(Download, LosesAnEntryWhoseReplyAKeyPressClearsAway) {
  layEntries({{"1", "112", "OLD"}});
  openCalls();
  answerCounts("2,100");
  answerEntry(1, "0146290801", "One");
  answerEntry(2, "0146290802", "Two");
  click(calls().Command5);
  run(2.5);
  ASSERT_EQ(sent().back(), "AT+CPBR=1\r");
  click(calls().Image[1]);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+VTS=1\r", "AT+CPBR=2\r"}));
  EXPECT_EQ(dialBox(), "1");
  EXPECT_EQ(storedEntries(), (BookRows{{"2", "0146290802", "Two"}}));
}

TEST_F(Download, TakesTheCarriageReturnAlongAfterAShortTotal) {
  answerCounts("1,10");
  answerEntry(1, "0146290801", "One");
  download();
  EXPECT_EQ(total(), "10\r");
  EXPECT_EQ(storedCounts(), (BookRows{{"10\r", "1"}}));
}

struct CommaRow {
  std::string name;
  std::string text;  // in front of the reply to the counts
  std::string total;
};

class DownloadBehindAComma : public Download, public ::testing::WithParamInterface<CommaRow> {};

// The used count stands behind the memory's name, the total behind the first comma of all.
TEST_P(DownloadBehindAComma, TakesTheTotalFromWhatFollowsIt) {
  layEntries({{"1", "112", "OLD"}});
  openCalls();
  answerEmpty(1);
  receive(GetParam().text + "AT+CPBS?\r" + information("+CPBS: \"SM\",1,100"));
  settle();
  EXPECT_EQ(used(), "1");
  EXPECT_EQ(total(), GetParam().total);
  EXPECT_EQ(storedCounts(), (BookRows{{GetParam().total, "1"}}));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DownloadBehindAComma,
    ::testing::Values(CommaRow{"WithoutAnother", "a,", "AT+"},
                      CommaRow{"WithAnotherAfterASeventhCharacter", "a,1234567,89", ""},
                      CommaRow{"WithAnotherBeyondTheEighth", "a,12345678,9", "123"},
                      CommaRow{"WithAnotherBefore", "a,1234,5", "5AT"}),
    RowName());

TEST_F(Download, ReplacesWhatTheTablesHeld) {
  layEntries({{"1", "112", "OLD"}, {"2", "113", "OLDER"}});
  layCounts("50", "2");
  openCalls();
  answerCounts("1,100");
  answerEntry(1, "0146290801", "One");
  click(calls().Command5);
  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(callStatus(), "Please Wait.......");
  settle();
  EXPECT_EQ(callStatus(), "");
  EXPECT_EQ(rows(), Texts{"1  0146290801          One"});
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "0146290801", "One"}}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "1"}}));
}

TEST_F(Download, DoesntBeginWhileTheModemIsSilent) {
  layEntries({{"1", "112", "OLD"}});
  layCounts("50", "1");
  openCalls();
  click(calls().Command5);
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CPBS?\r"});
  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(callStatus(), "");
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "112", "OLD"}}));
  EXPECT_EQ(storedCounts(), (BookRows{{"50", "1"}}));
}

TEST_F(Download, LosesAnEntryThatHoldsARoutingWord) {
  answerCounts("2,100");
  answerEntry(1, "0146290801", "BRINGER");
  answerEntry(2, "0146290802", "Two");
  download();
  EXPECT_TRUE(polls());
  EXPECT_EQ(storedEntries(), (BookRows{{"2", "0146290802", "Two"}}));
}

TEST_F(Download, TakesTheStatusLineFromTheButtonThatOpensTheCallWindow) {
  reply("AT", kOk);
  answerCounts("0,100");
  form1().Command2.Enabled = true;
  click(form1().Command2);
  run(2.1);
  EXPECT_EQ(statusLine(), "Please Wait.......");
  settle();
  EXPECT_EQ(statusLine(), kSaving);
}

TEST_F(Download, LeavesTheStatusLineToTheClosingOfTheCallWindow) {
  answerCounts("0,100");
  download();
  EXPECT_EQ(statusLine(), kSaving);
  inPanel([this] { calls().userClose(); });
  settle();
  EXPECT_EQ(statusLine(), "");
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(calls().Visible.peek());
}

}  // namespace
}  // namespace gsm
