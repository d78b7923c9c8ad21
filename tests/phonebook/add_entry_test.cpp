#include <gtest/gtest.h>

#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "tests/support/phone_book_test.h"

namespace gsm {
namespace {

class AddEntry : public PhoneBookTest {
 protected:
  void openAdd(const std::string& total = "100", const std::string& used = "1") {
    layEntries({{"1", "112", "HELP"}});
    layCounts(total, used);
    openCalls();
    click(calls().Command2);
    ASSERT_TRUE(form().Visible.peek());
    ASSERT_FALSE(calls().Visible.peek());
  }
  void fill(const std::string& country, const std::string& area, const std::string& number,
            const std::string& name) {
    form().Text1.Text = country;
    form().Text2.Text = area;
    form().Text3.Text = number;
    form().Text4.Text = name;
  }
  void ok() {
    click(form().Command1);
    settle();
  }
  void expectBox(const std::string& text) {
    const auto shown = machine().boxes.takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, text);
    EXPECT_EQ(shown[0].title, "GSM");
  }
  void expectBackAtCalls() {
    EXPECT_TRUE(calls().Visible.peek());
    EXPECT_FALSE(form().Visible.peek());
  }
  void expectToGoBackOnceTheBoxIsAnswered() {
    machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
    click(form().Command1);
    run(5);
    EXPECT_TRUE(form().Visible.peek());
    EXPECT_FALSE(calls().Visible.peek());
    machine().boxes.answerTop();
    settle();
    expectBackAtCalls();
  }
  void expectNothingAdded() {
    EXPECT_EQ(rows(), Texts{"1  112                 HELP"});
    EXPECT_EQ(storedEntries(), (BookRows{{"1", "112", "HELP"}}));
  }

  Form4& form() { return panel().form4; }
};

TEST_F(AddEntry, GoesToTheModemTheListTheTablesAndTheCounts) {
  openAdd();
  fill("+33", "14", "6290800", "Alice b");
  reply("AT+CPBW=2,+33146290800,,\" Alice b\"", kOk);
  leaveInTranscript("old");
  click(form().Command1);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{"AT+CPBW=2,+33146290800,,\" Alice b\"\r"});
  settle();
  EXPECT_EQ(rows(), (Texts{"1  112                 HELP", "2  +33146290800        ALICE B"}));
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "112", "HELP"}, {"2", "+33146290800", "ALICE B"}}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
  EXPECT_EQ(used(), "2");
  EXPECT_EQ(total(), "100");
  EXPECT_EQ(callStatus(), "New Entry  +33146290800");
  expectBackAtCalls();
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(AddEntry, WithoutCodesSendsTheNumberAlone) {
  openAdd();
  fill("", "", "0146290800", "Al");
  ok();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=2,0146290800,,\" Al\"\r"});
}

TEST_F(AddEntry, CountsAsStoredEvenWhenTheModemRefuses) {
  openAdd();
  fill("", "", "113", "Al");
  reply("AT+CPBW=2,113,,\" Al\"", kError);
  ok();
  EXPECT_EQ(rows().back(), "2  113                 AL");
  EXPECT_EQ(used(), "2");
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(AddEntry, CountsAsStoredEvenWhenTheModemIsSilent) {
  openAdd();
  fill("", "", "113", "Al");
  ok();
  EXPECT_EQ(storedEntries().back(), (BookRow{"2", "113", "AL"}));
  expectBackAtCalls();
}

TEST_F(AddEntry, WithoutANumberOrANameIsRefused) {
  openAdd();
  fill("+33", "1", "", "Alice");
  ok();
  expectBox("Please Enter Valid Number/Name");
  expectBackAtCalls();
  click(calls().Command2);
  fill("+33", "1", "113", "");
  ok();
  expectBox("Please Enter Valid Number/Name");
  expectBackAtCalls();
  EXPECT_EQ(sent(), Texts{});
  expectNothingAdded();
}

TEST_F(AddEntry, GoesBackOnlyWhenTheBoxIsAnswered) {
  openAdd();
  expectToGoBackOnceTheBoxIsAnswered();
}

TEST_F(AddEntry, ToAFullBookGoesBackOnlyWhenTheBoxIsAnswered) {
  openAdd("1", "1");
  fill("", "", "113", "Al");
  expectToGoBackOnceTheBoxIsAnswered();
}

TEST_F(AddEntry, BeyondAFullBookIsRefusedTheSame) {
  openAdd("1", "5");
  fill("", "", "113", "Al");
  ok();
  expectBox("Address Book full");
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(AddEntry, LooksAtTheTextsBeforeTheCounts) {
  openAdd("", "");
  fill("", "", "113", "");
  ok();
  expectBox("Please Enter Valid Number/Name");
}

TEST_F(AddEntry, ToAFullBookIsRefusedWithoutTheModem) {
  openAdd("1", "1");
  fill("", "", "113", "Al");
  ok();
  expectBox("Address Book full");
  expectBackAtCalls();
  EXPECT_EQ(sent(), Texts{});
  expectNothingAdded();
}

TEST_F(AddEntry, ToTheLastLocationIsTaken) {
  openAdd("2", "1");
  fill("", "", "113", "Al");
  ok();
  EXPECT_EQ(used(), "2");
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(AddEntry, ComparesTheCountsAsNumbers) {
  openAdd("10\r", "9");
  fill("", "", "113", "Al");
  ok();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=10,113,,\" Al\"\r"});
  EXPECT_EQ(used(), "10");
}

TEST_F(AddEntry, CountsBeyondSixteenBits) {
  openAdd("50000", "40000");
  fill("", "", "113", "Al");
  ok();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=40001,113,,\" Al\"\r"});
  EXPECT_EQ(rows().back(), "40001  113                 AL");
  EXPECT_EQ(storedEntries().back(), (BookRow{"40001", "113", "AL"}));
  EXPECT_EQ(storedCounts(), (BookRows{{"50000", "40001"}}));
  EXPECT_EQ(used(), "40001");
}

TEST_F(AddEntry, ComparesCountsBeyondSixteenBits) {
  openAdd("40000", "40000");
  fill("", "", "113", "Al");
  ok();
  expectBox("Address Book full");
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(AddEntry, RoundsCountsThatAreNotWholeHalfToEven) {
  openAdd("100", "2.5");
  fill("", "", "113", "Al");
  ok();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=3,113,,\" Al\"\r"});
  EXPECT_EQ(used(), "3");
  // The stored count is looked for as it was rounded, and isn't found.
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2.5"}}));
}

TEST_F(AddEntry, RoundsATotalThatIsNotWholeHalfToEven) {
  openAdd("2.5", "2");
  fill("", "", "113", "Al");
  ok();
  expectBox("Address Book full");
}

TEST_F(AddEntry, WithoutCountsDoesNothing) {
  layEntries({{"1", "112", "HELP"}});
  openCalls();
  click(calls().Command2);
  fill("", "", "113", "Al");
  ok();
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_FALSE(calls().Visible.peek());
  expectNothingAdded();
  EXPECT_FALSE(ended());
}

TEST_F(AddEntry, OfMoreThanTwentyCharactersReachesTheModemOnly) {
  openAdd();
  fill("+333", "14", "629080012345678", "Al");
  ok();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=2,+33314629080012345678,,\" Al\"\r"});
  expectNothingAdded();
  EXPECT_EQ(used(), "1");
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "1"}}));
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_FALSE(calls().Visible.peek());
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(AddEntry, OfTwentyCharactersFits) {
  openAdd();
  fill("+333", "1", "629080012345678", "Al");
  ok();
  EXPECT_EQ(rows().back(), "2  +3331629080012345678AL");
}

TEST_F(AddEntry, LeavesStoredCountsThatDontAgreeAlone) {
  openAdd("100", "1");
  calls().Text2.Text = "4";
  fill("", "", "113", "Al");
  ok();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=5,113,,\" Al\"\r"});
  EXPECT_EQ(used(), "5");
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "1"}}));
}

TEST_F(AddEntry, FindsTheTextsOfThePreviousOneStillThere) {
  openAdd();
  fill("+33", "14", "6290800", "Alice");
  ok();
  click(calls().Command2);
  EXPECT_EQ(form().Text1.Text.peek(), "+33");
  EXPECT_EQ(form().Text2.Text.peek(), "14");
  EXPECT_EQ(form().Text3.Text.peek(), "6290800");
  EXPECT_EQ(form().Text4.Text.peek(), "Alice");
}

TEST_F(AddEntry, FindsItsBoxesEmptyOnceTheWindowWasClosed) {
  openAdd();
  fill("+33", "14", "6290800", "Alice");
  inPanel([this] { form().userClose(); });
  settle();
  expectBackAtCalls();
  click(calls().Command2);
  EXPECT_EQ(form().Text1.Text.peek() + form().Text2.Text.peek() + form().Text3.Text.peek() +
                form().Text4.Text.peek(),
            "");
}

TEST_F(AddEntry, CancelGoesBackWithoutAddingAndKeepsTheTexts) {
  openAdd();
  fill("", "", "113", "Al");
  click(form().Command2);
  expectBackAtCalls();
  EXPECT_EQ(sent(), Texts{});
  expectNothingAdded();
  click(calls().Command2);
  EXPECT_EQ(form().Text3.Text.peek(), "113");
}

}  // namespace
}  // namespace gsm
