#include <gtest/gtest.h>

#include "phonebook/form5.h"
#include "tests/audio/audio_test.h"

namespace gsm {
namespace {

class AnswerPage : public AudioTest {
 protected:
  void SetUp() override {
    AudioTest::SetUp();
    openWindow();
    turnTo(answerAndDtmf);
    sent();
    setStatus("before");
  }
  bool ringsShown() {
    EXPECT_EQ(form().Label33.Visible.peek(), form().Combo3.Visible.peek());
    return form().Combo3.Visible.peek();
  }
  std::string rings() { return form().Combo3.Text.peek(); }
  /// As a program may, out of whichever option is set.
  void setRings(const std::string& text) {
    assign([this, text] { form().Combo3.Text = text; });
  }
  std::string promptSays() { return caption(panel().form5.Label2); }
  bool promptAnswers() { return panel().form5.Command1.Enabled.peek(); }
};

TEST_F(AnswerPage, ComesUpWithoutTheRings) {
  EXPECT_FALSE(ringsShown());
  EXPECT_FALSE(form().Option3.Value.peek());
  EXPECT_FALSE(form().Option4.Value.peek());
}

TEST_F(AnswerPage, ItsOptionsHideAndShowTheRings) {
  click(form().Option4);
  EXPECT_TRUE(ringsShown());
  click(form().Option3);
  EXPECT_FALSE(ringsShown());
  EXPECT_FALSE(form().Option4.Value.peek());
  EXPECT_EQ(sent(), Texts{});
}

struct AnswerReadRow {
  std::string name;
  std::string reply;  // behind the echo
  bool disabled;
  bool enabled;
  std::string rings;
  std::string status;
};

class AnswerRead : public AnswerPage, public ::testing::WithParamInterface<AnswerReadRow> {};

TEST_P(AnswerRead, IsShown) {
  reply("ATS0?", GetParam().reply);
  turnTo(answerAndDtmf);
  EXPECT_EQ(form().Option3.Value.peek(), GetParam().disabled);
  EXPECT_EQ(form().Option4.Value.peek(), GetParam().enabled);
  EXPECT_EQ(ringsShown(), GetParam().enabled);
  EXPECT_EQ(rings(), GetParam().rings);
  EXPECT_EQ(status(), GetParam().status);
  EXPECT_EQ(sent(), kAnswerReads);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

constexpr const char* kWait = "Please Wait......";

INSTANTIATE_TEST_SUITE_P(
    Of, AnswerRead,
    ::testing::Values(AnswerReadRow{"TwoRings", information("002"), false, true, "2",
                                    "Auto Answer Enabled,Total Rings2"},
                      AnswerReadRow{"NoRings", information("000"), true, false, "",
                                    "Auto Answer Disabled"},
                      AnswerReadRow{"TenRings", information("010"), false, true, "10",
                                    "Auto Answer Enabled,Total Rings10"},
                      AnswerReadRow{"TheMostRings", information("255"), false, true, "255",
                                    "Auto Answer Enabled,Total Rings255"},
                      AnswerReadRow{"OneDigit", information("5"), false, true, "5",
                                    "Auto Answer Enabled,Total Rings5"},
                      AnswerReadRow{"OneZero", information("0"), false, true, "0",
                                    "Auto Answer Enabled,Total Rings0"},
                      AnswerReadRow{"AFraction", information("1.5"), false, true, "2",
                                    "Auto Answer Enabled,Total Rings2"},
                      AnswerReadRow{"AHalfBelowAnOddNumber", information("2.5"), false, true, "3",
                                    "Auto Answer Enabled,Total Rings3"},
                      AnswerReadRow{"TheResultAlone", kOk, false, true, "OK\r",
                                    "Auto Answer Enabled,Total RingsOK\r"},
                      AnswerReadRow{"NothingBehindAnOlderResult", "\r\n", false, false, "", kWait},
                      AnswerReadRow{"Refusal", kError, false, false, "", kWait},
                      AnswerReadRow{"RefusalWithBothWords", "\r\nERROR\r\n\r\nOK\r\n", false, true,
                                    "ERR", "Auto Answer Enabled,Total RingsERR"},
                      AnswerReadRow{"TheEchoAlone", "", false, false, "", kWait}),
    RowName());

TEST_F(AnswerPage, IsReadOnAnEmptyTranscript) {
  reply("ATS0?", information("003"));
  leaveInTranscript("ATS0?\r\r\n000\r\n\r\nOK\r\n");
  turnTo(answerAndDtmf);
  EXPECT_EQ(rings(), "3");
}

// The characters stand where they stand behind the first echo, whatever is there.
TEST_F(AnswerPage, AnAnswerWhoseEchoIsTheEndOfAllIsEmpty) {
  world().modem.add({.write = "ATS0?\r",
                     .replies = {{{ModemScript::kDefaultDelay, "\r\nOK\r\nATS0?"}}},
                     .echo = false});
  turnTo(answerAndDtmf);
  EXPECT_TRUE(form().Option4.Value.peek());
  EXPECT_EQ(rings(), "");
  EXPECT_EQ(status(), "Auto Answer Enabled,Total Rings");
}

TEST_F(AnswerPage, OfAModemWithoutEchoIsNotRead) {
  replyWithoutEcho("ATS0?", information("002"));
  replyWithoutEcho("AT+VTD?", information("+VTD: 3"));
  clickTab(answerAndDtmf);
  run(2.2);
  EXPECT_EQ(status(), kWait);
  settle();
  EXPECT_FALSE(form().Option4.Value.peek());
  EXPECT_EQ(status(), "Tone Lenght Currently Is300");
}

TEST_F(AnswerPage, AReadSelectsTheItemOfItsRings) {
  reply("ATS0?", information("008"));
  turnTo(answerAndDtmf);
  EXPECT_EQ(form().Combo3.ListIndex.peek(), 7);
}

TEST_F(AnswerPage, AReadOfNoRingsKeepsTheOldOnes) {
  setRings("4");
  reply("ATS0?", information("000"));
  turnTo(answerAndDtmf);
  EXPECT_EQ(rings(), "4");
}

enum class Chosen { none, disable, enable };

struct ChangeRow {
  std::string name;
  Chosen chosen;
  std::string rings;
  Texts sent;
  bool box = false;
};

class AnswerChange : public AnswerPage, public ::testing::WithParamInterface<ChangeRow> {
 protected:
  void pick(Chosen chosen) {
    if (chosen == Chosen::disable) click(form().Option3);
    if (chosen == Chosen::enable) click(form().Option4);
  }
};

TEST_P(AnswerChange, IsSentOrRefused) {
  pick(GetParam().chosen);
  setRings(GetParam().rings);
  leaveInTranscript("old");
  press(form().Command5);
  EXPECT_EQ(sent(), GetParam().sent);
  if (GetParam().box) {
    expectBox("UnsuccessFul Changes.Check Rings ");
    EXPECT_EQ(status(), "before");
    EXPECT_EQ(transcript(), "");
  } else if (GetParam().sent.empty()) {
    EXPECT_EQ(status(), "before");
    EXPECT_EQ(transcript(), "old");
  } else {
    EXPECT_EQ(status(), "Changes UNSuccessFul.Try Again");
    EXPECT_EQ(transcript(), "");
  }
  EXPECT_FALSE(panel().form5.isLoaded());
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, AnswerChange,
    ::testing::Values(
        ChangeRow{"EnableWithTheFewestRings", Chosen::enable, "1", {"ATS0=1\r"}},
        ChangeRow{"EnableWithTheMostRings", Chosen::enable, "8", {"ATS0=8\r"}},
        ChangeRow{"EnableWithTooManyRings", Chosen::enable, "9", {}, true},
        ChangeRow{"EnableWithFarTooManyRings", Chosen::enable, "32767", {}, true},
        ChangeRow{"EnableWithNoRings", Chosen::enable, "0", {"ATS0=0\r"}},
        ChangeRow{"EnableWithFewerThanNone", Chosen::enable, "-1", {"ATS0=-1\r"}},
        ChangeRow{"EnableAsTyped", Chosen::enable, " 02", {"ATS0= 02\r"}},
        ChangeRow{"EnableWithAFractionBelowTheLimit", Chosen::enable, "8.5", {"ATS0=8.5\r"}},
        ChangeRow{"EnableWithAFractionAtTheLimit", Chosen::enable, "8.6", {}, true},
        ChangeRow{"EnableWithoutRings", Chosen::enable, "", {}},
        ChangeRow{"EnableWithLetters", Chosen::enable, "two", {}},
        ChangeRow{"EnableBeyondAnyNumber", Chosen::enable, "32768", {}},
        ChangeRow{"Disable", Chosen::disable, "2", {"ATS0=0\r"}},
        ChangeRow{"DisableWithTooManyRings", Chosen::disable, "9", {"ATS0=0\r"}},
        ChangeRow{"DisableWithoutRings", Chosen::disable, "", {}},
        ChangeRow{"DisableWithLetters", Chosen::disable, "x", {}},
        ChangeRow{"DisableBeyondAnyNumber", Chosen::disable, "40000", {}},
        ChangeRow{"Neither", Chosen::none, "2", {}, true},
        ChangeRow{"NeitherWithoutRings", Chosen::none, "", {}}),
    RowName());

struct AnswerOutcomeRow {
  std::string name;
  std::string reply;
  bool done;
};

class AnswerOutcome : public AnswerPage, public ::testing::WithParamInterface<AnswerOutcomeRow> {
 protected:
  static constexpr const char* kRefused = "Changes UNSuccessFul.Try Again";
  void change(OptionButton& option, const std::string& command) {
    reply(command, GetParam().reply);
    click(option);
    setRings("2");
    leaveInTranscript(kOk);
    click(form().Command5);
    EXPECT_EQ(transcript(), "");
    EXPECT_EQ(status(), "before");
    settle();
    EXPECT_EQ(sent(), Texts{command + "\r"});
    EXPECT_EQ(transcript(), "");
    EXPECT_EQ(rings(), "2");
    expectAtRest();
  }
};

TEST_P(AnswerOutcome, OfEnablingTakesTheAnswerButtonFromThePrompt) {
  const bool done = GetParam().done;
  change(form().Option4, "ATS0=2");
  EXPECT_EQ(status(), done ? "Changes SuccessFul.AutoAnswer Enabled" : kRefused);
  EXPECT_EQ(promptAnswers(), !done);
  EXPECT_EQ(promptSays(), done ? "AutoAnswer Enabled" : "");
}

TEST_P(AnswerOutcome, OfDisablingGivesItBack) {
  assign([this] {
    panel().form5.Command1.Enabled = false;
    panel().form5.Label2.Caption = "AutoAnswer Enabled";
  });
  const bool done = GetParam().done;
  change(form().Option3, "ATS0=0");
  EXPECT_EQ(status(), done ? "Changes SuccessFul.AutoAnswer Disabled" : kRefused);
  EXPECT_EQ(promptAnswers(), done);
  EXPECT_EQ(promptSays(), done ? "" : "AutoAnswer Enabled");
}

INSTANTIATE_TEST_SUITE_P(
    Is, AnswerOutcome,
    ::testing::Values(AnswerOutcomeRow{"Success", kOk, true},
                      AnswerOutcomeRow{"Refusal", kError, false},
                      AnswerOutcomeRow{"BothWords", "\r\nERROR\r\n\r\nOK\r\n", true},
                      AnswerOutcomeRow{"Neither", "\r\nsomething else\r\n", false}),
    RowName());

TEST_F(AnswerPage, AChangeWaitsASecond) {
  click(form().Option3);
  setRings("1");
  click(form().Command5);
  run(0.98);
  EXPECT_GT(waiting(), 0);
  run(0.04);
  EXPECT_EQ(waiting(), 0);
}

// What a modem that is out of reach of the echo says counts all the same.
TEST_F(AnswerPage, AChangeNeedsNoEcho) {
  replyWithoutEcho("ATS0=3", kOk);
  click(form().Option4);
  pick(form().Combo3, 2);
  press(form().Command5);
  EXPECT_EQ(status(), "Changes SuccessFul.AutoAnswer Enabled");
}

TEST_F(AnswerPage, AChangeWithoutAPortEndsSilently) {
  click(form().Option4);
  setRings("1");
  closePort();
  press(form().Command5);
  EXPECT_EQ(status(), "before");
  expectAtRest();
}

// The rings of an option that isn't set are out of the user's reach, and count.
TEST_F(AnswerPage, TheRingsThatWereReadCountForDisable) {
  reply("ATS0?", information("002"));
  reply("ATS0=0", kOk);
  turnTo(answerAndDtmf);
  sent();
  click(form().Option3);
  press(form().Command5);
  EXPECT_EQ(sent(), Texts{"ATS0=0\r"});
  EXPECT_TRUE(promptAnswers());
}

}  // namespace
}  // namespace gsm
