#include <gtest/gtest.h>

#include "tests/audio/audio_test.h"

namespace gsm {
namespace {

class SideToneChange : public AudioTest {
 protected:
  void SetUp() override {
    AudioTest::SetUp();
    openWindow();
    turnTo(toneAndEcho);
    sent();
    setStatus("before");
  }
};

TEST_F(SideToneChange, WantsAnOption) {
  leaveInTranscript("old");
  press(form().Command4);
  expectBox("Please Select The Options ");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(transcript(), "old");
  EXPECT_EQ(status(), "before");
}

struct SentSideToneRow {
  std::string name;
  OptionButton Form6::*option;
  int level;
  std::string sent;
};

class SideToneSent : public SideToneChange,
                     public ::testing::WithParamInterface<SentSideToneRow> {};

TEST_P(SideToneSent, IsTheOptionAndTheLevel) {
  click(form().*GetParam().option);
  move(form().Slider10, GetParam().level);
  leaveInTranscript("old");
  click(form().Command4);
  EXPECT_EQ(sent(), Texts{GetParam().sent});
  EXPECT_EQ(transcript(), "");
  run(0.98);
  EXPECT_GT(waiting(), 0);
  run(0.04);
  EXPECT_EQ(status(), "before");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SideToneSent,
    ::testing::Values(SentSideToneRow{"Enabled", &Form6::Option2, 2, "AT+SIDET=1,2\r"},
                      SentSideToneRow{"EnabledAtItsLeast", &Form6::Option2, 0, "AT+SIDET=1,0\r"},
                      SentSideToneRow{"DisabledWithItsLevel", &Form6::Option1, 3, "AT+SIDET=0,3\r"},
                      SentSideToneRow{"DisabledAtItsLeast", &Form6::Option1, 0, "AT+SIDET=0,0\r"}),
    RowName());

TEST_F(SideToneChange, TheLastOptionCounts) {
  click(form().Option2);
  click(form().Option1);
  EXPECT_FALSE(form().Option2.Value.peek());
  press(form().Command4);
  EXPECT_EQ(sent(), Texts{"AT+SIDET=0,0\r"});
}

// They lie in frames of their own.
TEST_F(SideToneChange, ItsOptionsLeaveThoseOfTheAnswerAlone) {
  assign([this] { form().Option4.Value = true; });
  click(form().Option1);
  EXPECT_TRUE(form().Option4.Value.peek());
}

class SideToneOutcome : public SideToneChange,
                        public ::testing::WithParamInterface<DispatchedRow> {};

TEST_P(SideToneOutcome, IsTheDispatchersToTell) {
  click(form().Option2);
  reply("AT+SIDET=1,0", GetParam().reply);
  press(form().Command4);
  EXPECT_EQ(status(), GetParam().status);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(Of, SideToneOutcome, ::testing::ValuesIn(kDispatchedOutcomes), RowName());

TEST_F(SideToneChange, OfAModemWithoutEchoGetsNoOutcome) {
  click(form().Option2);
  replyWithoutEcho("AT+SIDET=1,0", kOk);
  press(form().Command4);
  EXPECT_EQ(status(), "before");
}

TEST_F(SideToneChange, OfAClosedPortIsNotSent) {
  click(form().Option2);
  closePort();
  press(form().Command4);
  EXPECT_EQ(status(), "before");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
