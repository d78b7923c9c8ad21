#include <gtest/gtest.h>

#include "tests/module/makers_features_test.h"

namespace gsm {
namespace {

const std::string kCommand = "AT+CIND?";
const std::string kReply = information("+CIND: 5,3,1,0,0,1,0");
const std::string kWhole = kCommand + "\r" + kReply;

// Replies of which the line loses everything behind some byte.
class CutFeatureReply : public MakersFeaturesTest, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    MakersFeaturesTest::SetUp();
    openWindow();
  }
  /// As much of `whole`, the reply to `command`, as the line lets through.
  std::string begin(const std::string& whole) {
    return whole.substr(0, static_cast<std::size_t>(GetParam()));
  }
  /// The modem answers `command` with the beginning of `whole`, and with the rest `restAfter`
  /// seconds later, if at all.
  void answerCut(const std::string& command, const std::string& whole, double restAfter = 0) {
    std::vector<ModemScript::Chunk> chunks;
    if (!begin(whole).empty()) chunks.push_back({ModemScript::kDefaultDelay, begin(whole)});
    const std::string rest = whole.substr(begin(whole).size());
    if (restAfter > 0 && !rest.empty()) chunks.push_back({fromSeconds(restAfter), rest});
    world().modem.add({.write = command + "\r", .replies = {chunks}, .echo = false});
  }
  static bool holds(const std::string& text, const std::string& key) {
    return text.find(key) != std::string::npos;
  }
  static constexpr const char* kWords =
      "BatteryChargeLevel->5,   signal level-3,   service Enabled,   No New Message,   "
      "No New Call,   Roam Enabled,   SMS Not FULL";
};

TEST_P(CutFeatureReply, OfTheIndicatorsIsShownWholeOrNotAtAll) {
  answerCut(kCommand, kWhole);
  press(form().Command6);
  const std::string come = begin(kWhole);
  EXPECT_EQ(indicators(), holds(come, "OK") ? kWords : kWaiting);
  // Where the reading has failed, what has come stays.
  const bool failed = holds(come, "+CIND:") && !holds(come, "OK");
  EXPECT_EQ(transcript(), failed ? come : "");
  expectAtRest();
}

TEST_P(CutFeatureReply, OfTheIndicatorsIsWholeAgainWhenTheRestFollowsShortly) {
  answerCut(kCommand, kWhole, 0.5);
  press(form().Command6);
  EXPECT_EQ(indicators(), kWords);
}

TEST_P(CutFeatureReply, OfAModemThatHasNoIndicatorsIsJudgedAsFarAsItGoes) {
  const std::string whole = kCommand + "\r" + kError;
  answerCut(kCommand, whole);
  press(form().Command6);
  EXPECT_EQ(indicators(), holds(begin(whole), "ERROR") ? "Works Only For Sendari 100" : kWaiting);
  EXPECT_EQ(transcript(), "");
}

TEST_P(CutFeatureReply, OfAChangeIsJudgedAsFarAsItGoes) {
  const std::string command = "AT+WIND=64";
  const std::string whole = command + "\r" + kOk;
  answerCut(command, whole);
  pick(form().Combo3, 7);
  press(form().Command8);
  EXPECT_EQ(caption(form().Label1), holds(begin(whole), "OK") ? "Changes SuccessFul-WIND" : "");
  EXPECT_EQ(transcript(), "");
}

TEST_P(CutFeatureReply, OfADumpIsJudgedAsFarAsItGoes) {
  const std::string command = "AT+CCED=0,1";
  const std::string whole = command + "\r" + information("+CCED:208,20,0002,0418,37");
  answerCut(command, whole);
  pick(form().Combo1, 0);
  pick(form().Combo2, 0);
  press(form().Command7);
  EXPECT_EQ(caption(form().Label1), holds(begin(whole), "OK") ? "Changes SuccessFul-CCED" : "");
  EXPECT_EQ(transcript(), "");
}

TEST_P(CutFeatureReply, OfARefusedPinIsJudgedAsFarAsItGoes) {
  const std::string command = "AT+WIOR=0";
  const std::string whole = command + "\r" + kError;
  answerCut(command, whole);
  press(form().Command3);
  pick(form().Combo5, 0);
  press(form().Command10);
  EXPECT_EQ(caption(form().Label9), holds(begin(whole), "ERROR") ? "Not Supported" : "");
  EXPECT_EQ(transcript(), "");
}

TEST_P(CutFeatureReply, OfThePowerEndsTheProgramOnlyWhenItsResultIsThere) {
  const std::string command = "AT+CPOF";
  const std::string whole = command + "\r" + kOk;
  answerCut(command, whole);
  press(form().Command5);
  press(form().Command4);
  EXPECT_EQ(ended(), holds(begin(whole), "OK"));
}

INSTANTIATE_TEST_SUITE_P(AtByte, CutFeatureReply,
                         ::testing::Range(0, static_cast<int>(kWhole.size()) + 1));

}  // namespace
}  // namespace gsm
