#include <gtest/gtest.h>

#include "tests/settings/line_settings_test.h"

namespace gsm {
namespace {

// Replies of which the line loses everything behind some byte.
class CutLineReply : public LineSettingsTest, public ::testing::WithParamInterface<std::size_t> {
 protected:
  void SetUp() override {
    LineSettingsTest::SetUp();
    fillIn();
  }
  /// What the line lets through of a command's echo and `text`.
  static std::string begin(const std::string& command, const std::string& text) {
    return (command + "\r" + text).substr(0, GetParam());
  }
  /// The modem answers each step with that, and with the rest half a second later if `restFollows`.
  void answerCut(const std::string& text, bool restFollows = false) {
    for (const std::string& command : kLineCommands) {
      const std::string whole = command + "\r" + text;
      const std::string rest = whole.substr(begin(command, text).size());
      std::vector<ModemScript::Chunk> chunks;
      if (rest != whole) chunks.push_back({ModemScript::kDefaultDelay, begin(command, text)});
      if (restFollows && !rest.empty()) chunks.push_back({fromSeconds(0.5), rest});
      world().modem.add({.write = command + "\r", .replies = {chunks}, .echo = false});
    }
  }
  static bool getsThrough(const std::string& word, std::size_t step, const std::string& text) {
    return begin(kLineCommands[step], text).find(word) != std::string::npos;
  }
  void expectAllMade() {
    EXPECT_EQ(commands(), kLineCommands);
    EXPECT_EQ(transcript(), "");
    expectAtRest();
  }
};

TEST_P(CutLineReply, IsARefusalWhenTheWordIsWhole) {
  answerCut(kError);
  save();
  std::string failures;
  for (std::size_t step = 0; step < kStepFailures.size(); ++step) {
    if (getsThrough("ERROR", step, kError)) failures += kStepFailures[step];
  }
  EXPECT_EQ(status(), failures.empty() ? kSaved : failures);
  EXPECT_EQ(speedShown(), "before");
  EXPECT_EQ(framingShown(), "before");
  expectAllMade();
}

TEST_P(CutLineReply, IsTakenWhenTheWordIsWhole) {
  answerCut(kOk);
  save();
  EXPECT_EQ(status(), kSaved);
  EXPECT_EQ(speedShown(), getsThrough("OK", 0, kOk) ? "Speed:9600" : "before");
  EXPECT_EQ(framingShown(), std::string(getsThrough("OK", 1, kOk) ? kFramingShown : "before") +
                                (getsThrough("OK", 6, kOk) ? "ECHO:Enable" : ""));
  expectAllMade();
}

TEST_P(CutLineReply, IsWholeAgainWhenTheRestFollowsShortly) {
  answerCut(kError, true);
  save();
  std::string failures;
  for (const std::string& each : kStepFailures) failures += each;
  EXPECT_EQ(status(), failures);
  expectAllMade();
}

INSTANTIATE_TEST_SUITE_P(AtByte, CutLineReply, ::testing::Range(std::size_t{0}, std::size_t{22}));

}  // namespace
}  // namespace gsm
