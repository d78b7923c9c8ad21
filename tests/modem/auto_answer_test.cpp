#include <gtest/gtest.h>

#include "phonebook/form5.h"
#include "tests/support/healthy_modem_test.h"

namespace gsm {
namespace {

constexpr const char* kNote = "AutoAnswer Enabled";

// The reply to the query of the rings before an answer, and what it makes of the call prompt.
struct AutoAnswerRow {
  std::string name;
  std::string reply;  // after nothing: the whole of what comes
  bool enabledBefore;
  bool enabled;
  std::string note;
};

class AutoAnswer : public HealthyModemTest, public ::testing::WithParamInterface<AutoAnswerRow> {};

TEST_P(AutoAnswer, IsTakenFromTheReply) {
  startHealthy();
  world().modem.add({.write = "ATS0?\r",
                     .replies = {{{ModemScript::kDefaultDelay, GetParam().reply}}},
                     .echo = false});
  inPanel([this] {
    panel().form5.Command1.Enabled = GetParam().enabledBefore;
    panel().form5.Label2.Caption = kBefore;
  });
  settle();
  EXPECT_EQ(panel().form5.Command1.Enabled.peek(), GetParam().enabled);
  EXPECT_EQ(panel().form5.Label2.Caption.peek(), GetParam().note);
  EXPECT_FALSE(panel().form5.Visible.peek());
  expectWorking();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AutoAnswer,
    ::testing::Values(
        AutoAnswerRow{"OffEnablesTheAnswer", "ATS0?\r\r\n000\r\n\r\nOK\r\n", false, true, ""},
        AutoAnswerRow{"OnDisablesIt", "ATS0?\r\r\n002\r\n\r\nOK\r\n", true, false, kNote},
        AutoAnswerRow{"OnAtMostDisablesIt", "ATS0?\r\r\n255\r\n\r\nOK\r\n", true, false, kNote},
        AutoAnswerRow{"OneDigitIsNotOff", "ATS0?\r\r\n0\r\n\r\nOK\r\n", true, false, kNote},
        AutoAnswerRow{"FourDigitsCountByThree", "ATS0?\r\r\n0001\r\n\r\nOK\r\n", false, true, ""},
        AutoAnswerRow{"ABlankInFrontIsNotOff", "ATS0?\r\r\n 000\r\n\r\nOK\r\n", true, false, kNote},
        AutoAnswerRow{"NoValueIsNotOff", "ATS0?\r\r\nOK\r\n", true, false, kNote},
        AutoAnswerRow{"WithoutOkNothingHappens", "ATS0?\r\r\n000\r\n", false, false, kBefore},
        AutoAnswerRow{"AnErrorDoesNothing", "ATS0?\r\r\nERROR\r\n", true, true, kBefore},
        AutoAnswerRow{"WithoutEchoNothingHappens", "\r\n000\r\n\r\nOK\r\n", false, false, kBefore},
        AutoAnswerRow{"SilenceDoesNothing", "", true, true, kBefore},
        AutoAnswerRow{"TheOffsetCountsFromTheEcho", "junk\r\nATS0?\r\r\n000\r\n\r\nOK\r\n", false,
                      true, ""},
        AutoAnswerRow{"AnOkInFrontIsAnOk", "OK ATS0?\r\r\n000\r\n", false, true, ""}),
    RowName());

}  // namespace
}  // namespace gsm
