#include <gtest/gtest.h>

#include "phonebook/form3.h"
#include "tests/phonebook/download_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

class DownloadFailure : public DownloadTest {
 protected:
  /// The book has been read before, and its window is loaded but not on view.
  void loadOldBook() {
    layEntries({{"1", "112", "OLD"}});
    layCounts("50", "1");
    openCalls();
    inPanel([this] { calls().Hide(); });
    run(0);
  }
  /// The reply to the counts comes, and what follows ends.
  void downloadBehind(const std::string& reply) {
    receive("AT+CPBS?\r" + reply);
    settle();
  }
  void expectSilentEnd() {
    EXPECT_FALSE(calls().Visible.peek());
    EXPECT_EQ(statusLine(), kSaving);
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_EQ(waiting(), 0);
    EXPECT_FALSE(ended());
  }
};

struct CountsRow {
  std::string name;
  std::string reply;
};

class UnreadableCounts : public DownloadFailure, public ::testing::WithParamInterface<CountsRow> {};

TEST_P(UnreadableCounts, EndTheDownloadAfterTheEmptyingOfTheTables) {
  loadOldBook();
  downloadBehind(GetParam().reply);
  expectSilentEnd();
  EXPECT_EQ(storedEntries(), BookRows{});
  EXPECT_EQ(storedCounts(), BookRows{});
  EXPECT_EQ(used(), "1");
  EXPECT_EQ(total(), "50");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(transcript(), "AT+CPBS?\r" + GetParam().reply);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UnreadableCounts,
    ::testing::Values(CountsRow{"AUsedCountOfFourDigits", information("+CPBS: \"SM\",1000,2000")},
                      CountsRow{"AnotherMemory", information("+CPBS: \"ME\",1,100")},
                      CountsRow{"NoCountsAtAll", kOk}),
    RowName());

struct UsedRow {
  std::string name;
  std::string used;
};

class UnreadableUsedCount : public DownloadFailure,
                            public ::testing::WithParamInterface<UsedRow> {};

TEST_P(UnreadableUsedCount, EndsTheDownloadAfterTheStoringOfTheCounts) {
  loadOldBook();
  downloadBehind(information("+CPBS: \"SM\"," + GetParam().used + ",100"));
  expectSilentEnd();
  EXPECT_EQ(storedEntries(), BookRows{});
  EXPECT_EQ(storedCounts(), (BookRows{{"100", GetParam().used}}));
  EXPECT_EQ(used(), GetParam().used);
  EXPECT_EQ(total(), "100");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(Rows, UnreadableUsedCount,
                         ::testing::Values(UsedRow{"Nothing", ""}, UsedRow{"AWord", "all"}),
                         RowName());

struct EntryRow {
  std::string name;
  std::string number;
  std::string entryName;
};

class UnreadableEntry : public DownloadFailure, public ::testing::WithParamInterface<EntryRow> {};

TEST_P(UnreadableEntry, EndsTheDownloadAndKeepsTheEntriesBeforeIt) {
  loadOldBook();
  answerEntry(1, "0146290801", "One");
  answerEntry(2, GetParam().number, GetParam().entryName);
  answerEntry(3, "0146290803", "Three");
  downloadBehind(information("+CPBS: \"SM\",3,100"));
  expectSilentEnd();
  EXPECT_EQ(sent(), (Texts{"AT+CPBR=1\r", "AT+CPBR=2\r"}));
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "0146290801", "One"}}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "3"}}));
  EXPECT_EQ(rows().back(), "1  0146290801          One");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UnreadableEntry,
    ::testing::Values(EntryRow{"ANameOfFourteenCharacters", "0146290802", "Fourteen chars"},
                      EntryRow{"NumberAndNameOf27Characters", "12345678901234", "Thirteen char"},
                      EntryRow{"ANumberOf21Characters", "123456789012345678901", "Two"}),
    RowName());

TEST_F(DownloadFailure, NumberAndNameOf26CharactersFit) {
  answerCounts("1,100");
  answerEntry(1, "1234567890123", "Thirteen char");
  download();
  EXPECT_EQ(rows(), Texts{"1  1234567890123       Thirteen char"});
}

TEST_F(DownloadFailure, ANumberOfTwentyCharactersFits) {
  answerCounts("1,100");
  answerEntry(1, "12345678901234567890", "Six666");
  download();
  EXPECT_EQ(rows(), Texts{"1  12345678901234567890Six666"});
}

TEST_F(DownloadFailure, ANumberOfOneOrTwoDigitsWithAShortTailEndsTheDownload) {
  loadOldBook();
  // The piece that is looked at ends before the name does.
  for (const char* number : {"1", "12"}) {
    answerEntry(1, number, "Al");
    downloadBehind(information("+CPBS: \"SM\",1,100"));
    expectSilentEnd();
    EXPECT_EQ(storedEntries(), BookRows{});
    clearTranscript();
  }
}

TEST_F(DownloadFailure, AMissingFileEndsItBeforeAnything) {
  loadOldBook();
  removeBook();
  downloadBehind(information("+CPBS: \"SM\",1,100"));
  expectSilentEnd();
  EXPECT_EQ(sent(), Texts{});
  EXPECT_FALSE(std::filesystem::exists(bookFile()));
  EXPECT_EQ(transcript(), "AT+CPBS?\r" + information("+CPBS: \"SM\",1,100"));
}

TEST_F(DownloadFailure, AMissingTableOfCountsEndsItAfterTheEmptyingOfTheEntries) {
  loadOldBook();
  SqliteEngine().OpenDatabase(bookFile())->Execute("drop table Details");
  downloadBehind(information("+CPBS: \"SM\",1,100"));
  expectSilentEnd();
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(storedEntries(), BookRows{});
}

}  // namespace
}  // namespace gsm
