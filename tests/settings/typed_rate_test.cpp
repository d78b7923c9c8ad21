#include <gtest/gtest.h>

#include "tests/settings/line_settings_test.h"

namespace gsm {
namespace {

// The rate is a text that nobody holds against the list.
class TypedRateTest : public LineSettingsTest {
 protected:
  void SetUp() override {
    LineSettingsTest::SetUp();
    fillIn();
  }
};

struct RateRow {
  std::string name;
  std::string rate;
};
class TypedRate : public TypedRateTest, public ::testing::WithParamInterface<RateRow> {};

TEST_P(TypedRate, IsSentAndShownAsItStands) {
  typeRate(GetParam().rate);
  reply("AT+IPR=" + GetParam().rate, kOk);
  save();
  Texts expected = kLineCommands;
  expected[0] = "AT+IPR=" + GetParam().rate;
  EXPECT_EQ(commands(), expected);
  EXPECT_EQ(speedShown(), "Speed:" + GetParam().rate);
  EXPECT_EQ(status(), kSaved);
  expectAtRest();
}

TEST_P(TypedRate, RefusedIsTheFailureOfTheRateAlone) {
  typeRate(GetParam().rate);
  reply("AT+IPR=" + GetParam().rate, kError);
  save();
  EXPECT_EQ(status(), " Changes UnsuccessFul-IPR ");
  EXPECT_EQ(speedShown(), "before");
  EXPECT_EQ(sent().size(), 8U);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, TypedRate,
    ::testing::Values(RateRow{"OfTheList", "19200"}, RateRow{"NotInTheList", "1234"},
                      RateRow{"AnyRate", "0"}, RateRow{"Negative", "-9600"},
                      RateRow{"Fraction", "9600.5"}, RateRow{"Letters", "fast"},
                      RateRow{"OneBlank", " "}, RateRow{"BlankInFront", " 9600"},
                      RateRow{"BlankBehind", "9600 "}, RateRow{"BlankWithin", "9 600"},
                      RateRow{"Quotes", "\"9600\""}, RateRow{"Comma", "9600,1"},
                      RateRow{"AnotherCommand", "9600;+CMEE=1"}, RateRow{"Umlaut", "\xE4"},
                      RateRow{"ManyDigits", std::string(300, '9')}),
    RowName());

TEST_F(TypedRateTest, PickedFromTheListIsSent) {
  EXPECT_TRUE(form().Combo1.userSelect(0));
  save();
  EXPECT_EQ(commands()[0], "AT+IPR=300");
}

TEST_F(TypedRateTest, TakesNoLineEnds) {
  typeRate("96\r\n00");
  save();
  const Texts all = commands();
  EXPECT_EQ(all.size(), 8U);
  EXPECT_EQ(all[0].find_first_of("\r\n"), std::string::npos);
}

// The echo is searched as well as the reply.
TEST_F(TypedRateTest, ThatReadsLikeAResultIsTakenForOne) {
  typeRate("OK");
  reply("AT+IPR=OK", kError);
  save();
  EXPECT_EQ(speedShown(), "Speed:OK");
  EXPECT_EQ(status(), " Changes UnsuccessFul-IPR ");
  typeRate("ERROR");
  reply("AT+IPR=ERROR", "");
  save();
  EXPECT_EQ(speedShown(), "Speed:OK");
  EXPECT_EQ(status(), " Changes UnsuccessFul-IPR ");
}

// The dispatcher searches it too, and takes the reply along.
TEST_F(TypedRateTest, ThatReadsLikeACallIsTakenForOne) {
  typeRate("RING");
  reply("AT+IPR=RING", kOk + std::string(kError));
  press();
  run(2.1);
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
  inPanel([this] { form1().Timer2.Enabled = false; });
  settle();
  EXPECT_EQ(speedShown(), "before");
  EXPECT_EQ(status(), kSaved);
}

TEST_F(TypedRateTest, ChangedWhileItsStepRunsIsShownAsItStandsThen) {
  reply("AT+IPR=9600", kOk);
  press();
  run(1);
  typeRate("300");
  settle();
  EXPECT_EQ(commands()[0], "AT+IPR=9600");
  EXPECT_EQ(speedShown(), "Speed:300");
}

TEST_F(TypedRateTest, ChangedAfterItsStepIsSentTheNextTime) {
  reply("AT+IPR=9600", kOk);
  press();
  run(4);
  typeRate("300");
  settle();
  EXPECT_EQ(speedShown(), "Speed:9600");
  sent();
  save();
  EXPECT_EQ(commands()[0], "AT+IPR=300");
}

}  // namespace
}  // namespace gsm
