#include <gtest/gtest.h>

#include "tests/module/makers_features_test.h"

namespace gsm {
namespace {

class VoiceMail : public MakersFeaturesTest {
 protected:
  void SetUp() override {
    MakersFeaturesTest::SetUp();
    openWindow();
    press(form().Command2);
  }
  std::string status() { return caption(form().Label6); }
};

TEST_F(VoiceMail, EachModeHasItsCodeAndTheLineIsAlwaysTheFirst) {
  for (int mode = 0; mode < 3; ++mode) {
    pick(form().Combo4, mode);
    press(form().Command9);
    EXPECT_EQ(sent(), Texts{"AT+CPHS=" + std::to_string(mode) + ",1\r"});
  }
}

TEST_F(VoiceMail, ATypedModeHasNoCode) {
  for (const char* typed : {"1", "Activate", " "}) {
    typeInto(form().Combo4, typed);
    press(form().Command9);
    EXPECT_EQ(sent(), Texts{"AT+CPHS=,1\r"}) << typed;
  }
}

TEST_F(VoiceMail, WithoutAModeNothingHappens) {
  leaveInTranscript("old");
  inPanel([this] { form().Label6.Caption = "Changes SuccessFul-CPHS"; });
  press(form().Command9);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(status(), "Changes SuccessFul-CPHS");
  EXPECT_EQ(transcript(), "old");
  expectAtRest();
}

class VoiceMailOutcome : public VoiceMail, public ::testing::WithParamInterface<OutcomeRow> {};

// The words of the change before stand until those of the next one.
TEST_P(VoiceMailOutcome, IsShown) {
  reply("AT+CPHS=2,1", GetParam().reply);
  pick(form().Combo4, 2);
  inPanel([this] { form().Label6.Caption = "old"; });
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  click(form().Command9);
  EXPECT_EQ(transcript(), "");
  run(0.99);
  EXPECT_EQ(status(), "old");
  settle();
  EXPECT_EQ(status(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Is, VoiceMailOutcome,
    ::testing::Values(
        OutcomeRow{.name = "Ok", .reply = kOk, .shown = "Changes SuccessFul-CPHS"},
        OutcomeRow{.name = "OkBehindTheState",
                   .reply = information("+WVMI: 1,1"),
                   .shown = "Changes SuccessFul-CPHS"},
        OutcomeRow{.name = "Error", .reply = kError, .shown = "Changes UnSuccessFul-CPHS"},
        OutcomeRow{
            .name = "Both", .reply = "\r\nERROR\r\n\r\nOK\r\n", .shown = "Changes SuccessFul-CPHS"},
        OutcomeRow{.name = "Neither", .reply = "\r\nsomething else\r\n", .shown = "old"},
        OutcomeRow{.name = "Nothing", .reply = "", .shown = "old"}),
    RowName());

TEST_F(VoiceMail, ASecondIsWaitedForAtLeast) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  pick(form().Combo4, 0);
  click(form().Command9);
  run(0.99);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
}

TEST_F(VoiceMail, AClosedPortLeavesTheStatus) {
  pick(form().Combo4, 0);
  inPanel([this] { form().Label6.Caption = "old"; });
  closePort();
  press(form().Command9);
  EXPECT_EQ(status(), "old");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
