#include <gtest/gtest.h>

#include "tests/module/contexts_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

class ContextsChange : public ContextsTest {
 protected:
  void SetUp() override {
    ContextsTest::SetUp();
    load(information(kInternet));
  }
  void fillIn(int number, int type, const std::string& name) {
    if (number >= 0) pick(form().Combo1, number);
    if (type >= 0) pick(form().Combo2, type);
    this->fill(form().Text1, name);
  }
};

TEST_F(ContextsChange, IsSentAndThenReadAnew) {
  fillIn(2, 1, "intranet");
  leaveInTranscript("\r\nERROR\r\n");
  reply("AT+CGDCONT=3,\"PPP\",\"intranet\"", kOk);
  reply("AT+CGDCONT?", lines({kInternet, "+CGDCONT: 3,\"PPP\",\"intranet\",,0,0"}));
  click(form().Command1);
  EXPECT_EQ(line(), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(grid(), Texts{"1|IP|internet"});
  EXPECT_EQ(form().Text1.Text.peek(), "intranet");
  run(2.1);
  EXPECT_EQ(form().Text1.Text.peek(), "");
  EXPECT_EQ(line(), "");
  EXPECT_EQ(grid(), Texts{});
  EXPECT_EQ(form().Combo1.Text.peek(), "");
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CGDCONT=3,\"PPP\",\"intranet\"\r", "AT+CGDCONT?\r"}));
  EXPECT_EQ(grid(), (Texts{"1|IP|internet", "3|PPP|intranet"}));
  EXPECT_EQ(line(), "Current Status");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

struct ContextRow {
  std::string name;
  int number;
  int type;
  std::string text;
  std::string sent;
};

class ContextCommand : public ContextsChange, public ::testing::WithParamInterface<ContextRow> {};

TEST_P(ContextCommand, HoldsWhatIsChosenAndTyped) {
  fillIn(GetParam().number, GetParam().type, GetParam().text);
  press(form().Command1);
  EXPECT_EQ(sent(), (Texts{GetParam().sent + "\r", "AT+CGDCONT?\r"}));
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, ContextCommand,
    ::testing::Values(
        ContextRow{"First", 0, 0, "internet", "AT+CGDCONT=1,\"IP\",\"internet\""},
        ContextRow{"Second", 1, 1, "b", "AT+CGDCONT=2,\"PPP\",\"b\""},
        ContextRow{"Fourth", 3, 0, "d", "AT+CGDCONT=4,\"IP\",\"d\""},
        ContextRow{"NameOfTwentyCharacters", 0, 0, "abcdefghijklmnopqrstuvwxyz",
                   "AT+CGDCONT=1,\"IP\",\"abcdefghijklmnopqrst\""},
        ContextRow{"NameAsItStands", 0, 0, " a\"b, ", "AT+CGDCONT=1,\"IP\",\" a\"b, \""},
        ContextRow{"NoSecondCommand", 0, 0, "a\rATD112;", "AT+CGDCONT=1,\"IP\",\"a\""}),
    RowName());

struct EmptyRow {
  std::string name;
  int number;
  int type;
  std::string text;
};

class EmptyContextField : public ContextsChange, public ::testing::WithParamInterface<EmptyRow> {};

TEST_P(EmptyContextField, IsSaidAndTheContextsAreReadAnew) {
  fillIn(GetParam().number, GetParam().type, GetParam().text);
  leaveInTranscript("old");
  press(form().Command1);
  expectBox("Please Enter Proper Data", "GSM");
  EXPECT_EQ(sent(), Texts{"AT+CGDCONT?\r"});
  EXPECT_EQ(grid(), Texts{"1|IP|internet"});
  EXPECT_EQ(line(), "Current Status");
  EXPECT_EQ(form().Text1.Text.peek(), GetParam().text);
  EXPECT_EQ(form().Combo1.Text.peek(), "");
  EXPECT_EQ(form().Combo2.Text.peek(), "");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(Is, EmptyContextField,
                         ::testing::Values(EmptyRow{"Number", -1, 0, "internet"},
                                           EmptyRow{"Type", 0, -1, "internet"},
                                           EmptyRow{"Name", 0, 0, ""}, EmptyRow{"All", -1, -1, ""}),
                         RowName());

TEST_F(ContextsChange, ReadsAnewOnlyWhenTheMessageIsAnswered) {
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  press(form().Command1);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(grid(), Texts{"1|IP|internet"});
  inPanel([this] { machine().boxes.answerTop(); });
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CGDCONT?\r"});
}

struct ContextOutcomeRow {
  std::string name;
  std::string answer;
  Texts words;       // that stood on the status line, one after another
  std::string left;  // in the box of the name
};

class ContextOutcome : public ContextsChange,
                       public ::testing::WithParamInterface<ContextOutcomeRow> {};

// The reading that follows empties the status line first, so the words are there for no time.
TEST_P(ContextOutcome, IsTakenOffByTheReadingThatFollows) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  fillIn(0, 0, "name");
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  Texts words;
  const PropertyWatch watch(form().Label1, [&](PropertyId) { words.push_back(line()); });
  click(form().Command1);
  if (!GetParam().answer.empty()) {
    inPanel([this] { form1().Text1.append(GetParam().answer); }, 0.5);
  }
  run(0.99);
  EXPECT_EQ(sent().size(), 1U);
  EXPECT_EQ(form().Text1.Text.peek(), "name");
  run(0.02);
  EXPECT_EQ(sent(), Texts{"AT+CGDCONT?\r"});
  EXPECT_EQ(words, GetParam().words);
  EXPECT_EQ(form().Text1.Text.peek(), GetParam().left);
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Is, ContextOutcome,
    ::testing::Values(ContextOutcomeRow{"Ok", kOk, {"", "Changes SuccessFul-GPRS", ""}, ""},
                      ContextOutcomeRow{"Error", kError, {"", "Changes UnsuccessFul", ""}, "name"},
                      ContextOutcomeRow{"Both",
                                        "\r\nERROR\r\n\r\nOK\r\n",
                                        {"", "Changes SuccessFul-GPRS", ""},
                                        ""},
                      ContextOutcomeRow{"Neither", "\r\n+CGDCONT: 1\r\n", {""}, "name"},
                      ContextOutcomeRow{"Silence", "", {""}, "name"}),
    RowName());

TEST_F(ContextsChange, WithoutAPortEndsBeforeItReads) {
  fillIn(0, 0, "name");
  closePort();
  press(form().Command1);
  EXPECT_EQ(line(), "");
  EXPECT_EQ(grid(), Texts{"1|IP|internet"});
  EXPECT_EQ(form().Combo1.Text.peek(), "1");
  expectAtRest();
}

TEST_F(ContextsChange, MidnightEndsItBeforeItReads) {
  startWithOpenPort({2026, 3, 1, 23, 59, 0});
  load(information(kInternet));
  fillIn(0, 0, "name");
  run(59.5 - now());
  click(form().Command1);
  run(1);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(sent(), Texts{"AT+CGDCONT=1,\"IP\",\"name\"\r"});
  EXPECT_EQ(grid(), Texts{"1|IP|internet"});
  expectAtRest();
}

TEST_F(ContextsChange, ARefreshInTheMiddleIsReadFirst) {
  fillIn(0, 0, "name");
  reply("AT+CGDCONT=1,\"IP\",\"name\"", kOk);
  click(form().Command1);
  run(0.02);
  click(form().Command2);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CGDCONT=1,\"IP\",\"name\"\r", "AT+CGDCONT?\r", "AT+CGDCONT?\r"}));
  // The refresh took the outcome, so the name stays.
  EXPECT_EQ(form().Text1.Text.peek(), "name");
  EXPECT_EQ(line(), "Current Status");
  expectAtRest();
}

TEST_F(ContextsChange, APollsOkInTheMiddleIsTakenForTheModems) {
  reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
  fillIn(0, 0, "name");
  inPanel([this] { form1().Timer2.Enabled = true; });
  run(1.5);
  click(form().Command1);
  run(10);
  EXPECT_EQ(form().Text1.Text.peek(), "");
}

TEST_F(ContextsChange, ARingTakesTheOutcomeThatItComesWith) {
  fillIn(0, 0, "name");
  reply("AT+CGDCONT=1,\"IP\",\"name\"", kOk + unsolicited("RING"));
  click(form().Command1);
  run(2.5);
  EXPECT_EQ(form().Text1.Text.peek(), "name");
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
  inPanel([this] { form1().Timer2.Enabled = false; });
  settle();
  EXPECT_EQ(form().Text1.Text.peek(), "name");
  EXPECT_EQ(line(), "Current Status");
}

TEST_F(ContextsChange, ClosingTheWindowInTheMiddleLoadsItAnewAndReadsOnceMore) {
  fillIn(0, 0, "name");
  reply("AT+CGDCONT=1,\"IP\",\"name\"", kOk);
  click(form().Command1);
  run(0.5);
  closeWindow();
  settle();
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_EQ(sent(), (Texts{"AT+CGDCONT=1,\"IP\",\"name\"\r", "AT+CGDCONT?\r", "AT+CGDCONT?\r"}));
  EXPECT_EQ(line(), "Current Status");
  EXPECT_EQ(grid(), Texts{"1|IP|internet"});
  expectAtRest();
}

// The window and its menu.

TEST_F(ContextsChange, ClosingItSendsNothingAndBringsTheMenuBack) {
  inPanel([this] {
    panel().form16.Show();
    panel().form16.Hide();
    form1().Hide();
  });
  run(0);
  std::vector<bool> menuWasUp;
  const PropertyWatch watch(form(), [&](PropertyId property) {
    if (property == PropertyId::Visible) menuWasUp.push_back(panel().form16.Visible.peek());
  });
  closeWindow();
  ASSERT_FALSE(menuWasUp.empty());
  EXPECT_TRUE(menuWasUp.front());
  EXPECT_FALSE(form().isLoaded());
  EXPECT_TRUE(panel().form16.Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

TEST_F(ContextsChange, ClosingItEmptiesTheGridBeforeItGoes) {
  std::vector<Texts> left;  // as the window went off the screen, and as it was unloaded
  const PropertyWatch watch(form(), [&](PropertyId property) {
    if (property == PropertyId::Visible) left.push_back(grid());
  });
  closeWindow();
  ASSERT_FALSE(left.empty());
  EXPECT_EQ(left.front(), Texts{});
}

TEST_F(ContextsChange, OpenedAgainReadsAgain) {
  closeWindow();
  inPanel([this] { window().Show(); });
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CGDCONT?\r"});
  EXPECT_EQ(grid(), Texts{"1|IP|internet"});
}

TEST_F(ContextsChange, TheTitleThatTheMenuGivesStandsUntilTheWindowIsLoadedAnew) {
  expectTitles(panel().form16.Command3, form().Command2, "GSM-GPRS SETTINGS",
               "GSM-GPRS Configuration");
}

TEST_F(ContextsChange, MinimisingAndRestoringItTakesTheStatusWindowAlong) {
  expectStatusWindowFollows();
}

}  // namespace
}  // namespace gsm
