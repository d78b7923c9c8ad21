#include <gtest/gtest.h>

#include "audio/form6.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/routing_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

class AudioReplies : public RoutingTest {
 protected:
  void SetUp() override {
    RoutingTest::SetUp();
    loadAudio();
    inPanel([this] { panel().form6.Label7.Caption = ""; });
    run(0);
  }
};

struct OutcomeRow {
  std::string name;
  std::string text;
  std::string status;
};

class AudioChange : public AudioReplies, public ::testing::WithParamInterface<OutcomeRow> {};

TEST_P(AudioChange, ShowsItsOutcomeAndClearsTheTranscript) {
  route(GetParam().text);
  EXPECT_EQ(audioStatus(), GetParam().status);
  EXPECT_EQ(transcript(), "");
}

constexpr const char* kUnsuccessful = "UnSuccessFul.Try Again";

INSTANTIATE_TEST_SUITE_P(
    Rows, AudioChange,
    ::testing::Values(
        OutcomeRow{"SpeakerOk", "AT+VGR=128\r\r\nOK\r\n", "Changes SuccessFul-Speaker"},
        OutcomeRow{"SpeakerError", "AT+VGR=128\r\r\nERROR\r\n", kUnsuccessful},
        OutcomeRow{"SpeakerCmeError", "AT+VGR=300\r\r\n+CME ERROR: 3\r\n", kUnsuccessful},
        OutcomeRow{"SpeakerWithoutResultYet", "AT+VGR=128\r", kUnsuccessful},
        OutcomeRow{"SpeakerWithAnOlderOk", "\r\nOK\r\nAT+VGR=128\r\r\nERROR\r\n",
                   "Changes SuccessFul-Speaker"},
        OutcomeRow{"MicrophoneOk", "AT+VGT=32\r\r\nOK\r\n", "Changes SuccessFul-Microphone"},
        OutcomeRow{"MicrophoneError", "AT+VGT=32\r\r\nERROR\r\n", kUnsuccessful},
        OutcomeRow{"MicrophoneWithoutResultYet", "AT+VGT=32\r", kUnsuccessful},
        OutcomeRow{"EchoOk", "AT+ECHO=1,1,0,6,10,7\r\r\nOK\r\n", "Changes SuccessFul"},
        OutcomeRow{"EchoError", "AT+ECHO=1,1,0,6,10,7\r\r\nERROR\r\n", kUnsuccessful},
        OutcomeRow{"EchoWithoutResultYet", "AT+ECHO=0,1\r", kUnsuccessful},
        OutcomeRow{"SideToneOk", "AT+SIDET=1,0\r\r\nOK\r\n", "Changes SuccessFul"},
        OutcomeRow{"SideToneError", "AT+SIDET=1,0\r\r\nERROR\r\n", kUnsuccessful},
        OutcomeRow{"SideToneWithoutResultYet", "AT+SIDET=1,0\r", kUnsuccessful}),
    RowName());

TEST_F(AudioReplies, WithTheEchoOffNoAudioChangeGetsAStatus) {
  for (int command = 0; command < 4; ++command) route("\r\nOK\r\n");
  EXPECT_EQ(audioStatus(), "");
  EXPECT_EQ(transcript(), "\r\nOK\r\n\r\nOK\r\n\r\nOK\r\n\r\nOK\r\n");
}

// The three characters that stand for a gain, and the number that they spell.
struct GainRow {
  std::string name;
  std::string behindKey;
  std::string gain;
  int value;
};

class Gain : public AudioReplies, public ::testing::WithParamInterface<GainRow> {};

TEST_P(Gain, OfTheSpeakerIsShown) {
  route("AT+VGR?\r\r\n+VGR:" + GetParam().behindKey);
  EXPECT_EQ(audioStatus(), "Default Values-Speaker " + GetParam().gain);
  EXPECT_EQ(speakerGain(), GetParam().gain);
  EXPECT_EQ(panel().form6.Slider1.Value.peek(), GetParam().value);
  EXPECT_EQ(microphoneGain(), "");
  EXPECT_EQ(transcript(), "");
}

TEST_P(Gain, OfTheMicrophoneIsShown) {
  route("AT+VGT?\r\r\n+VGT:" + GetParam().behindKey);
  EXPECT_EQ(audioStatus(), "Default Values-MicroPhone " + GetParam().gain);
  EXPECT_EQ(microphoneGain(), GetParam().gain);
  EXPECT_EQ(panel().form6.Slider2.Value.peek(), GetParam().value);
  EXPECT_EQ(speakerGain(), "");
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Gain,
    ::testing::Values(GainRow{"OfThreeDigits", " 128\r\n\r\nOK\r\n", "128", 128},
                      GainRow{"OfTwoDigitsTakesTheCarriageReturn", " 32\r\n\r\nOK\r\n", "32\r", 32},
                      GainRow{"OfOneDigitTakesTheLineEnd", " 5\r\n\r\nOK\r\n", "5\r\n", 5},
                      GainRow{"OfTheGreatestValue", " 255\r\n\r\nOK\r\n", "255", 255},
                      GainRow{"AtTheVeryEnd", " 7", "7", 7},
                      GainRow{"OfFourDigitsLosesTheLast", " 1281\r\n", "128", 128},
                      GainRow{"WithTwoBlanksLosesTheLastDigit", "  128\r\n", " 12", 12},
                      GainRow{"WithoutABlankLosesTheFirstDigit", "128\r\n", "28\r", 28}),
    RowName());

TEST_F(AudioReplies, OfTwoGainsTheFirstCounts) {
  route(information("+VGR: 16") + information("+VGR: 240"));
  EXPECT_EQ(speakerGain(), "16\r");
  EXPECT_EQ(transcript(), "");
}

TEST_F(AudioReplies, AGainArrivesWithoutAnEcho) {
  route(information("+VGR: 128"));
  route(information("+VGT: 224"));
  EXPECT_EQ(speakerGain(), "128");
  EXPECT_EQ(microphoneGain(), "224");
}

// Three characters that hold no number, or one that the slider doesn't take.
struct BadGainRow {
  std::string name;
  std::string behindKey;
  std::string gain;
};

class BadGain : public AudioReplies, public ::testing::WithParamInterface<BadGainRow> {};

TEST_P(BadGain, OfTheSpeakerStopsTheRoutingAfterTheLabels) {
  const std::string text = "\r\n+VGR:" + GetParam().behindKey;
  route(text);
  EXPECT_EQ(audioStatus(), "Default Values-Speaker " + GetParam().gain);
  EXPECT_EQ(speakerGain(), GetParam().gain);
  EXPECT_EQ(panel().form6.Slider1.Value.peek(), 0);
  EXPECT_EQ(transcript(), text);
  EXPECT_FALSE(hearsRing());
  EXPECT_EQ(boxes(), std::vector<std::string>{});
}

TEST_P(BadGain, OfTheMicrophoneStopsTheRoutingAfterTheLabels) {
  const std::string text = "\r\n+VGT:" + GetParam().behindKey;
  route(text);
  EXPECT_EQ(audioStatus(), "Default Values-MicroPhone " + GetParam().gain);
  EXPECT_EQ(microphoneGain(), GetParam().gain);
  EXPECT_EQ(panel().form6.Slider2.Value.peek(), 0);
  EXPECT_EQ(transcript(), text);
  EXPECT_EQ(boxes(), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BadGain,
    ::testing::Values(BadGainRow{"MissingAtTheVeryEnd", "", ""},
                      BadGainRow{"MissingBehindTheBlank", " ", ""},
                      BadGainRow{"MissingBeforeTheLineEnd", " \r\n\r\nOK\r\n", "\r\n\r"},
                      BadGainRow{"OfOneDigitWithoutABlank", "8\r\n\r\nOK\r\n", "\r\n\r"},
                      BadGainRow{"ThatIsARange", " (0-255)\r\n", "(0-"},
                      BadGainRow{"ThatIsAWord", " low\r\n", "low"},
                      BadGainRow{"AboveTheSlidersRange", " 256\r\n\r\nOK\r\n", "256"},
                      BadGainRow{"BelowTheSlidersRange", " -1\r\n\r\nOK\r\n", "-1\r"}),
    RowName());

struct SideToneRow {
  std::string name;
  std::string line;
  bool disabled;
  bool enabled;
  int level;
};

class SideTone : public AudioReplies, public ::testing::WithParamInterface<SideToneRow> {};

TEST_P(SideTone, IsShown) {
  panel().form6.Slider10.Value = 1;
  route("AT+SIDET?\r" + information(GetParam().line));
  EXPECT_EQ(panel().form6.Option1.Value.peek(), GetParam().disabled);
  EXPECT_EQ(panel().form6.Option2.Value.peek(), GetParam().enabled);
  EXPECT_EQ(panel().form6.Slider10.Value.peek(), GetParam().level);
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SideTone,
    ::testing::Values(
        SideToneRow{"EndsWithTheTenthCharacterAtTheLatest", "+SIDET: 1,000002", false, true, 2},
        SideToneRow{"Enabled", "+SIDET: 1,0", false, true, 0},
        SideToneRow{"Disabled", "+SIDET: 0,3", true, false, 3},
        SideToneRow{"WithoutABlank", "+SIDET:1,2", false, true, 2},
        SideToneRow{"WithBlanksInBothFields", "+SIDET:  0, 2", true, false, 2},
        SideToneRow{"OfAnotherStateSetsTheLevelAlone", "+SIDET: 2,3", false, false, 3}),
    RowName());

struct BadSideToneRow {
  std::string name;
  std::string text;
  bool enabled;  // whether the state had been read
};

class BadSideTone : public AudioReplies, public ::testing::WithParamInterface<BadSideToneRow> {};

TEST_P(BadSideTone, StopsTheRoutingWhereItFails) {
  panel().form6.Slider10.Value = 1;
  route(GetParam().text);
  EXPECT_FALSE(panel().form6.Option1.Value.peek());
  EXPECT_EQ(panel().form6.Option2.Value.peek(), GetParam().enabled);
  EXPECT_EQ(panel().form6.Slider10.Value.peek(), 1);
  EXPECT_EQ(transcript(), GetParam().text);
  EXPECT_EQ(boxes(), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BadSideTone,
    ::testing::Values(BadSideToneRow{"WithoutAComma", "\r\n+SIDET: 1\r\n\r\nOK\r\n", false},
                      BadSideToneRow{"WithoutACarriageReturn", "\r\n+SIDET: 1,0", false},
                      BadSideToneRow{"WithTheCarriageReturnTooFarOff", "\r\n+SIDET: 1,0000000\r\n",
                                     false},
                      BadSideToneRow{"WithTheCommaTooFarOff", "\r\n+SIDET: 000000001,0\r\n", false},
                      BadSideToneRow{"OfNoState", "\r\n+SIDET: ,0\r\n", false},
                      BadSideToneRow{"OfAWordForAState", "\r\n+SIDET: on,0\r\n", false},
                      BadSideToneRow{"OfNoLevel", "\r\n+SIDET: 1,\r\n", true},
                      BadSideToneRow{"OfAWordForALevel", "\r\n+SIDET: 1,x\r\n", true},
                      BadSideToneRow{"OfALevelBeyondTheSlider", "\r\n+SIDET: 1,4\r\n", true},
                      BadSideToneRow{"OfALevelBeyondAnyNumber", "\r\n+SIDET: 1,99999\r\n", true}),
    RowName());

}  // namespace
}  // namespace gsm
