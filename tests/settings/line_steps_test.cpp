#include <gtest/gtest.h>

#include "tests/settings/line_settings_test.h"

namespace gsm {
namespace {

// The eight steps, and what each shows of its reply.
class LineSteps : public LineSettingsTest {
 protected:
  void SetUp() override {
    LineSettingsTest::SetUp();
    fillIn();
  }
};

TEST_F(LineSteps, AreASecondApartWhenTheModemIsSilentAndCountAsTaken) {
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  const double begin = now();
  press();
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(status(), kSaving);
  run(7.99);
  EXPECT_EQ(status(), kSaving);
  EXPECT_EQ(waiting(), 1);
  run(0.02);
  EXPECT_EQ(status(), kSaved);
  EXPECT_EQ(speedShown(), "before");
  EXPECT_EQ(framingShown(), "before");
  EXPECT_EQ(transcript(), "");
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), kLineCommands.size());
  for (std::size_t step = 0; step < writes.size(); ++step) {
    EXPECT_EQ(writes[step].text, kLineCommands[step] + "\r");
    EXPECT_NEAR(toSeconds(writes[step].at) - begin, static_cast<double>(step), 0.01);
  }
  expectAtRest();
}

TEST_F(LineSteps, AreTwoSecondsApartWhenThePortTellsWhatItHasSent) {
  inPanel([this] { form1().MSComm1.SThreshold = 1; });
  run(0);
  const double begin = now();
  save();
  EXPECT_NEAR(now() - begin, 16, 0.2);
  EXPECT_EQ(commands(), kLineCommands);
}

TEST_F(LineSteps, GoOnTwoSecondsAfterEachReply) {
  answerAll(kOk);
  const double begin = now();
  press();
  run(8 * 2.05 - 0.01);
  EXPECT_EQ(status(), kSaving);
  run(0.02);
  EXPECT_EQ(status(), kSaved);
  EXPECT_EQ(speedShown(), "Speed:9600");
  EXPECT_EQ(framingShown(), std::string(kFramingShown) + "ECHO:Enable");
  EXPECT_EQ(transcript(), "");
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), kLineCommands.size());
  for (std::size_t step = 0; step < writes.size(); ++step) {
    EXPECT_NEAR(toSeconds(writes[step].at) - begin, 2.05 * static_cast<double>(step), 0.01);
  }
}

TEST_F(LineSteps, EachBeginOnAnEmptyTranscript) {
  press();
  for (std::size_t step = 1; step <= kLineCommands.size(); ++step) {
    leaveInTranscript("left over");
    run(1);
    EXPECT_EQ(transcript(), "") << step;
  }
}

// What nobody has claimed by then would refuse the next step.
TEST_F(LineSteps, ALateRefusalIsCountedAgainstTheStepThatRuns) {
  reply("AT+IFC=2,2", kError, fromSeconds(1.5));
  save();
  EXPECT_EQ(status(), "Changes UnsuccessFul-DCD signal");
}

TEST_F(LineSteps, ShowTheirRatesAndFramingAsSoonAsTheyAreTaken) {
  answerAll(kOk);
  press();
  run(2.04);
  EXPECT_EQ(speedShown(), "before");
  run(0.02);
  EXPECT_EQ(speedShown(), "Speed:9600");
  EXPECT_EQ(framingShown(), "before");
  run(2.05);
  EXPECT_EQ(framingShown(), kFramingShown);
  run(4 * 2.05);
  EXPECT_EQ(framingShown(), kFramingShown);
  run(2.05);
  EXPECT_EQ(framingShown(), std::string(kFramingShown) + "ECHO:Enable");
}

struct StepOutcomeRow {
  std::string name;
  std::string reply;
  bool taken;
  bool failed;
};
class StepOutcome : public LineSteps,
                    public ::testing::WithParamInterface<std::tuple<std::size_t, StepOutcomeRow>> {
};

TEST_P(StepOutcome, IsShownOnItsOwnPlaceAndTheOtherStepsAreMade) {
  const auto& [step, outcome] = GetParam();
  reply(kLineCommands[step], outcome.reply);
  save();
  EXPECT_EQ(commands(), kLineCommands);
  EXPECT_EQ(status(), outcome.failed ? afterFailureOf(step) : kSaved);
  EXPECT_EQ(speedShown(), outcome.taken && step == 0 ? "Speed:9600" : "before");
  const std::string framing = step == 1   ? kFramingShown
                              : step == 6 ? "beforeECHO:Enable"
                                          : "before";
  EXPECT_EQ(framingShown(), outcome.taken ? framing : "before");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, StepOutcome,
    ::testing::Combine(
        ::testing::Range(std::size_t{0}, std::size_t{8}),
        ::testing::Values(
            StepOutcomeRow{"Ok", kOk, true, false}, StepOutcomeRow{"Error", kError, false, true},
            StepOutcomeRow{"ErrorWithACode", "\r\n+CME ERROR: 4\r\n", false, true},
            StepOutcomeRow{"Both", "\r\nOK\r\n\r\nERROR\r\n", true, true},
            StepOutcomeRow{"BothTheOtherWayRound", "\r\nERROR\r\n\r\nOK\r\n", true, true},
            StepOutcomeRow{"SmallLetters", "\r\nok\r\nerror\r\n", false, false},
            StepOutcomeRow{"Noise", "\r\n\x80\xFF?\r\n", false, false},
            StepOutcomeRow{"TheEchoAlone", "", false, false})),
    [](const auto& row) {
      return std::get<1>(row.param).name + "ToStep" + std::to_string(std::get<0>(row.param) + 1);
    });

TEST_F(LineSteps, AllRefusedJoinTheirWordsWithoutASeparator) {
  answerAll(kError);
  save();
  EXPECT_EQ(status(),
            " Changes UnsuccessFul-IPR  Changes UnsuccessFul-Character Framing "
            "Changes UnsuccessFul-DCE-DTE Flow ControlChanges UnsuccessFul-DCD signal"
            "Changes UnsuccessFul-DTR signalChanges UnsuccessFul-DSR signal"
            "Changes UnsuccessFul-ECHO");
  EXPECT_EQ(commands(), kLineCommands);
  EXPECT_EQ(speedShown(), "before");
  EXPECT_EQ(framingShown(), "before");
}

TEST_F(LineSteps, TwoRefusedStandInOneLine) {
  reply("AT+IFC=2,2", kError);
  reply("AT&S0", kError);
  save();
  EXPECT_EQ(status(), "Changes UnsuccessFul-DCE-DTE Flow ControlChanges UnsuccessFul-DSR signal");
}

TEST_F(LineSteps, AFailureIsForgottenByTheNextTime) {
  answerAll(kError);
  save();
  answerAll(kOk);
  save();
  EXPECT_EQ(status(), kSaved);
}

TEST_F(LineSteps, SaveTheProfileWhateverWasRefused) {
  answerAll(kError);
  save();
  EXPECT_EQ(commands().back(), "AT&W");
}

TEST_F(LineSteps, TellAnEchoThatIsOffBehindTheFraming) {
  answerAll(kOk);
  click(form().Option27);
  reply("ATE0", kOk);
  save();
  EXPECT_EQ(framingShown(), std::string(kFramingShown) + "ECHO:Disable");
}

TEST_F(LineSteps, TellTheEchoBehindWhateverStandsThere) {
  form1().Label7.Caption = "Character Framing:7 Data,1 Stop Parity:OddECHO:Enabled";
  reply("ATE1", kOk);
  save();
  EXPECT_EQ(framingShown(), "Character Framing:7 Data,1 Stop Parity:OddECHO:EnabledECHO:Enable");
}

TEST_F(LineSteps, AutoDetectWithoutParityHasThePrefixTwice) {
  click(form().Option1);
  reply("AT+ICF=0,4", kOk);
  save();
  EXPECT_EQ(commands()[1], "AT+ICF=0,4");
  EXPECT_EQ(framingShown(), "Character Framing:Character Framing:Auto Detect Parity:None");
}

TEST_F(LineSteps, WithThePortClosedLeaveTheirFirstWords) {
  leaveInTranscript("old");
  closePort();
  save();
  EXPECT_EQ(status(), kSaving);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

TEST_F(LineSteps, LetThePortKeepItsSettings) {
  const std::string settings = form1().MSComm1.Settings;
  typeRate("19200");
  reply("AT+IPR=19200", kOk);
  save();
  EXPECT_EQ(speedShown(), "Speed:19200");
  EXPECT_EQ(std::string(form1().MSComm1.Settings), settings);
  EXPECT_EQ(status(), kSaved);
}

}  // namespace
}  // namespace gsm
