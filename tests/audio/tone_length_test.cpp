#include <gtest/gtest.h>

#include "tests/audio/audio_test.h"

namespace gsm {
namespace {

constexpr int kDarkBlue = 0x400000;
constexpr int kDarkRed = 192;

class ToneLength : public AudioTest {
 protected:
  void SetUp() override {
    AudioTest::SetUp();
    openWindow();
    turnTo(answerAndDtmf);
    sent();
    setStatus("before");
  }
  std::string length() { return form().Text1.Text.peek(); }
  int colour() { return form().Label7.ForeColor.peek(); }
};

struct ToneLengthReadRow {
  std::string name;
  std::string reply;
  std::string length;
  bool shown = true;
};

class ToneRead : public ToneLength, public ::testing::WithParamInterface<ToneLengthReadRow> {};

TEST_P(ToneRead, IsShownInMilliseconds) {
  fill(form().Text1, "77");
  reply("AT+VTD?", GetParam().reply);
  turnTo(answerAndDtmf);
  EXPECT_EQ(length(), GetParam().length);
  EXPECT_EQ(status(), GetParam().shown ? "Tone Lenght Currently Is" + GetParam().length
                                       : "Please Wait......");
  EXPECT_EQ(sent(), kAnswerReads);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, ToneRead,
    ::testing::Values(
        ToneLengthReadRow{"OneDigit", information("+VTD: 3"), "300"},
        ToneLengthReadRow{"TwoDigits", information("+VTD: 15"), "1500"},
        ToneLengthReadRow{"TheMost", information("+VTD: 99"), "9900"},
        ToneLengthReadRow{"Zero", information("+VTD: 0"), "0"},
        ToneLengthReadRow{"WithoutABlankLosesADigit", information("+VTD:12"), "200"},
        ToneLengthReadRow{"WithTwoBlanks", information("+VTD:  3"), "300"},
        ToneLengthReadRow{"AFraction", information("+VTD: .5"), "50"},
        ToneLengthReadRow{"BelowZero", information("+VTD: -1"), "-100"},
        ToneLengthReadRow{"WithBothWords", "\r\nERROR\r\n+VTD: 4\r\n\r\nOK\r\n", "400"},
        ToneLengthReadRow{"NoneOfThreeDigits", information("+VTD: 327"), "", false},
        ToneLengthReadRow{"NoneOfThreeDigitsMore", information("+VTD: 328"), "", false},
        ToneLengthReadRow{"NoneOfAWord", information("+VTD: a"), "", false},
        ToneLengthReadRow{"NoneOfNothing", information("+VTD: "), "", false},
        ToneLengthReadRow{"NoneWithoutAResult", "\r\n+VTD: 3\r\n", "", false},
        ToneLengthReadRow{"NoneOfTheResultAlone", kOk, "", false},
        ToneLengthReadRow{"NoneOfARefusal", kError, "", false},
        ToneLengthReadRow{"NoneOfTheEchoAlone", "", "", false}),
    RowName());

TEST_F(ToneLength, ReadClearsTheTranscript) {
  for (const char* answer : {"\r\n+VTD: 3\r\n\r\nOK\r\n", "\r\n+VTD: 3\r\n", kError}) {
    reply("AT+VTD?", answer);
    turnTo(answerAndDtmf);
    EXPECT_EQ(transcript(), "");
  }
}

TEST_F(ToneLength, ThatCantBeReadLeavesTheTranscript) {
  reply("AT+VTD?", information("+VTD: 327"));
  turnTo(answerAndDtmf);
  EXPECT_EQ(transcript(), "AT+VTD?\r\r\n+VTD: 327\r\n\r\nOK\r\n");
}

// The box is emptied when the answer has been read, and the transcript with it.
TEST_F(ToneLength, IsReadOnAnEmptyTranscript) {
  fill(form().Text1, "77");
  clickTab(answerAndDtmf);
  run(0.5);
  leaveInTranscript("+VTD: 9\r\nOK");
  run(0.48);
  EXPECT_EQ(length(), "77");
  EXPECT_EQ(transcript(), "+VTD: 9\r\nOK");
  run(0.04);
  EXPECT_EQ(length(), "");
  EXPECT_EQ(transcript(), "");
  settle();
  EXPECT_EQ(length(), "");
}

TEST_F(ToneLength, ReplacesTheWordsOfTheAnswer) {
  reply("ATS0?", information("000"));
  reply("AT+VTD?", information("+VTD: 3"));
  clickTab(answerAndDtmf);
  run(2.2);
  EXPECT_EQ(status(), "Auto Answer Disabled");
  settle();
  EXPECT_EQ(status(), "Tone Lenght Currently Is300");
}

TEST_F(ToneLength, TakesDigitsAndTheBackspaceKeyOnly) {
  fill(form().Text1,
       "a1 2-.3\x08"
       "4x");
  EXPECT_EQ(length(), "124");
}

TEST_F(ToneLength, TakesFiveDigits) {
  fill(form().Text1, "123456");
  EXPECT_EQ(length(), "12345");
}

TEST_F(ToneLength, CannotBeBlank) {
  leaveInTranscript("old");
  press(form().Command6);
  expectBox("Tone Length Cannot Be Blank,Enter Proper Data");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(transcript(), "old");
  EXPECT_EQ(status(), "before");
}

struct SentToneLengthRow {
  std::string name;
  std::string length;
  Texts sent;
};

class ToneSent : public ToneLength, public ::testing::WithParamInterface<SentToneLengthRow> {};

TEST_P(ToneSent, IsInTenthsOfASecond) {
  assign([this] { form().Text1.Text = GetParam().length; });
  leaveInTranscript("old");
  press(form().Command6);
  EXPECT_EQ(sent(), GetParam().sent);
  EXPECT_EQ(transcript(), GetParam().sent.empty() ? "old" : "");
  EXPECT_EQ(status(), "before");
  EXPECT_EQ(length(), GetParam().length);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ToneSent,
    ::testing::Values(SentToneLengthRow{"TheLeast", "300", {"AT+VTD=3\r"}},
                      SentToneLengthRow{"TheMost", "1500", {"AT+VTD=15\r"}},
                      SentToneLengthRow{"AHalfUpToTheEven", "350", {"AT+VTD=4\r"}},
                      SentToneLengthRow{"AHalfDownToTheEven", "250", {"AT+VTD=2\r"}},
                      SentToneLengthRow{"BelowAHalf", "49", {"AT+VTD=0\r"}},
                      SentToneLengthRow{"AHalfDownToNothing", "50", {"AT+VTD=0\r"}},
                      SentToneLengthRow{"AboveAHalf", "51", {"AT+VTD=1\r"}},
                      SentToneLengthRow{"Nothing", "0", {"AT+VTD=0\r"}},
                      SentToneLengthRow{"AboveTheRangeToo", "9999", {"AT+VTD=100\r"}},
                      SentToneLengthRow{"TheGreatestNumber", "32767", {"AT+VTD=328\r"}},
                      SentToneLengthRow{"NoneAboveTheGreatestNumber", "32768", {}},
                      SentToneLengthRow{"NoneFarAbove", "99999", {}},
                      SentToneLengthRow{"NoneOfLetters", "abc", {}}),
    RowName());

struct ToneLengthOutcomeRow {
  std::string name;
  std::string reply;
  std::string status;
  int colour;
};

class ToneOutcome : public ToneLength,
                    public ::testing::WithParamInterface<ToneLengthOutcomeRow> {};

TEST_P(ToneOutcome, ColoursTheStatusAndLeavesTheTranscript) {
  fill(form().Text1, "300");
  reply("AT+VTD=3", GetParam().reply);
  leaveInTranscript("\r\nOK\r\nERROR");
  click(form().Command6);
  run(0.98);
  EXPECT_GT(waiting(), 0);
  EXPECT_EQ(status(), "before");
  EXPECT_EQ(colour(), kBlack);
  settle();
  EXPECT_EQ(status(), GetParam().status);
  EXPECT_EQ(colour(), GetParam().colour);
  EXPECT_EQ(transcript(), "AT+VTD=3\r" + GetParam().reply);
  EXPECT_EQ(length(), "300");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, ToneOutcome,
    ::testing::Values(
        ToneLengthOutcomeRow{"Success", kOk, "Changes SuccessFul-TONE LENGTH", kDarkBlue},
        ToneLengthOutcomeRow{"Refusal", kError, "Changes Unsuccessful,CHECK TONE LENGTH", kDarkRed},
        ToneLengthOutcomeRow{"BothWords", "\r\nERROR\r\n\r\nOK\r\n",
                             "Changes SuccessFul-TONE LENGTH", kDarkBlue},
        ToneLengthOutcomeRow{"Neither", "\r\nsomething else\r\n", "before", kBlack}),
    RowName());

TEST_F(ToneLength, OfAModemWithoutEchoGetsItsOutcome) {
  fill(form().Text1, "300");
  replyWithoutEcho("AT+VTD=3", kError);
  press(form().Command6);
  EXPECT_EQ(status(), "Changes Unsuccessful,CHECK TONE LENGTH");
}

TEST_F(ToneLength, ItsColourStaysForWhatTheStatusSaysLater) {
  fill(form().Text1, "300");
  reply("AT+VTD=3", kError);
  press(form().Command6);
  turnTo(toneAndEcho);
  EXPECT_EQ(status(), "Please Wait......");
  EXPECT_EQ(colour(), kDarkRed);
  turnTo(answerAndDtmf);
  fill(form().Text1, "300");
  reply("AT+VTD=3", kOk);
  press(form().Command6);
  EXPECT_EQ(colour(), kDarkBlue);
}

TEST_F(ToneLength, ItsColourGoesWithTheWindow) {
  fill(form().Text1, "300");
  reply("AT+VTD=3", kError);
  press(form().Command6);
  closeWindow();
  settle();
  openWindow();
  EXPECT_EQ(colour(), kBlack);
}

TEST_F(ToneLength, OfAClosedPortIsNotSent) {
  fill(form().Text1, "300");
  closePort();
  press(form().Command6);
  EXPECT_EQ(status(), "before");
  EXPECT_EQ(colour(), kBlack);
  expectAtRest();
}

}  // namespace
}  // namespace gsm
