#include <gtest/gtest.h>

#include "tests/module/makers_features_test.h"

namespace gsm {
namespace {

class Indications : public MakersFeaturesTest {
 protected:
  void SetUp() override {
    MakersFeaturesTest::SetUp();
    openWindow();
  }
  std::string status() { return caption(form().Label1); }
  void setStatus(const std::string& text) {
    inPanel([this, text] { form().Label1.Caption = text; });
    run(0);
  }
};

// -- The dump of the cell environment -------------------------------------------------------------

TEST_F(Indications, AnAutomaticDumpOfTheNeighboursIsAskedFor) {
  pick(form().Combo1, 1);
  pick(form().Combo2, 1);
  press(form().Command7);
  EXPECT_EQ(sent(), Texts{"AT+CCED=1,2\r"});
}

TEST_F(Indications, EachModeAndEachDumpHaveTheirCode) {
  const Texts modes = {"0", "1", "2"};
  const Texts dumps = {"1", "2", "4"};
  for (int mode = 0; mode < 3; ++mode) {
    for (int dump = 0; dump < 3; ++dump) {
      pick(form().Combo1, mode);
      pick(form().Combo2, dump);
      press(form().Command7);
      EXPECT_EQ(sent(), Texts{"AT+CCED=" + modes[static_cast<std::size_t>(mode)] + "," +
                              dumps[static_cast<std::size_t>(dump)] + "\r"});
    }
  }
}

TEST_F(Indications, ATypedDumpHasNoCode) {
  pick(form().Combo1, 0);
  for (const char* typed : {"7", "Main Cell", " "}) {
    typeInto(form().Combo2, typed);
    press(form().Command7);
    EXPECT_EQ(sent(), Texts{"AT+CCED=0,\r"}) << typed;
  }
}

TEST_F(Indications, TheModeOfTheDumpTakesNoTyping) {
  pick(form().Combo2, 0);
  typeInto(form().Combo1, "1 Shot Request");
  EXPECT_EQ(form().Combo1.Text.peek(), "");
}

TEST_F(Indications, WithoutModeOrDumpABoxSaysSoAndNothingIsSent) {
  leaveInTranscript("old");
  setStatus("Changes SuccessFul-WIND");
  const auto expectRefusal = [this] {
    press(form().Command7);
    expectBox("Select Valid Mode And Request Dump");
    EXPECT_EQ(sent(), Texts{});
    EXPECT_EQ(status(), "Changes SuccessFul-WIND");
    EXPECT_EQ(transcript(), "old");
    expectAtRest();
  };
  expectRefusal();
  pick(form().Combo2, 0);
  expectRefusal();
  typeInto(form().Combo2, "");
  pick(form().Combo1, 0);
  expectRefusal();
}

class DumpOutcome : public Indications, public ::testing::WithParamInterface<OutcomeRow> {};

TEST_P(DumpOutcome, IsShown) {
  reply("AT+CCED=0,4", GetParam().reply);
  pick(form().Combo1, 0);
  pick(form().Combo2, 2);
  setStatus("old");
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  click(form().Command7);
  EXPECT_EQ(status(), "");
  EXPECT_EQ(transcript(), "");
  run(0.99);
  EXPECT_EQ(status(), "");
  settle();
  EXPECT_EQ(status(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{"AT+CCED=0,4\r"});
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Is, DumpOutcome,
    ::testing::Values(
        OutcomeRow{.name = "Ok", .reply = kOk, .shown = "Changes SuccessFul-CCED"},
        OutcomeRow{.name = "OkBehindTheDump",
                   .reply = information("+CCED:208,20,0002,0418,37,706,24,,,0,,,0"),
                   .shown = "Changes SuccessFul-CCED"},
        OutcomeRow{.name = "Error", .reply = kError, .shown = "Changes UnSuccessFul-CCED"},
        OutcomeRow{
            .name = "Both", .reply = "\r\nERROR\r\n\r\nOK\r\n", .shown = "Changes SuccessFul-CCED"},
        OutcomeRow{.name = "Neither", .reply = "\r\n+CCED:208,20,0002,0418\r\n", .shown = ""},
        OutcomeRow{.name = "Nothing", .reply = "", .shown = ""}),
    RowName());

// -- The indications that come unasked ------------------------------------------------------------

struct LevelRow {
  std::string name;
  int index;
  std::string level;
  std::string words;
};

class IndicationLevel : public Indications, public ::testing::WithParamInterface<LevelRow> {};

TEST_P(IndicationLevel, IsTold) {
  pick(form().Combo3, GetParam().index);
  EXPECT_EQ(form().Combo3.Text.peek(), GetParam().level);
  EXPECT_EQ(caption(form().Label5), GetParam().words);
}

TEST_P(IndicationLevel, IsSentByItsText) {
  pick(form().Combo3, GetParam().index);
  press(form().Command8);
  EXPECT_EQ(sent(), Texts{"AT+WIND=" + GetParam().level + "\r"});
}

INSTANTIATE_TEST_SUITE_P(
    Of, IndicationLevel,
    ::testing::Values(
        LevelRow{.name = "None", .index = 0, .level = "0", .words = "WIND disable"},
        LevelRow{.name = "SimPresence",
                 .index = 1,
                 .level = "1",
                 .words = "The SIM Presence Has Been Detected"},
        LevelRow{
            .name = "Alerting", .index = 2, .level = "2", .words = "Calling Party Is Alerting"},
        LevelRow{.name = "ReadyForSome",
                 .index = 3,
                 .level = "4",
                 .words = "Module is Ready to Treat AT Commands(Except phonebook,AOC,SMS)"},
        LevelRow{.name = "ReadyForAll",
                 .index = 4,
                 .level = "8",
                 .words = "Module Is Ready To Treat ALL AT Commands At The End Of Init"},
        LevelRow{.name = "CallCreated",
                 .index = 5,
                 .level = "16",
                 .words = "Indication that a New Call Identifier Has Been Created"},
        LevelRow{.name = "CallReleased",
                 .index = 6,
                 .level = "32",
                 .words = "Indication that an Active,Held or Waiting Call Has Been Released by "
                          "network or other Party"},
        LevelRow{.name = "Service",
                 .index = 7,
                 .level = "64",
                 .words = "Network Service Avialable Indication"},
        LevelRow{
            .name = "NetworkLost", .index = 8, .level = "128", .words = "Network Lost Indication"},
        LevelRow{.name = "AudioOn", .index = 9, .level = "256", .words = "Audio On Indication"}),
    RowName());

TEST_F(Indications, ATypedLevelIsSentAndKeepsTheWordsOfTheOneBefore) {
  pick(form().Combo3, 2);
  typeInto(form().Combo3, "3");
  EXPECT_EQ(caption(form().Label5), "Calling Party Is Alerting");
  press(form().Command8);
  EXPECT_EQ(sent(), Texts{"AT+WIND=3\r"});
  EXPECT_EQ(caption(form().Label5), "Calling Party Is Alerting");
}

TEST_F(Indications, ATypedLevelOfAnyKindIsSentAsItStands) {
  for (const char* typed : {"1023", " 12 ", "-1", "all", "4,1", "64"}) {
    typeInto(form().Combo3, typed);
    press(form().Command8);
    EXPECT_EQ(sent(), Texts{"AT+WIND=" + std::string(typed) + "\r"});
    EXPECT_EQ(caption(form().Label5), "");
  }
}

TEST_F(Indications, NoLevelHasNoWords) {
  pick(form().Combo3, 2);
  inPanel([this] { form().Combo3.ListIndex = -1; });
  run(0);
  EXPECT_EQ(caption(form().Label5), "");
  expectAtRest();
}

TEST_F(Indications, WithoutALevelABoxSaysSoAndNothingIsSent) {
  leaveInTranscript("old");
  setStatus("Changes SuccessFul-CCED");
  press(form().Command8);
  expectBox("Select Indication Level");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(status(), "Changes SuccessFul-CCED");
  EXPECT_EQ(transcript(), "old");
  expectAtRest();
}

class LevelOutcome : public Indications, public ::testing::WithParamInterface<OutcomeRow> {};

TEST_P(LevelOutcome, IsShown) {
  reply("AT+WIND=9999", GetParam().reply);
  typeInto(form().Combo3, "9999");
  setStatus("old");
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  click(form().Command8);
  EXPECT_EQ(status(), "");
  EXPECT_EQ(transcript(), "");
  run(0.99);
  EXPECT_EQ(status(), "");
  settle();
  EXPECT_EQ(status(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Is, LevelOutcome,
    ::testing::Values(
        OutcomeRow{.name = "Ok", .reply = kOk, .shown = "Changes SuccessFul-WIND"},
        OutcomeRow{.name = "Error", .reply = kError, .shown = "Changes UnSuccessFul-WIND"},
        OutcomeRow{
            .name = "Both", .reply = "\r\nERROR\r\n\r\nOK\r\n", .shown = "Changes SuccessFul-WIND"},
        OutcomeRow{.name = "Neither", .reply = "\r\n+WIND: 3\r\n", .shown = ""},
        OutcomeRow{.name = "Nothing", .reply = "", .shown = ""}),
    RowName());

TEST_F(Indications, ASecondIsWaitedForAtLeast) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  pick(form().Combo1, 0);
  pick(form().Combo2, 0);
  pick(form().Combo3, 1);
  for (CommandButton* button : {&form().Command7, &form().Command8}) {
    click(*button);
    run(0.99);
    EXPECT_GT(waiting(), 0) << button->name();
    run(0.02);
    EXPECT_EQ(waiting(), 0) << button->name();
  }
}

TEST_F(Indications, AClosedPortLeavesTheStatusEmptyAndTheTranscriptToo) {
  pick(form().Combo1, 0);
  pick(form().Combo2, 0);
  pick(form().Combo3, 1);
  closePort();
  for (CommandButton* button : {&form().Command7, &form().Command8}) {
    setStatus("old");
    leaveInTranscript("old");
    press(*button);
    EXPECT_EQ(status(), "");
    EXPECT_EQ(transcript(), "");
    expectAtRest();
  }
}

}  // namespace
}  // namespace gsm
