#include <gtest/gtest.h>

#include "tests/audio/audio_test.h"

namespace gsm {
namespace {

// Replies of which the line loses everything behind some byte.
class CutAudioReply : public AudioTest, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    AudioTest::SetUp();
    openWindow();
    setStatus("before");
  }
  /// The modem answers `command` with as much of its echo and `text` as the line lets through, and
  /// with the rest `restAfter` seconds later, if at all. What stands before the cut.
  std::string answerCut(const std::string& command, const std::string& text, double restAfter = 0) {
    const std::string whole = command + "\r" + text;
    const auto cut = static_cast<std::size_t>(GetParam());
    const std::string begin = whole.substr(0, cut);
    std::vector<ModemScript::Chunk> chunks;
    if (!begin.empty()) chunks.push_back({ModemScript::kDefaultDelay, begin});
    if (restAfter > 0 && cut < whole.size()) {
      chunks.push_back({fromSeconds(restAfter), whole.substr(cut)});
    }
    world().modem.add({.write = command + "\r", .replies = {chunks}, .echo = false});
    return begin;
  }
  static bool hasOk(const std::string& text) { return text.find("OK") != std::string::npos; }
};

TEST_P(CutAudioReply, OfAGainIsReadAsFarAsItGoes) {
  const std::string key = "AT+VGR?\r\r\n+VGR:";
  const std::string begin = answerCut("AT+VGR?", information("+VGR: 128"));
  closeWindow();
  settle();
  beginLoad();
  settle();
  const bool hasKey = begin.size() >= key.size();
  const std::string gain =
      hasKey && begin.size() > key.size() ? begin.substr(key.size() + 1, 3) : "";
  EXPECT_EQ(status(), hasKey ? "Default Values-Speaker " + gain : "Please Wait....");
  EXPECT_EQ(speakerGain(), gain);
  EXPECT_EQ(form().Slider1.Value.peek(), gain.empty() ? 0 : std::stoi(gain));
  expectAtRest();
}

TEST_P(CutAudioReply, OfAGainIsWholeAgainWhenTheRestFollowsShortly) {
  answerCut("AT+VGR?", information("+VGR: 128"), 0.5);
  closeWindow();
  settle();
  beginLoad();
  settle();
  EXPECT_EQ(speakerGain(), "128");
}

TEST_P(CutAudioReply, ToAGainIsSuccessWhenItsOkIsThere) {
  move(form().Slider1, 128);
  const std::string begin = answerCut("AT+VGR=128", kOk);
  press(form().Command1);
  const bool hasKey = begin.find("AT+VGR=") != std::string::npos;
  EXPECT_EQ(status(), !hasKey        ? "before"
                      : hasOk(begin) ? "Changes SuccessFul-Speaker"
                                     : "UnSuccessFul.Try Again");
  expectAtRest();
}

TEST_P(CutAudioReply, OfTheAnswerIsShownWholeOrNotAtAll) {
  const bool whole = hasOk(answerCut("ATS0?", information("002")));
  turnTo(answerAndDtmf);
  EXPECT_EQ(form().Option4.Value.peek(), whole);
  EXPECT_EQ(status(), whole ? "Auto Answer Enabled,Total Rings2" : "Please Wait......");
  expectAtRest();
}

TEST_P(CutAudioReply, OfTheAnswerIsWholeAgainWhenTheRestFollowsShortly) {
  answerCut("ATS0?", information("002"), 0.5);
  turnTo(answerAndDtmf);
  EXPECT_EQ(form().Combo3.Text.peek(), "2");
}

TEST_P(CutAudioReply, OfTheToneLengthIsShownWholeOrNotAtAll) {
  const bool whole = hasOk(answerCut("AT+VTD?", information("+VTD: 12")));
  turnTo(answerAndDtmf);
  EXPECT_EQ(form().Text1.Text.peek(), whole ? "1200" : "");
  EXPECT_EQ(status(), whole ? "Tone Lenght Currently Is1200" : "Please Wait......");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_P(CutAudioReply, ToTheAnswerIsSuccessWhenItsOkIsThere) {
  turnTo(answerAndDtmf);
  click(form().Option4);
  pick(form().Combo3, 0);
  const bool whole = hasOk(answerCut("ATS0=1", kOk));
  press(form().Command5);
  EXPECT_EQ(status(),
            whole ? "Changes SuccessFul.AutoAnswer Enabled" : "Changes UNSuccessFul.Try Again");
  expectAtRest();
}

TEST_P(CutAudioReply, OfTheEchoIsReadAsFarAsItGoes) {
  const std::string begin = answerCut("AT+ECHO?", information("+ECHO: 0,1,15,3,10,7"));
  turnTo(toneAndEcho);
  const std::string line = "AT+ECHO?\r\r\n+ECHO: 0,1,15,3,10,7\r";
  const bool whole = begin.size() >= line.size();
  EXPECT_EQ(form().Combo2.Text.peek(), whole ? "1" : "");
  EXPECT_EQ(form().Slider6.Value.peek(), whole ? 7 : 0);
  EXPECT_EQ(form().Frame7.Visible.peek(), !whole);
  expectAtRest();
}

TEST_P(CutAudioReply, OfTheSideToneIsReadAsFarAsItGoes) {
  const std::string begin = answerCut("AT+SIDET?", information("+SIDET: 1,2"));
  turnTo(toneAndEcho);
  const std::string line = "AT+SIDET?\r\r\n+SIDET: 1,2\r";
  const bool whole = begin.size() >= line.size();
  EXPECT_EQ(form().Option2.Value.peek(), whole);
  EXPECT_EQ(form().Slider10.Value.peek(), whole ? 2 : 0);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(AtByte, CutAudioReply, ::testing::Range(0, 40));

}  // namespace
}  // namespace gsm
