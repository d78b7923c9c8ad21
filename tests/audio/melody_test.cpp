#include <gtest/gtest.h>

#include "tests/audio/audio_test.h"

namespace gsm {
namespace {

class Melody : public AudioTest {
 protected:
  void SetUp() override {
    AudioTest::SetUp();
    openWindow();
    turnTo(melodies);
    setStatus("before");
  }
};

TEST_F(Melody, ItsPageListsCallTypesAndMelodies) {
  EXPECT_EQ(form().Combo4.List.peek(), (Texts{"Incoming Voice Call", "Incoming Data Call",
                                              "Incoming Fax Call", "Incoming SMS"}));
  EXPECT_EQ(form().Combo5.List.peek(),
            (Texts{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(Melody, ItsPageForgetsWhatWasChosen) {
  pick(form().Combo4, 2);
  pick(form().Combo5, 3);
  move(form().Slider11, 9);
  turnTo(melodies);
  EXPECT_EQ(form().Combo4.Text.peek(), "");
  EXPECT_EQ(form().Combo5.Text.peek(), "");
  EXPECT_EQ(form().Combo4.List.peek().size(), 4U);
  EXPECT_EQ(form().Combo5.List.peek().size(), 11U);
  EXPECT_EQ(form().Slider11.Value.peek(), 9);
}

struct SentMelodyRow {
  std::string name;
  int callType;  // -1: typed
  std::string typed;
  int volume;
  std::string melody;
  Texts sent;
};

class MelodySent : public Melody, public ::testing::WithParamInterface<SentMelodyRow> {};

TEST_P(MelodySent, IsTheCallTypesPlaceTheVolumeAndTheMelodysText) {
  const SentMelodyRow& row = GetParam();
  if (row.callType >= 0) {
    pick(form().Combo4, row.callType);
  } else {
    fill(form().Combo4, row.typed);
  }
  move(form().Slider11, row.volume);
  fill(form().Combo5, row.melody);
  leaveInTranscript("old");
  press(form().Command7);
  EXPECT_EQ(sent(), row.sent);
  EXPECT_EQ(status(), row.sent.empty() ? "before" : "");
  EXPECT_EQ(transcript(), row.sent.empty() ? "old" : "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MelodySent,
    ::testing::Values(
        SentMelodyRow{"VoiceCall", 0, "", 0, "0", {"AT+CRMP= 0,0,0,0\r"}},
        SentMelodyRow{"DataCall", 1, "", 15, "10", {"AT+CRMP= 1,15,0,10\r"}},
        SentMelodyRow{"FaxCall", 2, "", 7, "2", {"AT+CRMP= 2,7,0,2\r"}},
        SentMelodyRow{"Message", 3, "", 1, "9", {"AT+CRMP= 3,1,0,9\r"}},
        SentMelodyRow{"TypedMelody", 0, "", 1, "loud", {"AT+CRMP= 0,1,0,loud\r"}},
        SentMelodyRow{"TypedCallTypeHasNoCode", -1, "Incoming SMS", 1, "1", {"AT+CRMP= ,1,0,1\r"}},
        SentMelodyRow{"NothingWithoutACallType", -1, "", 1, "1", {}},
        SentMelodyRow{"NothingWithoutAMelody", 0, "", 1, "", {}},
        SentMelodyRow{"NothingWithoutBoth", -1, "", 1, "", {}}),
    RowName());

TEST_F(Melody, IsChosenFromTheLists) {
  pick(form().Combo4, 3);
  pick(form().Combo5, 10);
  press(form().Command7);
  EXPECT_EQ(sent(), Texts{"AT+CRMP= 3,0,0,10\r"});
}

struct MelodyOutcomeRow {
  std::string name;
  std::string reply;
  std::string status;
};

class MelodyOutcome : public Melody, public ::testing::WithParamInterface<MelodyOutcomeRow> {};

TEST_P(MelodyOutcome, IsShownAfterASecondAndClearsTheTranscript) {
  pick(form().Combo4, 0);
  pick(form().Combo5, 1);
  reply("AT+CRMP= 0,0,0,1", GetParam().reply);
  leaveInTranscript("\r\nOK\r\nERROR");
  click(form().Command7);
  EXPECT_EQ(status(), "");
  EXPECT_EQ(transcript(), "");
  run(0.98);
  EXPECT_EQ(status(), "");
  EXPECT_GT(waiting(), 0);
  settle();
  EXPECT_EQ(status(), GetParam().status);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, MelodyOutcome,
    ::testing::Values(MelodyOutcomeRow{"Success", kOk, "Changes SuccessFul-Ring Melody"},
                      MelodyOutcomeRow{"Refusal", kError, "Changes UnSuccessFul-Ring Melody"},
                      MelodyOutcomeRow{"BothWords", "\r\nERROR\r\n\r\nOK\r\n",
                                       "Changes SuccessFul-Ring Melody"},
                      MelodyOutcomeRow{"Neither", "\r\nsomething else\r\n", ""}),
    RowName());

TEST_F(Melody, WaitsASecond) {
  pick(form().Combo4, 0);
  pick(form().Combo5, 1);
  click(form().Command7);
  run(1.02);
  EXPECT_EQ(waiting(), 0);
}

TEST_F(Melody, OfAClosedPortIsNotSentAndItsStatusIsEmpty) {
  pick(form().Combo4, 0);
  pick(form().Combo5, 1);
  closePort();
  press(form().Command7);
  EXPECT_EQ(status(), "");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
