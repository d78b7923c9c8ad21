#include <gtest/gtest.h>

#include "tests/settings/line_settings_test.h"

namespace gsm {
namespace {

// What the modem, the network and the user do in the middle of a step.
class InterruptedLine : public LineSettingsTest {
 protected:
  void SetUp() override {
    LineSettingsTest::SetUp();
    fillIn();
  }
  /// Saves, with the poll of a call half a second after the command of `step` under a modem that
  /// answers nothing but the poll.
  void saveWithAPollIn(std::size_t step) {
    // The timer's first tick comes two seconds after it was started.
    const double lead = 1.5 - static_cast<double>(step);
    if (lead < 0) {
      press();
      run(-lead);
    }
    inPanel([this] { form1().Timer2.Enabled = true; });
    run(0);
    if (lead >= 0) {
      run(lead);
      press();
    }
    settle();
  }
  Texts commandsWithAPollIn(std::size_t step) {
    Texts expected = kLineCommands;
    expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(step) + 1, "AT+CIND?");
    return expected;
  }
};

class PolledStep : public InterruptedLine, public ::testing::WithParamInterface<std::size_t> {};

TEST_P(PolledStep, HasARefusalOfThePollCountedAgainstIt) {
  reply("AT+CIND?", kError);
  saveWithAPollIn(GetParam());
  EXPECT_EQ(commands(), commandsWithAPollIn(GetParam()));
  EXPECT_EQ(status(), afterFailureOf(GetParam()));
  EXPECT_EQ(speedShown(), "before");
  EXPECT_EQ(framingShown(), "before");
  EXPECT_FALSE(form1().Timer2.Enabled.peek());
  expectAtRest();
}

TEST_P(PolledStep, HasASuccessOfThePollCountedForIt) {
  reply("AT+CIND?", information("+CIND: 5,4,1,0,0,0,0"));
  saveWithAPollIn(GetParam());
  EXPECT_EQ(commands(), commandsWithAPollIn(GetParam()));
  EXPECT_EQ(status(), kSaved);
  EXPECT_EQ(speedShown(), GetParam() == 0 ? "Speed:9600" : "before");
  EXPECT_EQ(framingShown(), GetParam() == 1   ? kFramingShown
                            : GetParam() == 6 ? "beforeECHO:Enable"
                                              : "before");
  EXPECT_FALSE(form1().Timer2.Enabled.peek());
  expectAtRest();
}

// The poll reads what the step's own reply has left.
TEST_P(PolledStep, SharesItsReplyWithThePoll) {
  answerAll(kError);
  reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
  press();
  run(2.05 * static_cast<double>(GetParam()) + 0.5);
  inPanel([this] { form1().pollCall(); });
  settle();
  EXPECT_EQ(commands(), commandsWithAPollIn(GetParam()));
  EXPECT_EQ(speedShown(), GetParam() == 0 ? "Speed:9600" : "before");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(From0, PolledStep, ::testing::Range(std::size_t{0}, std::size_t{8}));

TEST_F(InterruptedLine, ARingTakesTheReplyThatItComesWith) {
  reply("AT+IPR=9600", kOk + unsolicited("RING"));
  reply("AT+ICF=3,4", kError + unsolicited("RING"));
  press();
  run(2.1);
  EXPECT_EQ(speedShown(), "before");
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
  run(2);
  inPanel([this] { form1().Timer2.Enabled = false; });
  settle();
  EXPECT_EQ(status(), kSaved);
  EXPECT_EQ(framingShown(), "before");
}

TEST_F(InterruptedLine, APressInTheMiddleMakesAllStepsFirst) {
  reply("AT&C1", kError);
  press();
  run(0.5);
  press();
  run(9.1);
  // The outcome of the second press stands while the first goes on with its own second step.
  EXPECT_EQ(status(), "Changes UnsuccessFul-DCD signal");
  EXPECT_EQ(waiting(), 1);
  Texts expected = kLineCommands;
  expected.insert(expected.begin(), kLineCommands[0]);
  expected.push_back(kLineCommands[1]);
  EXPECT_EQ(commands(), expected);
  reply("AT&C1", kOk);
  settle();
  EXPECT_EQ(commands(), Texts(kLineCommands.begin() + 2, kLineCommands.end()));
  EXPECT_EQ(status(), kSaved);
  expectAtRest();
}

TEST_F(InterruptedLine, AnOptionChangedMeanwhileIsSentTheNextTime) {
  answerAll(kOk);
  press();
  run(1);
  choose({&form().Option1, &form().Option8, &form().Option13, &form().Option17, &form().Option22,
          &form().Option24, &form().Option21});
  settle();
  EXPECT_EQ(commands(), kLineCommands);
  EXPECT_EQ(framingShown(), std::string(kFramingShown) + "ECHO:Enable");
  save();
  EXPECT_EQ(commands(), (Texts{"AT+IPR=9600", "AT+ICF=0,0", "AT+IFC=0,0", "AT&C0", "AT&D0", "AT&S1",
                               "ATE1", "AT&W"}));
}

TEST_F(InterruptedLine, AnEchoChosenMeanwhileIsTheOneThatIsTold) {
  answerAll(kOk);
  press();
  run(1);
  click(form().Option27);
  settle();
  EXPECT_EQ(commands(), kLineCommands);
  EXPECT_EQ(framingShown(), std::string(kFramingShown) + "ECHO:Disable");
}

// A closed window is loaded anew by the reference, empty; the commands are known by then.
TEST_F(InterruptedLine, AWindowClosedMeanwhileTellsAnEmptyRateAndAnEchoThatIsOn) {
  answerAll(kOk);
  click(form().Option27);
  reply("ATE0", kOk);
  press();
  run(1);
  inPanel([this] { form().userClose(); });
  run(0);
  EXPECT_FALSE(form().isLoaded());
  settle();
  Texts expected = kLineCommands;
  expected[6] = "ATE0";
  EXPECT_EQ(commands(), expected);
  EXPECT_EQ(speedShown(), "Speed:");
  EXPECT_EQ(framingShown(), std::string(kFramingShown) + "ECHO:Enable");
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(status(), kSaved);
  expectAtRest();
}

TEST_F(InterruptedLine, AWindowClosedAndOpenedAgainShowsTheOutcome) {
  answerAll(kError);
  press();
  run(3);
  inPanel([this] { form().userClose(); });
  run(0);
  openWindow();
  EXPECT_EQ(status(), "");
  settle();
  EXPECT_TRUE(status().starts_with(" Changes UnsuccessFul-IPR  Changes UnsuccessFul-Character"));
  EXPECT_TRUE(form().Visible.peek());
}

class StoppedStep : public InterruptedLine, public ::testing::WithParamInterface<std::size_t> {
 protected:
  void expectStopped() {
    settle();
    EXPECT_EQ(commands(),
              Texts(kLineCommands.begin(),
                    kLineCommands.begin() + static_cast<std::ptrdiff_t>(GetParam()) + 1));
    EXPECT_EQ(status(), kSaving);
    EXPECT_EQ(transcript(), "");
    expectAtRest();
  }
  // Into the middle of the step, under a silent modem.
  void reach() {
    press();
    run(static_cast<double>(GetParam()) + 0.5);
  }
};

TEST_P(StoppedStep, IsTheLastWhenTheDeviceGoes) {
  reach();
  machine().ports.set({});
  if (GetParam() == kLineCommands.size() - 1) {
    settle();
    EXPECT_EQ(status(), kSaved);  // nothing more is written
    expectAtRest();
  } else {
    expectStopped();
  }
}

TEST_P(StoppedStep, IsTheLastWhenThePortIsClosed) {
  reach();
  closePort();
  if (GetParam() == kLineCommands.size() - 1) {
    settle();
    EXPECT_EQ(status(), kSaved);
    expectAtRest();
  } else {
    expectStopped();
  }
}

INSTANTIATE_TEST_SUITE_P(From0, StoppedStep, ::testing::Range(std::size_t{0}, std::size_t{8}));

// No wait carries over midnight: the step ends there, and what has been done stays.
class StepAtMidnight : public StoppedStep {
 protected:
  void SetUp() override {
    startWithOpenPort({2026, 3, 1, 23, 59, 0});
    openWindow();
    fillIn();
  }
};

TEST_P(StepAtMidnight, IsTheLast) {
  answerAll(kError);
  run(59.5 - 2.05 * static_cast<double>(GetParam()) - now());
  press();
  settle();
  EXPECT_EQ(commands(), Texts(kLineCommands.begin(),
                              kLineCommands.begin() + static_cast<std::ptrdiff_t>(GetParam()) + 1));
  EXPECT_EQ(status(), kSaving);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(From0, StepAtMidnight, ::testing::Range(std::size_t{0}, std::size_t{8}));

}  // namespace
}  // namespace gsm
