#include <gtest/gtest.h>

#include "tests/module/toolkit_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

class ToolkitChange : public ToolkitTest {
 protected:
  void SetUp() override {
    ToolkitTest::SetUp();
    loadActive();
  }
  /// The user types into the mode.
  void typeMode(const std::string& text) {
    inPanel([this, text] { form().Combo1.userEdit(text); });
    run(0);
  }
};

TEST_F(ToolkitChange, ChoosingConfigureOpensAnEmptyConfiguration) {
  inPanel([this] {
    form().Text1.Text = "old";
    form().Label6.Visible = true;
  });
  run(0);
  pick(form().Combo1, configure);
  EXPECT_TRUE(asksForConfiguration());
  EXPECT_EQ(form().Text1.Text.peek(), "");
  EXPECT_FALSE(wantsReset());
}

TEST_F(ToolkitChange, ChoosingAnotherModeClosesItAndForgetsWhatWasTyped) {
  for (const Mode other : {activate, deActivate}) {
    pick(form().Combo1, configure);
    fill(form().Text1, "160060C01F");
    inPanel([this] { form().Label6.Visible = true; });
    run(0);
    pick(form().Combo1, other);
    EXPECT_FALSE(asksForConfiguration());
    EXPECT_EQ(form().Text1.Text.peek(), "");
    EXPECT_FALSE(wantsReset());
  }
}

TEST_F(ToolkitChange, TheConfigurationTakesTwentyCharactersOfAnyKind) {
  pick(form().Combo1, configure);
  fill(form().Text1, "xyz 60060C01F1600\"60C01F");
  EXPECT_EQ(form().Text1.Text.peek(), "xyz 60060C01F1600\"60");
  press(form().Command1);
  EXPECT_EQ(sent(), Texts{"AT+STSF=2,\"xyz 60060C01F1600\"60\"\r"});
}

TEST_F(ToolkitChange, ConfigureSendsItsCodeWithTheQuotedText) {
  reply("AT+STSF=2,\"160060C01F\"", kOk);
  pick(form().Combo1, configure);
  fill(form().Text1, "160060C01F");
  leaveInTranscript("ERROR");
  click(form().Command1);
  EXPECT_EQ(status(), (Texts{"", "(TIMEOUT: 3)", "(Automatic Response  Activated)"}));
  EXPECT_EQ(transcript(), "");
  EXPECT_TRUE(asksForConfiguration());
  settle();
  EXPECT_EQ(sent(), Texts{"AT+STSF=2,\"160060C01F\"\r"});
  EXPECT_EQ(line(), "Changes SuccessFul-SIM ToolKit");
  EXPECT_TRUE(wantsReset());
  EXPECT_FALSE(asksForConfiguration());
  EXPECT_EQ(form().Text1.Text.peek(), "");
  EXPECT_EQ(mode(), "Configure");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(ToolkitChange, ConfigureWithoutATextSaysSoAndHidesTheBox) {
  pick(form().Combo1, configure);
  leaveInTranscript("old");
  press(form().Command1);
  expectBox("Enter Valid Config Number", MessageBoxes::kDefaultTitle);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_FALSE(asksForConfiguration());
  EXPECT_EQ(status(), (Texts{"", "(TIMEOUT: 3)", "(Automatic Response  Activated)"}));
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(mode(), "Configure");
  // The box comes back when the mode is chosen once more.
  press(form().Command1);
  expectBox("Enter Valid Config Number", MessageBoxes::kDefaultTitle);
  pick(form().Combo1, configure);
  EXPECT_TRUE(asksForConfiguration());
}

TEST_F(ToolkitChange, TheBoxOfTheConfigurationStaysUntilTheMessageIsAnswered) {
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  pick(form().Combo1, configure);
  press(form().Command1);
  EXPECT_TRUE(asksForConfiguration());
  inPanel([this] { machine().boxes.answerTop(); });
  settle();
  EXPECT_FALSE(asksForConfiguration());
  EXPECT_EQ(waiting(), 0);
}

TEST_F(ToolkitChange, AConfigurationThatWasReadCantBeSentWithoutChoosingIt) {
  reply("AT+STSF?", information("+STSF: 2,\"160060C01F\",3,1"));
  press(form().Command2);
  sent();
  press(form().Command1);
  expectBox("Enter Valid Config Number", MessageBoxes::kDefaultTitle);
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(ToolkitChange, WithoutAClickTheModeThatWasReadIsSentAgain) {
  press(form().Command1);
  EXPECT_EQ(sent(), Texts{"AT+STSF=1\r"});
}

TEST_F(ToolkitChange, EachModeIsSentByItsPlace) {
  pick(form().Combo1, deActivate);
  press(form().Command1);
  EXPECT_EQ(sent(), Texts{"AT+STSF=0\r"});
  pick(form().Combo1, configure);
  fill(form().Text1, "1");
  pick(form().Combo1, activate);
  press(form().Command1);
  EXPECT_EQ(sent(), Texts{"AT+STSF=1\r"});
}

TEST_F(ToolkitChange, ATypedModeHasNoCode) {
  typeMode("DeActivate");
  press(form().Command1);
  typeMode("Configure");
  inPanel([this] { form().Text1.Text = "1F"; });
  run(0);
  press(form().Command1);
  EXPECT_EQ(sent(), (Texts{"AT+STSF=\r", "AT+STSF=,\"1F\"\r"}));
}

TEST_F(ToolkitChange, AnyOtherTypedTextSendsNothingAndSaysNothing) {
  pick(form().Combo1, configure);
  fill(form().Text1, "1F");
  for (const char* text : {"activate", " Activate", "1"}) {
    typeMode(text);
    leaveInTranscript("\r\nOK\r\n");
    press(form().Command1);
    EXPECT_EQ(line(), "") << text;
    EXPECT_FALSE(wantsReset()) << text;
    EXPECT_FALSE(asksForConfiguration()) << text;
    EXPECT_EQ(transcript(), "") << text;
  }
  EXPECT_EQ(form().Text1.Text.peek(), "");
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

TEST_F(ToolkitChange, WithoutAModeOnlyTakesTheStatusDown) {
  load(kOk);
  closeWindow();
  openWindow();
  leaveInTranscript("old");
  inPanel([this] {
    form().Label3.Visible = true;
    form().Label4.Visible = true;
    form().Label6.Visible = true;
  });
  run(0);
  press(form().Command1);
  EXPECT_EQ(status(), (Texts{"", "()", "()"}));
  EXPECT_FALSE(wantsReset());
  EXPECT_EQ(transcript(), "old");
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

struct ModeOutcomeRow {
  std::string name;
  std::string answer;
  std::string shown;
  bool reset;
};

class ToolkitOutcome : public ToolkitChange,
                       public ::testing::WithParamInterface<ModeOutcomeRow> {};

TEST_P(ToolkitOutcome, IsShownAfterASecond) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  click(form().Command1);
  if (!GetParam().answer.empty()) {
    inPanel([this] { form1().Text1.append(GetParam().answer); }, 0.5);
  }
  run(0.99);
  EXPECT_EQ(line(), "");
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(line(), GetParam().shown);
  EXPECT_EQ(wantsReset(), GetParam().reset);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{"AT+STSF=1\r"});
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Is, ToolkitOutcome,
    ::testing::Values(ModeOutcomeRow{"Ok", kOk, "Changes SuccessFul-SIM ToolKit", true},
                      ModeOutcomeRow{"Error", kError, "Changes UnSuccessFul", false},
                      ModeOutcomeRow{"Both", "\r\nERROR\r\n\r\nOK\r\n",
                                     "Changes SuccessFul-SIM ToolKit", true},
                      ModeOutcomeRow{"Neither", "\r\n+STSF: 1\r\n", "", false},
                      ModeOutcomeRow{"Silence", "", "", false}),
    RowName());

// The notice of a change is taken down at the next one's beginning, and stays down.
TEST_F(ToolkitChange, ARefusedChangeTakesTheNoticeDown) {
  reply("AT+STSF=1", kOk);
  press(form().Command1);
  EXPECT_TRUE(wantsReset());
  reply("AT+STSF=1", kError);
  click(form().Command1);
  EXPECT_FALSE(wantsReset());
  inPanel([this] { form().Label6.Visible = true; });
  settle();
  EXPECT_FALSE(wantsReset());
  EXPECT_EQ(line(), "Changes UnSuccessFul");
}

TEST_F(ToolkitChange, AnsweredByNothingItLeavesTheNoticeAlone) {
  click(form().Command1);
  inPanel([this] { form().Label6.Visible = true; });
  settle();
  EXPECT_TRUE(wantsReset());
}

TEST_F(ToolkitChange, WithoutAPortEndsSilently) {
  pick(form().Combo1, configure);
  fill(form().Text1, "1F");
  closePort();
  press(form().Command1);
  EXPECT_EQ(line(), "");
  EXPECT_TRUE(asksForConfiguration());
  EXPECT_EQ(form().Text1.Text.peek(), "1F");
  expectAtRest();
}

TEST_F(ToolkitChange, MidnightEndsItWhereItIs) {
  startWithOpenPort({2026, 3, 1, 23, 59, 0});
  loadActive();
  pick(form().Combo1, configure);
  fill(form().Text1, "1F");
  reply("AT+STSF=2,\"1F\"", kOk);
  run(59.5 - now());
  click(form().Command1);
  run(1);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(line(), "");
  EXPECT_TRUE(asksForConfiguration());
  expectAtRest();
}

TEST_F(ToolkitChange, ARefreshInTheMiddleTakesTheOutcome) {
  reply("AT+STSF=1", kOk);
  click(form().Command1);
  run(0.02);
  click(form().Command2);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+STSF=1\r", "AT+STSF?\r"}));
  EXPECT_TRUE(line().starts_with("Current Status: Mode:  Activate"));
  EXPECT_FALSE(wantsReset());
  expectAtRest();
}

TEST_F(ToolkitChange, APollsOkInTheMiddleIsTakenForTheModems) {
  reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
  inPanel([this] { form1().Timer2.Enabled = true; });
  run(1.5);
  click(form().Command1);
  run(5);
  EXPECT_EQ(line(), "Changes SuccessFul-SIM ToolKit");
  EXPECT_TRUE(wantsReset());
}

TEST_F(ToolkitChange, ARingTakesTheOutcomeThatItComesWith) {
  reply("AT+STSF=1", kOk + unsolicited("RING"));
  click(form().Command1);
  run(3);
  EXPECT_EQ(line(), "");
  EXPECT_FALSE(wantsReset());
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
}

TEST_F(ToolkitChange, ClosingTheWindowInTheMiddleLoadsItAnewWithTheOutcome) {
  reply("AT+STSF=1", kOk);
  click(form().Command1);
  run(0.5);
  closeWindow();
  settle();
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_EQ(sent(), (Texts{"AT+STSF=1\r", "AT+STSF?\r"}));
  EXPECT_EQ(line(), "Changes SuccessFul-SIM ToolKit");
  EXPECT_TRUE(wantsReset());
  expectAtRest();
}

// The window and its menu.

TEST_F(ToolkitChange, ClosingItSendsNothingAndBringsTheMenuBack) {
  reply("AT+STSF=1", kOk);
  press(form().Command1);
  sent();
  inPanel([this] {
    panel().form16.Show();
    panel().form16.Hide();
    form1().Hide();
  });
  run(0);
  closeWindow();
  EXPECT_FALSE(form().isLoaded());
  EXPECT_TRUE(panel().form16.Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

TEST_F(ToolkitChange, ClosingItTakesTheNoticeDownFirst) {
  reply("AT+STSF=1", kOk);
  press(form().Command1);
  std::vector<bool> wanted;  // as the window went off the screen, and as it was unloaded
  const PropertyWatch watch(form(), [&](PropertyId property) {
    if (property == PropertyId::Visible) wanted.push_back(wantsReset());
  });
  closeWindow();
  ASSERT_FALSE(wanted.empty());
  EXPECT_FALSE(wanted.front());
}

TEST_F(ToolkitChange, OpenedAgainReadsAgain) {
  closeWindow();
  inPanel([this] { window().Show(); });
  settle();
  EXPECT_EQ(sent(), Texts{"AT+STSF?\r"});
  EXPECT_TRUE(form().Label2.Visible.peek());
}

TEST_F(ToolkitChange, TheTitleThatTheMenuGivesStandsUntilTheWindowIsLoadedAnew) {
  expectTitles(panel().form16.Command2, form().Command2, "GSM-SIM TOOl KIT SETTINGS",
               "GSM-SIM TOOLKIT Facility");
}

TEST_F(ToolkitChange, MinimisingAndRestoringItTakesTheStatusWindowAlong) {
  expectStatusWindowFollows();
}

}  // namespace
}  // namespace gsm
