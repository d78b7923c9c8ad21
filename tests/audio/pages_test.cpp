#include <gtest/gtest.h>

#include "panel/form7.h"
#include "tests/audio/audio_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

class AudioPages : public AudioTest {
 protected:
  void SetUp() override {
    AudioTest::SetUp();
    openWindow();
  }
};

struct TurnRow {
  std::string name;
  AudioTab tab;
  std::string frame;
  std::string status;  // before anything is read
  Texts sent;
};

class AudioTurn : public AudioPages, public ::testing::WithParamInterface<TurnRow> {
 protected:
  void setAll(bool visible) {
    assign([this, visible] {
      for (Frame* frame : {&form().Frame1, &form().Frame2, &form().Frame10, &form().Frame12}) {
        frame->Visible = visible;
      }
    });
  }
};

TEST_P(AudioTurn, ShowsItsPageInThePlaceOfTheOthers) {
  for (const bool before : {true, false}) {
    setAll(before);
    clickTab(GetParam().tab);
    EXPECT_EQ(pages(), Texts{GetParam().frame});
    settle();
    EXPECT_EQ(pages(), Texts{GetParam().frame});
  }
}

TEST_P(AudioTurn, TellsToWaitBeforeItReads) {
  setStatus("before");
  clickTab(GetParam().tab);
  EXPECT_EQ(status(), GetParam().status);
  settle();
  EXPECT_EQ(status(), GetParam().status) << "nothing has been read";
}

TEST_P(AudioTurn, ReadsItsPageASecondForEachQuestion) {
  sentWithTimes();
  const double begin = now();
  turnTo(GetParam().tab);
  const auto writes = sentWithTimes();
  Texts texts;
  for (std::size_t i = 0; i < writes.size(); ++i) {
    texts.push_back(writes[i].text);
    EXPECT_NEAR(toSeconds(writes[i].at) - begin, static_cast<double>(i), 0.01);
  }
  EXPECT_EQ(texts, GetParam().sent);
  EXPECT_NEAR(now() - begin, static_cast<double>(GetParam().sent.size()), 0.01);
  expectAtRest();
}

TEST_P(AudioTurn, ToTheSelectedTabReadsOnceMore) {
  turnTo(GetParam().tab);
  sent();
  turnTo(GetParam().tab);
  EXPECT_EQ(sent(), GetParam().sent);
}

TEST_P(AudioTurn, WithAClosedPortShowsItsPageAndEndsSilently) {
  setStatus("before");
  closePort();
  turnTo(GetParam().tab);
  EXPECT_EQ(pages(), Texts{GetParam().frame});
  EXPECT_EQ(status(), GetParam().status);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(To, AudioTurn,
                         ::testing::Values(TurnRow{"Gains", gains, "Frame1", "before", {}},
                                           TurnRow{"ToneAndEcho", toneAndEcho, "Frame2",
                                                   "Please Wait......", kEchoReads},
                                           TurnRow{"AnswerAndDtmf", answerAndDtmf, "Frame10",
                                                   "Please Wait......", kAnswerReads},
                                           TurnRow{"Melodies", melodies, "Frame12", "", {}}),
                         RowName());

TEST_F(AudioPages, TheWindowComesUpWithTheGains) {
  EXPECT_EQ(pages(), Texts{"Frame1"});
  EXPECT_EQ(form().TabStrip1.Value.peek(), 1);
}

TEST_F(AudioPages, NoTabLeadsToTheMelodies) {
  EXPECT_EQ(form().TabStrip1.tabs(),
            (Texts{"Volume Control", "Tone/Echo Control", "AutoAnswer Mode/DTMF"}));
  EXPECT_FALSE(form().TabStrip1.userTab(melodies));
  settle();
  EXPECT_EQ(pages(), Texts{"Frame1"});
}

TEST_F(AudioPages, ThePageOfTheMelodiesGoesWithTheNextTab) {
  turnTo(melodies);
  turnTo(gains);
  EXPECT_EQ(pages(), Texts{"Frame1"});
}

TEST_F(AudioPages, TheGainsAreNotReadAgainByTheirTab) {
  move(form().Slider1, 99);
  turnTo(toneAndEcho);
  sent();
  turnTo(gains);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(speakerGain(), "99");
}

TEST_F(AudioPages, MinimisingAndRestoringTheWindowTakesTheStatusWindowAlong) {
  const auto setState = [this](int state) {
    inPanel([this, state] { form().userState(state); });
    run(0);
    return panel().form7.WindowState.peek();
  };
  EXPECT_FALSE(panel().form7.isLoaded());
  EXPECT_EQ(setState(WindowState::minimised), WindowState::minimised);
  EXPECT_TRUE(panel().form7.isLoaded());
  EXPECT_EQ(setState(WindowState::maximised), WindowState::minimised);
  EXPECT_EQ(setState(WindowState::normal), WindowState::normal);
  EXPECT_EQ(setState(WindowState::maximised), WindowState::normal);
}

// The button of the main window and back.
class AudioBack : public AudioTest {
 protected:
  void SetUp() override {
    AudioTest::SetUp();
    inPanel([this] {
      form1().Frame5.Visible = false;
      form1().Command6.Enabled = true;
      form1().Show();
    });
    run(0);
    press(form1().Command6);
    sent();
  }
};

TEST_F(AudioBack, OpeningHidesTheMainWindowWhichIsToldToWait) {
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  EXPECT_EQ(caption(form1().Label5), "Please Wait...");
}

TEST_F(AudioBack, BackSendsNothingAndKeepsTheStatusLineAndTheTranscript) {
  leaveInTranscript("old");
  press(form().Command2);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(transcript(), "old");
  EXPECT_EQ(caption(form1().Label5), "Please Wait...");
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_TRUE(form().isLoaded());
  expectAtRest();
}

TEST_F(AudioBack, BackBringsTheMainWindowUpBeforeTheWindowGoes) {
  bool mainWasUp = false;
  const PropertyWatch watch(form(), [&](PropertyId property) {
    if (property == PropertyId::Visible) mainWasUp = form1().Visible.peek();
  });
  press(form().Command2);
  EXPECT_TRUE(mainWasUp);
}

TEST_F(AudioBack, TheNextOpeningFindsAllAsItWasLeft) {
  move(form().Slider1, 42);
  turnTo(toneAndEcho);
  pick(form().Combo2, 1);
  turnTo(gains);
  turnTo(answerAndDtmf);
  fill(form().Text1, "700");
  assign([this] { form().Frame1.Visible = true; });
  press(form().Command2);
  sent();
  press(form1().Command6);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  EXPECT_EQ(pages(), (Texts{"Frame1", "Frame10"}));
  EXPECT_EQ(form().TabStrip1.Value.peek(), answerAndDtmf);
  EXPECT_EQ(speakerGain(), "42");
  EXPECT_EQ(form().Slider1.Value.peek(), 42);
  EXPECT_EQ(form().Combo2.Text.peek(), "3");
  EXPECT_EQ(form().Combo1.List.peek().size(), 2U);
  EXPECT_EQ(form().Text1.Text.peek(), "700");
}

TEST_F(AudioBack, TheNextOpeningAfterAClosingReadsAnew) {
  closeWindow();
  settle();
  sent();
  press(form1().Command6);
  EXPECT_EQ(sent(), kGainReads);
}

}  // namespace
}  // namespace gsm
