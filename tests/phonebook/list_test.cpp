#include <gtest/gtest.h>

#include "panel/form1.h"
#include "panel/form7.h"
#include "phonebook/form3.h"
#include "tests/support/phone_book_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

// The call window's list of the mirror.
class BookList : public PhoneBookTest {};

TEST_F(BookList, IsBuiltFromTheMirrorWithoutAskingTheModem) {
  layEntries({{"2", "0146290800", "ALICE"}, {"1", "12345678901234567890", "BOB"}, {"12", "5", ""}});
  layCounts("100", "3");
  inPanel([this] { calls().Show(); });
  settle();
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(rows(), (Texts{"2  0146290800          ALICE", "1  12345678901234567890BOB",
                           "12  5                   "}));
  EXPECT_EQ(used(), "3");
  EXPECT_EQ(total(), "100");
}

TEST_F(BookList, WithoutCountsLeavesThemEmpty) {
  layEntries({{"1", "112", "HELP"}});
  openCalls();
  EXPECT_EQ(rows().size(), 1U);
  EXPECT_EQ(used() + total(), "");
}

TEST_F(BookList, OfAnEmptyBookAsksForTheCounts) {
  leaveInTranscript("old");
  inPanel([this] { calls().Show(); });
  run(0);
  EXPECT_EQ(sent(), Texts{"AT+CPBS?\r"});
  EXPECT_EQ(transcript(), "");
  settle();
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(rows(), Texts{});
}

TEST_F(BookList, TakesTheFirstOfSeveralCounts) {
  layEntries({{"1", "112", "HELP"}});
  layCounts("100", "3");
  layCounts("200", "4");
  openCalls();
  EXPECT_EQ(used() + "/" + total(), "3/100");
}

TEST_F(BookList, IsFoundInAFileOfTheNameInAnotherCase) {
  layEntries({{"1", "112", "HELP"}});
  std::filesystem::rename(bookFile(), folder() / "PHONEBOOK.Mdb");
  openCalls();
  EXPECT_EQ(rows(), Texts{"1  112                 HELP"});
}

TEST_F(BookList, OfAnEmptyBookOnAClosedPortOpensEmpty) {
  layCounts("100", "0");
  inPanel([this] {
    form1().MSComm1.PortOpen = false;
    calls().Show();
  });
  settle();
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(used() + total(), "");
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

TEST_F(BookList, IsBuiltAnewWhenTheWindowIsOpenedAgain) {
  layEntries({{"1", "112", "HELP"}});
  openCalls();
  layEntries({{"2", "113", "MORE"}});
  inPanel([this] { calls().userClose(); });
  settle();
  openCalls();
  EXPECT_EQ(rows(), (Texts{"1  112                 HELP", "2  113                 MORE"}));
}

TEST_F(BookList, WithoutAFileIsEmptyAndTheWindowOpens) {
  removeBook();
  inPanel([this] { calls().Show(); });
  settle();
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
  EXPECT_FALSE(std::filesystem::exists(bookFile()));
}

TEST_F(BookList, WithATooLongNumberEndsAtItsRow) {
  layEntries({{"1", "112", "HELP"}, {"2", "123456789012345678901", "LONG"}, {"3", "113", "MORE"}});
  layCounts("100", "3");
  openCalls();
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(rows(), Texts{"1  112                 HELP"});
  EXPECT_EQ(used(), "");
}

struct PickRow {
  std::string name;
  BookRow entry;
  std::string number;
};

class Pick : public BookList, public ::testing::WithParamInterface<PickRow> {};

TEST_P(Pick, CopiesTheNumberToTheDialBox) {
  layEntries({GetParam().entry});
  openCalls();
  calls().Text1.Text = "999";
  select(0);
  EXPECT_EQ(dialBox(), GetParam().number);
  EXPECT_EQ(sent(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Pick,
    ::testing::Values(
        PickRow{"OfANamedEntry", {"1", "0146290800", "ALICE"}, "0146290800"},
        PickRow{"OfALongIndex", {"123", "0146290800", "ALICE"}, "0146290800"},
        PickRow{"OfANameWithABlank", {"1", "112", "JANE DOE"}, "112"},
        PickRow{"OfANumberWithACommandBehindIt", {"1", "1\rATD112;\r", "ALICE"}, ""},
        PickRow{"OfANumberWithACommandBehindABlank", {"1", "1 \rATD112;\r", "ALICE"}, ""},
        PickRow{"OfANumberWithALineFeed", {"1", "1\n2", "ALICE"}, ""},
        PickRow{"OfANumberWithADeleteCharacter", {"1", "1\x7F", "ALICE"}, ""},
        PickRow{"OfALocationWithACommandBehindIt", {"1\rATD112;", "0146290800", "ALICE"}, ""},
        PickRow{"OfALocationWithACommandBehindABlank", {"1 \rATD112;\r", "0146290800", "A"}, ""},
        PickRow{"OfANameWithALineBreak", {"1", "0146290800", "ALICE\r\nATD112;"}, "0146290800"},
        PickRow{"OfNoName", {"1", "0146290800", ""}, ""},
        PickRow{"OfTwentyDigitsThatTouchTheName", {"1", "12345678901234567890", "BOB"}, ""}),
    RowName());

TEST_F(BookList, TakesTheStatusWindowAlongWhenItsWindowIsMinimised) {
  layEntries({{"1", "112", "HELP"}});
  openCalls();
  inPanel([this] { calls().userState(WindowState::minimised); });
  run(0);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::minimised);
  inPanel([this] { calls().WindowState = WindowState::normal; });
  run(0);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::normal);
}

}  // namespace
}  // namespace gsm
