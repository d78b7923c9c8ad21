#include <gtest/gtest.h>

#include "tests/settings/line_settings_test.h"

namespace gsm {
namespace {

// Replies of which the line loses everything behind some byte.
class CutLineReply : public LineSettingsTest,
                     public ::testing::WithParamInterface<std::tuple<std::size_t, std::size_t>> {
 protected:
  void SetUp() override {
    LineSettingsTest::SetUp();
    fillIn();
  }
  static std::size_t step() { return std::get<0>(GetParam()); }
  static std::string whole(const std::string& text) { return kLineCommands[step()] + "\r" + text; }
  /// What the line lets through of the step's echo and `text`.
  static std::string begin(const std::string& text) {
    return whole(text).substr(0, std::get<1>(GetParam()));
  }
  /// The modem answers with that, and with the rest half a second later if `restFollows`.
  void answerCut(const std::string& text, bool restFollows = false) {
    std::vector<ModemScript::Chunk> chunks;
    if (!begin(text).empty()) chunks.push_back({ModemScript::kDefaultDelay, begin(text)});
    const std::string rest = whole(text).substr(begin(text).size());
    if (restFollows && !rest.empty()) chunks.push_back({fromSeconds(0.5), rest});
    world().modem.add({.write = kLineCommands[step()] + "\r", .replies = {chunks}, .echo = false});
  }
  void expectTaken(bool taken) {
    EXPECT_EQ(speedShown(), taken && step() == 0 ? "Speed:9600" : "before");
    const std::string framing = step() == 1   ? kFramingShown
                                : step() == 6 ? "beforeECHO:Enable"
                                              : "before";
    EXPECT_EQ(framingShown(), taken ? framing : "before");
    EXPECT_EQ(commands(), kLineCommands);
    EXPECT_EQ(transcript(), "");
    expectAtRest();
  }
};

TEST_P(CutLineReply, IsARefusalWhenTheWordIsWhole) {
  answerCut(kError);
  save();
  const bool refused = begin(kError).find("ERROR") != std::string::npos;
  EXPECT_EQ(status(), refused ? afterFailureOf(step()) : kSaved);
  expectTaken(false);
}

TEST_P(CutLineReply, IsTakenWhenTheWordIsWhole) {
  answerCut(kOk);
  save();
  EXPECT_EQ(status(), kSaved);
  expectTaken(begin(kOk).find("OK") != std::string::npos);
}

TEST_P(CutLineReply, IsWholeAgainWhenTheRestFollowsShortly) {
  answerCut(kError, true);
  save();
  EXPECT_EQ(status(), afterFailureOf(step()));
  expectTaken(false);
}

INSTANTIATE_TEST_SUITE_P(OfStepAtByte, CutLineReply,
                         ::testing::Combine(::testing::Range(std::size_t{0}, std::size_t{8}),
                                            ::testing::Range(std::size_t{0}, std::size_t{22})));

}  // namespace
}  // namespace gsm
