#include <gtest/gtest.h>

#include "tests/module/makers_features_test.h"

namespace gsm {
namespace {

class Pins : public MakersFeaturesTest {
 protected:
  void SetUp() override {
    MakersFeaturesTest::SetUp();
    openWindow();
    press(form().Command3);
    inPanel([this] { form().Label9.Caption = "old"; });
    run(0);
  }
  std::string status() { return caption(form().Label9); }
};

TEST_F(Pins, EachIsAskedForByItsPlace) {
  for (int pin = 0; pin < 8; ++pin) {
    pick(form().Combo5, pin);
    press(form().Command10);
    EXPECT_EQ(sent(), Texts{"AT+WIOR=" + std::to_string(pin) + "\r"});
  }
}

TEST_F(Pins, ATypedOneHasNoPlace) {
  for (const char* typed : {"3", "9", " "}) {
    typeInto(form().Combo5, typed);
    press(form().Command10);
    EXPECT_EQ(sent(), Texts{"AT+WIOR=-1\r"}) << typed;
  }
}

TEST_F(Pins, WithoutOneNothingHappens) {
  leaveInTranscript("old");
  press(form().Command10);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(status(), "old");
  EXPECT_EQ(transcript(), "old");
  expectAtRest();
}

// What was meant to hold the reply is never set, so that the reading fails at its first look.
struct TellsRow {
  std::string name;
  std::string reply;
};

class PinThatIsTold : public Pins, public ::testing::WithParamInterface<TellsRow> {};

TEST_P(PinThatIsTold, IsNotShownAndStaysInTheTranscript) {
  reply("AT+WIOR=3", GetParam().reply);
  pick(form().Combo5, 3);
  leaveInTranscript("older");
  click(form().Command10);
  EXPECT_EQ(status(), "");
  EXPECT_EQ(transcript(), "");
  settle();
  EXPECT_EQ(status(), "");
  EXPECT_EQ(transcript(), "AT+WIOR=3\r" + GetParam().reply);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    As, PinThatIsTold,
    ::testing::Values(TellsRow{.name = "Reset", .reply = information("+WIOR: 0")},
                      TellsRow{.name = "Set", .reply = information("+WIOR: 1")},
                      TellsRow{.name = "OkAlone", .reply = kOk},
                      TellsRow{.name = "Both", .reply = "\r\nERROR\r\n\r\nOK\r\n"}),
    RowName());

TEST_F(Pins, TheNextClearingTakesTheReply) {
  reply("AT+WIOR=3", information("+WIOR: 1"));
  pick(form().Combo5, 3);
  press(form().Command10);
  press(form().Command1);
  EXPECT_EQ(transcript(), "");
}

TEST_F(Pins, ARefusedOneIsNotSupported) {
  reply("AT+WIOR=3", kError);
  pick(form().Combo5, 3);
  click(form().Command10);
  run(0.99);
  EXPECT_EQ(status(), "");
  settle();
  EXPECT_EQ(status(), "Not Supported");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(Pins, AnAnswerWithoutAResultIsThrownAway) {
  reply("AT+WIOR=3", "\r\n+WIOR: 1\r\n");
  pick(form().Combo5, 3);
  press(form().Command10);
  EXPECT_EQ(status(), "");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(Pins, ASilentModemLeavesTheStatusEmpty) {
  leaveInTranscript("\r\nERROR\r\n");
  pick(form().Combo5, 3);
  press(form().Command10);
  EXPECT_EQ(status(), "");
  EXPECT_EQ(transcript(), "");
}

TEST_F(Pins, ASecondIsWaitedForAtLeast) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  pick(form().Combo5, 0);
  click(form().Command10);
  run(0.99);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
}

TEST_F(Pins, AClosedPortLeavesTheStatusEmpty) {
  pick(form().Combo5, 0);
  closePort();
  press(form().Command10);
  EXPECT_EQ(status(), "");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
