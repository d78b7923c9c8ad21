#include <gtest/gtest.h>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "tests/support/phone_book_test.h"

namespace gsm {
namespace {

const std::string kOvertakingRing = unsolicited("RING") + unsolicited("+CLIP: \"0299999999\",129");

// What the user and the network do while an entry is on its way to the modem.
class OvertakenEntry : public PhoneBookTest {
 protected:
  void SetUp() override {
    PhoneBookTest::SetUp();
    layEntries({{"1", "111", "ONE"}, {"2", "112", "TWO"}, {"3", "113", "THREE"}});
    layCounts("100", "3");
    openCalls();
  }
  BookRows withoutThird() { return {{"1", "111", "ONE"}, {"2", "112", "TWO"}}; }
};

class OvertakenDelete : public OvertakenEntry {
 protected:
  void beginDelete(int row) {
    select(row);
    click(calls().Command3);
    run(1);
    ASSERT_GT(waiting(), 0);
  }
};

TEST_F(OvertakenDelete, RemovesTheRowThatIsSelectedThenAndTheEntryThatWasSent) {
  reply("AT+CPBW=3", kOk, std::chrono::milliseconds(1200));
  select(2);
  click(calls().Command3);
  run(1);
  select(0);
  EXPECT_EQ(dialBox(), "111");
  settle();
  EXPECT_EQ(rows(), (Texts{"2  112                 TWO", "3  113                 THREE"}));
  EXPECT_EQ(storedEntries(), withoutThird());
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
  EXPECT_EQ(used(), "2");
  EXPECT_EQ(dialBox(), "");
}

TEST_F(OvertakenDelete, ByASecondClickRemovesOneRowAndCountsOnce) {
  reply("AT+CPBW=3", kOk);
  select(2);
  click(calls().Command3);
  run(0.5);
  click(calls().Command3);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CPBW=3\r", "AT+CPBW=3\r"}));
  EXPECT_EQ(rows(), (Texts{"1  111                 ONE", "2  112                 TWO"}));
  EXPECT_EQ(storedEntries(), withoutThird());
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
  EXPECT_EQ(used(), "2");
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(OvertakenDelete, ByARingIsTakenForRefusedThoughThePromptComesUp) {
  reply("AT+CPBW=3", kOk + kOvertakingRing);
  select(2);
  click(calls().Command3);
  settle();
  EXPECT_EQ(boxes(), Texts{"Error Occurred.Try Again"});
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(caller(), "Call Received-  0299999999");
  EXPECT_EQ(rows().size(), 3U);
  EXPECT_EQ(storedEntries().size(), 3U);
  EXPECT_EQ(used(), "3");
  EXPECT_EQ(dialBox(), "113");
}

TEST_F(OvertakenDelete, ByAReloadThatClearsItsReplyIsTakenForRefused) {
  reply("AT+CPBW=3", kOk);
  select(2);
  click(calls().Command3);
  run(0.5);
  click(calls().Command5);
  settle();
  EXPECT_EQ(boxes(), Texts{"Error Occurred.Try Again"});
  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(storedEntries().size(), 3U);
}

TEST_F(OvertakenDelete, ByTheClosingOfItsWindowEndsWithoutAnySelection) {
  reply("AT+CPBW=3", kOk);
  beginDelete(2);
  inPanel([this] { calls().userClose(); });
  settle();
  EXPECT_TRUE(calls().isLoaded());
  EXPECT_FALSE(calls().Visible.peek());
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(rows().size(), 3U);
  EXPECT_EQ(storedEntries().size(), 3U);
  EXPECT_EQ(used(), "3");
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

TEST_F(OvertakenDelete, WithoutACountEndsAfterTheRow) {
  calls().Text2.Text = "";
  reply("AT+CPBW=3", kOk);
  select(2);
  click(calls().Command3);
  settle();
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(rows().size(), 2U);
  EXPECT_EQ(used(), "");
  EXPECT_EQ(storedEntries().size(), 3U);
  EXPECT_EQ(dialBox(), "113");
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(OvertakenDelete, TakesAnOlderResultForItsOwn) {
  beginDelete(2);
  receive(kOk);
  settle();
  EXPECT_EQ(callStatus(), "Number Deleted");
  EXPECT_EQ(storedEntries(), withoutThird());
}

class OvertakenAdd : public OvertakenEntry {
 protected:
  void SetUp() override {
    OvertakenEntry::SetUp();
    click(calls().Command2);
    form().Text3.Text = "119";
    form().Text4.Text = "new";
  }
  void beginAdd() {
    click(form().Command1);
    run(1);
    ASSERT_GT(waiting(), 0);
  }
  void expectStored() {
    EXPECT_EQ(rows().back(), kNewRow);
    EXPECT_EQ(storedEntries().back(), kNew);
    EXPECT_EQ(storedCounts(), (BookRows{{"100", "4"}}));
    EXPECT_TRUE(calls().Visible.peek());
    EXPECT_FALSE(form().Visible.peek());
    EXPECT_EQ(boxes(), Texts{});
  }

  Form4& form() { return panel().form4; }
  static inline const BookRow kNew{"4", "119", "NEW"};
  static inline const std::string kNewRow = "4  119                 NEW";
};

TEST_F(OvertakenAdd, ByARingThatClearsItsReplyIsStoredAllTheSame) {
  reply("AT+CPBW=4,119,,\" new\"", kOk + unsolicited("RING"));
  click(form().Command1);
  settle();
  EXPECT_TRUE(polls());
  EXPECT_EQ(transcript(), "");
  expectStored();
}

// The commas of the echoed entry stand before that of the caller's number.
TEST_F(OvertakenAdd, ByACallerIsStoredWithoutAPrompt) {
  reply("AT+CPBW=4,119,,\" new\"", kOk + kOvertakingRing);
  click(form().Command1);
  settle();
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(polls());
  expectStored();
}

TEST_F(OvertakenAdd, BySomeTypingSendsTheOldNameAndStoresTheNewOne) {
  beginAdd();
  inPanel([this] {
    form().Text3.userType("5");
    form().Text4.userType("er");
  });
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=4,119,,\" new\"\r"});
  EXPECT_EQ(storedEntries().back(), (BookRow{"4", "119", "NEWER"}));
}

TEST_F(OvertakenAdd, ByASecondClickAddsTwoRowsAtOneLocation) {
  click(form().Command1);
  run(0.5);
  click(form().Command1);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CPBW=4,119,,\" new\"\r", "AT+CPBW=4,119,,\" new\"\r"}));
  EXPECT_EQ(rows().size(), 5U);
  EXPECT_EQ(rows()[3] + "|" + rows()[4], kNewRow + "|" + kNewRow);
  EXPECT_EQ(storedEntries().size(), 5U);
  EXPECT_EQ(used(), "4");
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "4"}}));
}

TEST_F(OvertakenAdd, ByCancelIsStoredAllTheSame) {
  beginAdd();
  click(form().Command2);
  EXPECT_TRUE(calls().Visible.peek());
  settle();
  EXPECT_EQ(storedEntries().back(), kNew);
  EXPECT_EQ(callStatus(), "New Entry  119");
}

TEST_F(OvertakenAdd, ByTheClosingOfItsWindowIsStoredWithoutAName) {
  beginAdd();
  inPanel([this] { form().userClose(); });
  run(0);
  EXPECT_FALSE(form().isLoaded());
  settle();
  EXPECT_EQ(rows().back(), "4  119                 ");
  EXPECT_EQ(storedEntries().back(), (BookRow{"4", "119", ""}));
  EXPECT_FALSE(form().Visible.peek());
}

TEST_F(OvertakenAdd, OnAClosedPortDoesNothing) {
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  run(0);
  click(form().Command1);
  settle();
  EXPECT_EQ(rows().size(), 3U);
  EXPECT_EQ(storedEntries().size(), 3U);
  EXPECT_EQ(used(), "3");
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

TEST_F(OvertakenDelete, OnAClosedPortDoesNothing) {
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  run(0);
  select(2);
  click(calls().Command3);
  settle();
  EXPECT_EQ(rows().size(), 3U);
  EXPECT_EQ(storedEntries().size(), 3U);
  EXPECT_EQ(used(), "3");
  EXPECT_EQ(callStatus(), "");
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

TEST_F(OvertakenEntry, AReloadOnAClosedPortEmptiesTheListOnly) {
  leaveInTranscript("old");
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  run(0);
  click(calls().Command5);
  settle();
  EXPECT_EQ(rows(), Texts{});
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(callStatus(), "");
  EXPECT_EQ(storedEntries().size(), 3U);
  EXPECT_FALSE(ended());
}

}  // namespace
}  // namespace gsm
