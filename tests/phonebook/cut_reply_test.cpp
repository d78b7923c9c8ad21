#include <gtest/gtest.h>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "tests/phonebook/download_test.h"

namespace gsm {
namespace {

const std::string kEntry = information(entryLine(1, "0146290801", "Alice"));
const std::string kEntryWithEcho = "AT+CPBR=1\r" + kEntry;
const std::string kCounts = information("+CPBS: \"SM\",2,100");
const std::string kCountsWithEcho = "AT+CPBS?\r" + kCounts;

const BookRow kOne{"1", "0146290801", "Alice"};
const BookRow kTwo{"2", "0146290802", "Bob"};

// Replies of which the line loses or delays everything after some byte.
class CutReply : public DownloadTest, public ::testing::WithParamInterface<int> {
 protected:
  std::size_t cut() const { return static_cast<std::size_t>(GetParam()); }

  void answerInPieces(const std::string& command, const std::string& reply, double restAfter) {
    std::vector<ModemScript::Chunk> chunks;
    if (cut() > 0) chunks.push_back({ModemScript::kDefaultDelay, reply.substr(0, cut())});
    if (restAfter > 0) chunks.push_back({fromSeconds(restAfter), reply.substr(cut())});
    world().modem.add({.write = command + "\r", .replies = {chunks}, .echo = false});
  }
  void answerEntries() {
    answerEntry(1, "0146290801", "Alice");
    answerEntry(2, "0146290802", "Bob");
  }

  /// The list and the table tell the same, and nothing is stored by halves.
  void expectWholeRows() {
    Texts listed;
    for (const BookRow& entry : storedEntries()) {
      EXPECT_TRUE(entry == kOne || entry == kTwo) << entry[0] << '|' << entry[1] << '|' << entry[2];
      listed.push_back(entry[0] + "  " + entry[1] + std::string(20 - entry[1].size(), ' ') +
                       entry[2]);
    }
    EXPECT_EQ(rows(), listed);
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
    EXPECT_EQ(waiting(), 0);
  }
  /// The modem is well again, and so is the next download.
  void expectReloadHeals() {
    answerCounts("2,100");
    answerEntries();
    clearTranscript();
    click(calls().Command5);
    settle();
    EXPECT_EQ(storedEntries(), (BookRows{kOne, kTwo}));
    EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
    EXPECT_EQ(rows().size(), 2U);
  }
};

class CutCounts : public CutReply {
 protected:
  void SetUp() override {
    CutReply::SetUp();
    answerEntries();
  }
  bool holdsTheResult() const { return cut() >= kCountsWithEcho.find("OK") + 2; }
};

TEST_P(CutCounts, BeginTheDownloadOnlyWithTheirResult) {
  answerInPieces("AT+CPBS?", kCountsWithEcho, 0);
  inPanel([this] { calls().Show(); });
  settle();
  EXPECT_EQ(storedEntries(), holdsTheResult() ? (BookRows{kOne, kTwo}) : BookRows{});
  EXPECT_EQ(storedCounts(), holdsTheResult() ? (BookRows{{"100", "2"}}) : BookRows{});
  EXPECT_EQ(transcript(), holdsTheResult() ? "" : kCountsWithEcho.substr(0, cut()));
  expectWholeRows();
  expectReloadHeals();
}

TEST_P(CutCounts, AreWholeAgainWhenTheRestFollowsShortly) {
  answerInPieces("AT+CPBS?", kCountsWithEcho, 0.3);
  inPanel([this] { calls().Show(); });
  settle();
  EXPECT_EQ(storedEntries(), (BookRows{kOne, kTwo}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
  expectWholeRows();
}

TEST_P(CutCounts, AreWholeAgainWhenTheRestComesLongAfter) {
  answerInPieces("AT+CPBS?", kCountsWithEcho, 20);
  inPanel([this] { calls().Show(); });
  settle();
  EXPECT_EQ(storedEntries(), (BookRows{kOne, kTwo}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
  expectWholeRows();
}

INSTANTIATE_TEST_SUITE_P(AtEachByte, CutCounts,
                         ::testing::Range(0, static_cast<int>(kCountsWithEcho.size())));

class CutEntry : public CutReply {
 protected:
  void SetUp() override {
    CutReply::SetUp();
    answerCounts("2,100");
    answerEntries();
  }
  // No comma: an empty location.
  bool isSkipped() const { return cut() <= kEntryWithEcho.find(','); }
  // The piece in which the name is looked for ends one character short of what there is.
  bool isRead() const { return cut() > kEntryWithEcho.rfind('"') + 1; }
};

TEST_P(CutEntry, IsSkippedOrEndsTheDownloadOrIsWhole) {
  answerInPieces("AT+CPBR=1", kEntryWithEcho, 0);
  inPanel([this] { calls().Show(); });
  settle();
  const BookRows read = isRead() ? BookRows{kOne, kTwo} : BookRows{};
  EXPECT_EQ(storedEntries(), isSkipped() ? BookRows{kTwo} : read);
  EXPECT_EQ(sent().back(), isSkipped() || isRead() ? "AT+CPBR=2\r" : "AT+CPBR=1\r");
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
  EXPECT_EQ(transcript(), isSkipped() || isRead() ? "" : kEntryWithEcho.substr(0, cut()));
  expectWholeRows();
  expectReloadHeals();
}

TEST_P(CutEntry, IsWholeAgainWhenTheRestFollowsShortly) {
  answerInPieces("AT+CPBR=1", kEntryWithEcho, 0.4);
  inPanel([this] { calls().Show(); });
  settle();
  EXPECT_EQ(storedEntries(), (BookRows{kOne, kTwo}));
  expectWholeRows();
}

// The rest of one reply runs into the wait for the next, and before its reply.
TEST_P(CutEntry, WhoseRestComesLateLeavesListAndTableAlike) {
  answerInPieces("AT+CPBR=1", kEntryWithEcho, 2.07);
  inPanel([this] { calls().Show(); });
  settle();
  Texts listed;
  for (const BookRow& entry : storedEntries()) {
    listed.push_back(entry[0] + "  " + entry[1] + std::string(20 - entry[1].size(), ' ') +
                     entry[2]);
  }
  EXPECT_EQ(rows(), listed);
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_EQ(waiting(), 0);
  expectReloadHeals();
}

INSTANTIATE_TEST_SUITE_P(AtEachByte, CutEntry,
                         ::testing::Range(0, static_cast<int>(kEntryWithEcho.size())));

// A modem that goes away while its book is read.
class DyingModem : public DownloadTest {
 protected:
  void SetUp() override {
    DownloadTest::SetUp();
    answerCounts("5,100");
    answerEntry(1, "0146290801", "Alice");
    answerEntry(2, "0146290802", "Bob");
  }
  void expectTwoEntries() {
    EXPECT_EQ(storedEntries(), (BookRows{kOne, kTwo}));
    EXPECT_EQ(rows(), (Texts{"1  0146290801          Alice", "2  0146290802          Bob"}));
    EXPECT_EQ(storedCounts(), (BookRows{{"100", "5"}}));
    EXPECT_EQ(used(), "5");
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
    EXPECT_EQ(waiting(), 0);
  }
  // The old book's window, hidden, so that what shows it is seen.
  void reload() {
    layEntries({{"1", "112", "OLD"}});
    openCalls();
    click(calls().Command5);
    inPanel([this] { calls().Hide(); });
    run(0);
  }
};

TEST_F(DyingModem, ThatFallsSilentHasEmptyLocationsToTheEnd) {
  reload();
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CPBS?\r", "AT+CPBR=1\r", "AT+CPBR=2\r", "AT+CPBR=3\r", "AT+CPBR=4\r",
                           "AT+CPBR=5\r"}));
  expectTwoEntries();
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(callStatus(), "");
}

TEST_F(DyingModem, WhosePortIsGoneEndsTheDownloadAtTheNextWrite) {
  reload();
  run(5);
  ASSERT_EQ(sent().back(), "AT+CPBR=2\r");
  machine().ports.set({});
  settle();
  EXPECT_EQ(sent(), Texts{});
  expectTwoEntries();
  EXPECT_FALSE(calls().Visible.peek());
  EXPECT_EQ(statusLine(), kSaving);
  EXPECT_EQ(callStatus(), "");
}

TEST_F(DyingModem, WhosePortIsClosedEndsTheDownloadAtTheNextWrite) {
  reload();
  run(5);
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  settle();
  expectTwoEntries();
  EXPECT_FALSE(calls().Visible.peek());
  EXPECT_EQ(statusLine(), kSaving);
}

TEST_F(DyingModem, LeavesABookThatCountsAsWholeAtTheNextOpening) {
  reload();
  settle();
  inPanel([this] { calls().userClose(); });
  settle();
  openCalls();
  expectTwoEntries();
  EXPECT_EQ(sent(), Texts{});
}

}  // namespace
}  // namespace gsm
