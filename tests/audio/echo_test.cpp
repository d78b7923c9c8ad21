#include <gtest/gtest.h>

#include "tests/audio/audio_test.h"

namespace gsm {
namespace {

class Echo : public AudioTest {
 protected:
  void SetUp() override {
    AudioTest::SetUp();
    openWindow();
    turnTo(toneAndEcho);
    sent();
    setStatus("before");
  }
  Texts frames() {
    Texts shown;
    for (const Frame* frame : {&form().Frame6, &form().Frame7}) {
      if (frame->Visible.peek()) shown.push_back(frame->name());
    }
    return shown;
  }
  std::vector<Slider*> sliders() {
    Form6& window = form();
    return {&window.Slider3, &window.Slider4, &window.Slider5, &window.Slider6,
            &window.Slider7, &window.Slider8, &window.Slider9};
  }
  void pick(const std::string& mode, const std::string& algorithm) {
    fill(form().Combo1, mode);
    fill(form().Combo2, algorithm);
  }
};

TEST_F(Echo, ShowsBothFramesBeforeAnythingIsRead) {
  EXPECT_EQ(frames(), (Texts{"Frame6", "Frame7"}));
}

TEST_F(Echo, IsReadOnAnEmptyTranscriptAndTheSideToneOnTopOfIt) {
  leaveInTranscript("old");
  reply("AT+ECHO?", kError);
  reply("AT+SIDET?", kError);
  clickTab(toneAndEcho);
  EXPECT_EQ(transcript(), "");
  settle();
  EXPECT_EQ(transcript(), "AT+ECHO?\r\r\nERROR\r\nAT+SIDET?\r\r\nERROR\r\n");
  EXPECT_EQ(status(), "Please Wait......");
}

TEST_F(Echo, OfTheFirstAlgorithmIsReadAndSentBackWithSixFields) {
  reply("AT+ECHO?", information("+ECHO: 0,1,15,3,10,7"));
  reply("AT+SIDET?", information("+SIDET: 1,2"));
  turnTo(toneAndEcho);
  EXPECT_EQ(frames(), Texts{"Frame6"});
  EXPECT_EQ(form().Combo1.Text.peek(), "0");
  EXPECT_EQ(form().Combo2.Text.peek(), "1");
  EXPECT_TRUE(form().Option2.Value.peek());
  EXPECT_EQ(form().Slider10.Value.peek(), 2);
  EXPECT_EQ(status(), "Echo Current Values--0,1,15,3,10,7\r\n\r\nOK\r");
  sent();
  press(form().Command3);
  EXPECT_EQ(sent(), Texts{"AT+ECHO=0,1,15,3,10,7\r"});
}

TEST_F(Echo, SwitchedToTheOtherAlgorithmIsSentWithFiveFields) {
  reply("AT+ECHO?", information("+ECHO: 1,1,15,3,10,7"));
  turnTo(toneAndEcho);
  sent();
  AudioTest::pick(form().Combo2, 1);
  EXPECT_EQ(form().Combo2.Text.peek(), "3");
  EXPECT_EQ(frames(), Texts{"Frame7"});
  press(form().Command3);
  EXPECT_EQ(sent(), Texts{"AT+ECHO=1,3,0,0,64\r"});
}

// The first value that the window's slider doesn't take ends the reading. Its reply stays, and the
// one to the side tone, which has a key of its own, is read all the same.
TEST_F(Echo, OfTheFactoryEndsAtTheStepAndLeavesBothFrames) {
  reply("AT+ECHO?", information("+ECHO: 0,1,0,6,10,7"));
  reply("AT+SIDET?", information("+SIDET: 0,3"));
  turnTo(toneAndEcho);
  EXPECT_EQ(frames(), (Texts{"Frame6", "Frame7"}));
  EXPECT_EQ(form().Combo2.Text.peek(), "1");
  EXPECT_EQ(form().Slider4.Value.peek(), 0);
  EXPECT_EQ(form().Slider5.Value.peek(), 0);
  EXPECT_TRUE(form().Option1.Value.peek());
  EXPECT_EQ(form().Slider10.Value.peek(), 3);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(Echo, OfAnotherAlgorithmIsNotShownAndItsReplyGoesWithTheSideTones) {
  reply("AT+ECHO?", information("+ECHO: 0,2,1,1,1,1"));
  reply("AT+SIDET?", information("+SIDET: 1,1"));
  turnTo(toneAndEcho);
  EXPECT_EQ(form().Combo2.Text.peek(), "");
  EXPECT_EQ(status(), "Please Wait......");
  EXPECT_EQ(form().Slider10.Value.peek(), 1);
  EXPECT_EQ(transcript(), "");
}

struct FrameRow {
  std::string name;
  int item;
  Texts frames;
};

class EchoFrame : public Echo, public ::testing::WithParamInterface<FrameRow> {};

TEST_P(EchoFrame, GoesWithTheAlgorithmThatIsChosen) {
  for (const bool before : {true, false}) {
    assign([this, before] {
      form().Frame6.Visible = before;
      form().Frame7.Visible = before;
    });
    AudioTest::pick(form().Combo2, GetParam().item);
    EXPECT_EQ(frames(), GetParam().frames);
  }
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(status(), "before");
}

INSTANTIATE_TEST_SUITE_P(Of, EchoFrame,
                         ::testing::Values(FrameRow{"TheFirst", 0, {"Frame6"}},
                                           FrameRow{"TheThird", 1, {"Frame7"}}),
                         RowName());

TEST_F(Echo, TypingAnAlgorithmChangesNoFrame) {
  AudioTest::pick(form().Combo2, 0);
  pick("0", "3");
  EXPECT_EQ(frames(), Texts{"Frame6"});
}

TEST_F(Echo, AnAlgorithmThatIsNoneOfTheTwoChangesNoFrame) {
  assign([this] { form().Combo2.AddItem("2"); });
  AudioTest::pick(form().Combo2, 2);
  EXPECT_EQ(frames(), (Texts{"Frame6", "Frame7"}));
  expectAtRest();
}

TEST_F(Echo, AnAlgorithmThatIsNoNumberEndsTheProgram) {
  assign([this] { form().Combo2.AddItem("x"); });
  AudioTest::pick(form().Combo2, 2);
  settle();
  EXPECT_EQ(boxes(), Texts{"Type mismatch"});
  EXPECT_TRUE(ended());
}

struct SentEchoRow {
  std::string name;
  std::string mode;
  std::string algorithm;
  std::vector<int> sliders;  // 3 to 9
  Texts sent;
};

class EchoSent : public Echo, public ::testing::WithParamInterface<SentEchoRow> {};

TEST_P(EchoSent, IsWhatTheWindowShows) {
  pick(GetParam().mode, GetParam().algorithm);
  assign([this] {
    for (std::size_t i = 0; i < sliders().size(); ++i) {
      sliders()[i]->Value = GetParam().sliders[i];
    }
  });
  leaveInTranscript("old");
  click(form().Command3);
  EXPECT_EQ(sent(), GetParam().sent);
  EXPECT_EQ(transcript(), GetParam().sent.empty() ? "old" : "");
  run(0.98);
  EXPECT_EQ(waiting() > 0, !GetParam().sent.empty());
  run(0.04);
  EXPECT_EQ(status(), "before");
  expectAtRest();
}

const std::vector<int> kFar = {15, 3, 31, 31, 63, 32767, 256};
const std::vector<int> kNear = {0, 0, 0, 0, 0, 0, 64};
const std::vector<int> kBetween = {1, 2, 3, 4, 5, 6, 65};

INSTANTIATE_TEST_SUITE_P(
    Rows, EchoSent,
    ::testing::Values(
        SentEchoRow{"FirstAtItsGreatest", "1", "1", kFar, {"AT+ECHO=1,1,15,3,31,31\r"}},
        SentEchoRow{"ThirdAtItsGreatest", "1", "3", kFar, {"AT+ECHO=1,3,63,32767,256\r"}},
        SentEchoRow{"FirstAtItsLeast", "0", "1", kNear, {"AT+ECHO=0,1,0,0,0,0\r"}},
        SentEchoRow{"ThirdAtItsLeast", "0", "3", kNear, {"AT+ECHO=0,3,0,0,64\r"}},
        SentEchoRow{"FirstInItsOrder", "0", "1", kBetween, {"AT+ECHO=0,1,1,2,3,4\r"}},
        SentEchoRow{"ThirdInItsOrder", "0", "3", kBetween, {"AT+ECHO=0,3,5,6,65\r"}},
        SentEchoRow{"WithoutAMode", "", "1", kNear, {"AT+ECHO=,1,0,0,0,0\r"}},
        SentEchoRow{"WithoutAModeOfTheThird", "", "3", kNear, {"AT+ECHO=,3,0,0,64\r"}},
        SentEchoRow{"AsTyped", "off", " 1 ", kNear, {"AT+ECHO=off, 1 ,0,0,0,0\r"}},
        SentEchoRow{"OfANumberThatIsTheSame", "0", "3.0", kNear, {"AT+ECHO=0,3.0,0,0,64\r"}},
        SentEchoRow{"NothingOfAnotherAlgorithm", "0", "2", kNear, {}},
        SentEchoRow{"NothingBetweenTheAlgorithms", "0", "1.4", kNear, {}},
        SentEchoRow{"NothingWithoutAnAlgorithm", "0", "", kNear, {}},
        SentEchoRow{"NothingOfLetters", "0", "one", kNear, {}},
        SentEchoRow{"NothingWithoutBoth", "", "", kNear, {}}),
    RowName());

class EchoOutcome : public Echo, public ::testing::WithParamInterface<DispatchedRow> {};

TEST_P(EchoOutcome, IsTheDispatchersToTell) {
  pick("0", "1");
  reply("AT+ECHO=0,1,0,0,0,0", GetParam().reply);
  press(form().Command3);
  EXPECT_EQ(status(), GetParam().status);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(Of, EchoOutcome, ::testing::ValuesIn(kDispatchedOutcomes), RowName());

TEST_F(Echo, OfAModemWithoutEchoGetsNoOutcome) {
  pick("0", "1");
  replyWithoutEcho("AT+ECHO=0,1,0,0,0,0", kOk);
  press(form().Command3);
  EXPECT_EQ(status(), "before");
  EXPECT_EQ(transcript(), kOk);
}

TEST_F(Echo, OfAClosedPortIsNotSent) {
  pick("0", "1");
  closePort();
  press(form().Command3);
  EXPECT_EQ(status(), "before");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
