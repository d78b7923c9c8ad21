#include <gtest/gtest.h>

#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "tests/support/phone_book_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

class DeleteEntry : public PhoneBookTest {
 protected:
  void openBook() {
    layEntries({{"1", "111", "ONE"},
                {"2", "112", "TWO"},
                {"3", "113", "THREE"},
                {"4", "114", "FOUR"},
                {"5", "115", "FIVE"}});
    layCounts("100", "5");
    openCalls();
  }
  void expectBox(const std::string& text) {
    const auto shown = machine().boxes.takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, text);
    EXPECT_EQ(shown[0].title, "GSM");
  }
  void remove(int row) {
    select(row);
    click(calls().Command3);
    settle();
  }
};

TEST_F(DeleteEntry, OfTheLastUsedLocationUpdatesTheStoredCount) {
  openBook();
  reply("AT+CPBW=5", kOk);
  leaveInTranscript("old");
  select(4);
  EXPECT_EQ(dialBox(), "115");
  click(calls().Command3);
  EXPECT_EQ(transcript(), "");
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=5\r"});
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(rows().size(), 4U);
  EXPECT_EQ(rows().back(), "4  114                 FOUR");
  EXPECT_EQ(used(), "4");
  EXPECT_EQ(storedEntries().size(), 4U);
  EXPECT_EQ(storedEntries().back(), (BookRow{"4", "114", "FOUR"}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "4"}}));
  EXPECT_EQ(dialBox(), "");
  EXPECT_EQ(calls().List1.ListIndex.peek(), -1);
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(DeleteEntry, OfAnEarlierLocationLeavesTheStoredCount) {
  openBook();
  reply("AT+CPBW=3", kOk);
  remove(2);
  EXPECT_EQ(used(), "4");
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "5"}}));
  EXPECT_EQ(
      storedEntries(),
      (BookRows{
          {"1", "111", "ONE"}, {"2", "112", "TWO"}, {"4", "114", "FOUR"}, {"5", "115", "FIVE"}}));
  inPanel([this] { calls().userClose(); });
  settle();
  openCalls();
  EXPECT_EQ(used(), "5");
}

TEST_F(DeleteEntry, InTheMiddleLetsTheNextAddWriteOverTheLastLocation) {
  openBook();
  reply("AT+CPBW=3", kOk);
  remove(2);
  sent();
  click(calls().Command2);
  panel().form4.Text3.Text = "119";
  panel().form4.Text4.Text = "new";
  click(panel().form4.Command1);
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=5,119,,\" new\"\r"});
  EXPECT_EQ(rows(), (Texts{"1  111                 ONE", "2  112                 TWO",
                           "4  114                 FOUR", "5  115                 FIVE",
                           "5  119                 NEW"}));
  EXPECT_EQ(storedEntries().back(), (BookRow{"5", "119", "NEW"}));
  EXPECT_EQ(storedEntries().size(), 5U);
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "5"}}));
  EXPECT_EQ(used(), "5");
}

struct UsedCountRow {
  std::string name;
  std::string before;
  std::string after;
};

class DeleteEntryOfABook : public DeleteEntry,
                           public ::testing::WithParamInterface<UsedCountRow> {};

TEST_P(DeleteEntryOfABook, TakesOneOffTheUsedCount) {
  layEntries({{"1", "111", "ONE"}});
  layCounts("50000", GetParam().before);
  openCalls();
  reply("AT+CPBW=1", kOk);
  remove(0);
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(used(), GetParam().after);
  EXPECT_EQ(storedEntries(), BookRows{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DeleteEntryOfABook,
    ::testing::Values(
        UsedCountRow{.name = "BeyondSixteenBits", .before = "40000", .after = "39999"},
        UsedCountRow{.name = "AtTheirEnd", .before = "32768", .after = "32767"},
        UsedCountRow{.name = "OfAHalfToTheEvenBelow", .before = "2.5", .after = "1"},
        UsedCountRow{.name = "OfAHalfToTheEvenAbove", .before = "3.5", .after = "3"},
        UsedCountRow{.name = "OfNothing", .before = "0", .after = "-1"}),
    RowName());

TEST_F(DeleteEntry, OfNoneSelectedAsksForOne) {
  openBook();
  click(calls().Command3);
  settle();
  expectBox("Select the Number To Delete In PhoneBook");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(storedEntries().size(), 5U);
}

TEST_F(DeleteEntry, LeavesNoneSelected) {
  openBook();
  reply("AT+CPBW=2", kOk);
  remove(1);
  click(calls().Command3);
  settle();
  expectBox("Select the Number To Delete In PhoneBook");
  EXPECT_EQ(rows().size(), 4U);
}

TEST_F(DeleteEntry, ThatTheModemRefusesOrDoesntAnswerChangesNothing) {
  openBook();
  reply("AT+CPBW=5", kError);
  for (int row : {4, 3}) {
    remove(row);
    expectBox("Error Occurred.Try Again");
  }
  EXPECT_EQ(sent(), (Texts{"AT+CPBW=5\r", "AT+CPBW=4\r"}));
  EXPECT_EQ(rows().size(), 5U);
  EXPECT_EQ(storedEntries().size(), 5U);
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "5"}}));
  EXPECT_EQ(used(), "5");
  EXPECT_EQ(callStatus(), "");
}

TEST_F(DeleteEntry, WhoseReplyARingClearsAwayIsTakenForRefused) {
  openBook();
  reply("AT+CPBW=5", std::string(kOk) + unsolicited("RING"));
  remove(4);
  expectBox("Error Occurred.Try Again");
  EXPECT_EQ(rows().size(), 5U);
}

TEST_F(DeleteEntry, TakesTheFirstOfTwoRowsWithItsIndex) {
  layEntries({{"1", "111", "ONE"}, {"2", "112", "TWO"}, {"2", "119", "NEW"}});
  layCounts("100", "2");
  openCalls();
  reply("AT+CPBW=2", kOk);
  remove(2);
  EXPECT_EQ(rows(), (Texts{"1  111                 ONE", "2  112                 TWO"}));
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "111", "ONE"}, {"2", "119", "NEW"}}));
}

TEST_F(DeleteEntry, WithoutItsRowInTheMirrorStillCounts) {
  openBook();
  SqliteEngine().OpenDatabase(bookFile())->Execute("delete from data");
  reply("AT+CPBW=5", kOk);
  remove(4);
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(used(), "4");
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "4"}}));
  EXPECT_EQ(dialBox(), "");
}

TEST_F(DeleteEntry, WithoutItsTableEndsAfterTheWindowsCounts) {
  openBook();
  SqliteEngine().OpenDatabase(bookFile())->Execute("drop table DATA");
  reply("AT+CPBW=5", kOk);
  remove(4);
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(rows().size(), 4U);
  EXPECT_EQ(used(), "4");
  EXPECT_EQ(dialBox(), "115");
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "5"}}));
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

TEST_F(DeleteEntry, WithACommandInItsLocationSendsNoSecondOne) {
  struct LocationRow {
    std::string location;
    std::string command;
  };
  const std::vector<LocationRow> locations = {
      {.location = "2\rATD112;\r", .command = "AT+CPBW=2\r"},
      {.location = "2\nATD112;\r", .command = "AT+CPBW=2\r"},
      {.location = std::string("2\x1A\x1B\0\x7F", 5) + "3", .command = "AT+CPBW=23\r"},
      {.location = "\rATD112;", .command = "AT+CPBW=\r"}};
  Texts commands;
  for (const LocationRow& each : locations) {
    layEntries({{each.location, "112", "TWO"}});
    commands.push_back(each.command);
    reply(each.command.substr(0, each.command.size() - 1), kOk);
  }
  layCounts("100", "4");
  openCalls();
  for (std::size_t left = locations.size(); left > 0; --left) remove(0);
  EXPECT_EQ(sent(), commands);
  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(storedEntries(), BookRows{});
}

}  // namespace
}  // namespace gsm
