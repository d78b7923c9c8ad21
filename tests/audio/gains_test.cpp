#include <gtest/gtest.h>

#include "tests/audio/audio_test.h"

namespace gsm {
namespace {

class Gains : public AudioTest {
 protected:
  void answerReads(const std::string& speaker = "128", const std::string& microphone = "064") {
    reply("AT+VGR?", information("+VGR: " + speaker));
    reply("AT+VGT?", information("+VGT: " + microphone));
  }
};

TEST_F(Gains, AreReadWhenTheWindowLoads) {
  answerReads();
  beginLoad();
  EXPECT_EQ(status(), "Please Wait....");
  settle();
  EXPECT_EQ(sent(), kGainReads);
  EXPECT_EQ(speakerGain(), "128");
  EXPECT_EQ(form().Slider1.Value.peek(), 128);
  EXPECT_EQ(microphoneGain(), "064");
  EXPECT_EQ(form().Slider2.Value.peek(), 64);
  EXPECT_EQ(status(), "Default Values-MicroPhone 064");
  EXPECT_TRUE(form().Visible.peek());
  expectAtRest();
}

TEST_F(Gains, AreReadASecondApartFromASilentModem) {
  const double begin = now();
  beginLoad();
  settle();
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), 2U);
  EXPECT_EQ(writes[0].text, "AT+VGR?\r");
  EXPECT_NEAR(toSeconds(writes[1].at - writes[0].at), 1, 0.01);
  EXPECT_NEAR(now() - begin, 2, 0.01);
  EXPECT_EQ(status(), "Please Wait....");
  EXPECT_EQ(speakerGain(), "");
  EXPECT_EQ(microphoneGain(), "");
}

TEST_F(Gains, AreReadOnAnEmptyTranscriptThatIsThenLeftAlone) {
  leaveInTranscript("old");
  reply("AT+VGR?", kOk);
  reply("AT+VGT?", kError);
  beginLoad();
  EXPECT_EQ(transcript(), "");
  settle();
  EXPECT_EQ(transcript(), "AT+VGR?\r\r\nOK\r\nAT+VGT?\r\r\nERROR\r\n");
}

TEST_F(Gains, OfAClosedPortEndTheLoadSilently) {
  closePort();
  beginLoad();
  settle();
  EXPECT_EQ(status(), "Please Wait....");
  EXPECT_EQ(pages(), Texts{"Frame1"});
  EXPECT_TRUE(form().Visible.peek());
  expectAtRest();
}

TEST_F(Gains, LoadTheListsOfAllPages) {
  openWindow();
  EXPECT_EQ(form().Combo1.List.peek(), (Texts{"0", "1"}));
  EXPECT_EQ(form().Combo2.List.peek(), (Texts{"1", "3"}));
  EXPECT_EQ(form().Combo3.List.peek(), (Texts{"1", "2", "3", "4", "5", "6", "7", "8"}));
  EXPECT_EQ(form().Combo4.List.peek(), Texts{});
  EXPECT_EQ(form().Combo5.List.peek(), Texts{});
}

TEST_F(Gains, LoadTheListsOnceForEachLoad) {
  openWindow();
  closeWindow();
  settle();
  EXPECT_FALSE(form().isLoaded());
  openWindow();
  EXPECT_EQ(form().Combo1.List.peek().size(), 2U);
  EXPECT_EQ(form().Combo2.List.peek().size(), 2U);
  EXPECT_EQ(form().Combo3.List.peek().size(), 8U);
}

TEST_F(Gains, FollowTheSliders) {
  openWindow();
  move(form().Slider1, 200);
  EXPECT_EQ(speakerGain(), "200");
  EXPECT_EQ(microphoneGain(), "");
  move(form().Slider2, 7);
  EXPECT_EQ(microphoneGain(), "7");
  EXPECT_EQ(speakerGain(), "200");
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(Gains, FollowTheSlidersToBothEndsAndNoFurther) {
  openWindow();
  move(form().Slider1, 255);
  EXPECT_EQ(speakerGain(), "255");
  move(form().Slider1, 256);
  EXPECT_EQ(speakerGain(), "255");
  move(form().Slider1, 0);
  EXPECT_EQ(speakerGain(), "0");
  move(form().Slider1, -1);
  EXPECT_EQ(speakerGain(), "0");
}

struct SentGainsRow {
  std::string name;
  std::string speaker;
  std::string microphone;
  Texts sent;
};

class GainsSent : public Gains, public ::testing::WithParamInterface<SentGainsRow> {};

// The labels are what goes out, wherever the sliders stand.
TEST_P(GainsSent, AreTheLabels) {
  openWindow();
  assign([this] {
    form().Slider1.Value = 11;
    form().Slider2.Value = 22;
    form().Label5.Caption = GetParam().speaker;
    form().Label6.Caption = GetParam().microphone;
  });
  setStatus("before");
  press(form().Command1);
  EXPECT_EQ(sent(), GetParam().sent);
  EXPECT_EQ(status(), "before");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, GainsSent,
    ::testing::Values(SentGainsRow{"Both", "128", "64", {"AT+VGR=128\r", "AT+VGT=64\r"}},
                      SentGainsRow{"LeadingZeros", "064", "007", {"AT+VGR=064\r", "AT+VGT=007\r"}},
                      SentGainsRow{"SpeakerAlone", "128", "", {"AT+VGR=128\r"}},
                      SentGainsRow{"MicrophoneAlone", "", "64", {"AT+VGT=64\r"}},
                      SentGainsRow{"Neither", "", "", {}},
                      SentGainsRow{"WithBlanksAround", " 12", "7  ", {"AT+VGR=12\r", "AT+VGT=7\r"}},
                      SentGainsRow{"BlanksAlone", "   ", " ", {"AT+VGR=\r", "AT+VGT=\r"}},
                      SentGainsRow{
                          "WithALineEnd", "32\r", "5\r\n", {"AT+VGR=32\r\r", "AT+VGT=5\r\n\r"}}),
    RowName());

TEST_F(Gains, AsTheyWereReadAreSentBack) {
  answerReads("064", "032");
  reply("AT+VGR=064", kOk);
  reply("AT+VGT=032", kOk);
  openWindow();
  press(form().Command1);
  EXPECT_EQ(sent(), (Texts{"AT+VGR=064\r", "AT+VGT=032\r"}));
  EXPECT_EQ(status(), "Changes SuccessFul-Microphone");
  EXPECT_EQ(transcript(), "");
}

TEST_F(Gains, AreSentASecondApart) {
  openWindow();
  move(form().Slider1, 1);
  move(form().Slider2, 2);
  sentWithTimes();
  const double begin = now();
  press(form().Command1);
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), 2U);
  EXPECT_NEAR(toSeconds(writes[1].at - writes[0].at), 1, 0.01);
  EXPECT_NEAR(now() - begin, 2, 0.01);
}

TEST_F(Gains, OfTheSpeakerGoOutOnAnEmptyTranscriptAndThoseOfTheMicrophoneOnTopOfIt) {
  openWindow();
  move(form().Slider1, 1);
  move(form().Slider2, 2);
  leaveInTranscript("old");
  click(form().Command1);
  EXPECT_EQ(transcript(), "");
  leaveInTranscript("new");
  settle();
  EXPECT_EQ(transcript(), "new");
}

TEST_F(Gains, OfTheMicrophoneAloneGoOutOnWhateverTheTranscriptHolds) {
  openWindow();
  move(form().Slider2, 2);
  leaveInTranscript("old");
  press(form().Command1);
  EXPECT_EQ(sent(), Texts{"AT+VGT=2\r"});
  EXPECT_EQ(transcript(), "old");
}

struct GainOutcomeRow {
  std::string name;
  std::string speaker;
  std::string microphone;
  std::string afterSpeaker;
  std::string atLast;
};

class GainOutcome : public Gains, public ::testing::WithParamInterface<GainOutcomeRow> {};

TEST_P(GainOutcome, IsTheDispatchersToTell) {
  openWindow();
  move(form().Slider1, 100);
  move(form().Slider2, 50);
  reply("AT+VGR=100", GetParam().speaker);
  reply("AT+VGT=50", GetParam().microphone);
  setStatus("before");
  click(form().Command1);
  run(2.06);
  EXPECT_EQ(status(), GetParam().afterSpeaker);
  settle();
  EXPECT_EQ(status(), GetParam().atLast);
  EXPECT_EQ(form().Slider1.Value.peek(), 100);
  EXPECT_EQ(speakerGain(), "100");
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Of, GainOutcome,
    ::testing::Values(
        GainOutcomeRow{"Success", kOk, kOk, "Changes SuccessFul-Speaker",
                       "Changes SuccessFul-Microphone"},
        GainOutcomeRow{"ARefusedSpeaker", kError, kOk, "UnSuccessFul.Try Again",
                       "Changes SuccessFul-Microphone"},
        GainOutcomeRow{"ARefusedMicrophone", kOk, kError, "Changes SuccessFul-Speaker",
                       "UnSuccessFul.Try Again"},
        GainOutcomeRow{"TheEchoAlone", "", "", "UnSuccessFul.Try Again", "UnSuccessFul.Try Again"},
        GainOutcomeRow{"BothWords", "\r\nERROR\r\n\r\nOK\r\n", kOk, "Changes SuccessFul-Speaker",
                       "Changes SuccessFul-Microphone"}),
    RowName());

TEST_F(Gains, OfAModemWithoutEchoGetNoOutcome) {
  openWindow();
  move(form().Slider1, 100);
  replyWithoutEcho("AT+VGR=100", kOk);
  setStatus("before");
  press(form().Command1);
  EXPECT_EQ(status(), "before");
  EXPECT_EQ(transcript(), kOk);
}

TEST_F(Gains, OfAClosedPortAreNotSent) {
  openWindow();
  move(form().Slider1, 1);
  move(form().Slider2, 2);
  setStatus("before");
  leaveInTranscript("old");
  closePort();
  press(form().Command1);
  EXPECT_EQ(status(), "before");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

// The first reference is the routing's: the reply that it has read is kept, and the load, whose
// reads find nobody in, comes before it is shown.
TEST_F(Gains, OfAReplyThatNobodyAskedForLoadTheWindow) {
  receive(information("+VGR: 128"));
  settle();
  EXPECT_EQ(sent(), kGainReads);
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_EQ(status(), "Default Values-Speaker 128");
  EXPECT_EQ(speakerGain(), "128");
  EXPECT_EQ(form().Combo3.List.peek().size(), 8U);
  expectAtRest();
}

}  // namespace
}  // namespace gsm
