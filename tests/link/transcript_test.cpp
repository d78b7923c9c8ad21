#include "link/transcript.h"

#include <gtest/gtest.h>

#include <random>

#include "controls/window.h"
#include "platform/headless/headless_platform.h"
#include "platform/runtime_failure.h"
#include "tests/support/seed.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

class TranscriptTest : public ::testing::Test {
 private:
  TemporaryFolder folder_;
  HeadlessPlatform machine_{folder_.path(), {2026, 3, 1, 10, 0, 0}};
  Window window_{machine_.platform(), "Window"};

 protected:
  Transcript text_{window_, "Text1", {.MultiLine = true}};
};

TEST_F(TranscriptTest, IsEmptyAtTheStart) {
  EXPECT_EQ(text_.Text.get(), "");
  EXPECT_EQ(text_.length(), 0);
  EXPECT_EQ(text_.position("OK"), 0);
  EXPECT_FALSE(text_.holds("OK"));
}

TEST_F(TranscriptTest, JoinsChunksAsTheyArrive) {
  text_.append("AT\r");
  text_.append("\r\nO");
  text_.append("");
  text_.append("K\r\n");
  EXPECT_EQ(text_.Text.get(), "AT\r\r\nOK\r\n");
  EXPECT_EQ(text_.length(), 9);
}

TEST_F(TranscriptTest, FindsAKeyThatStraddlesChunks) {
  for (const char* chunk : {"xxN", "O CAR", "", "RIE", "R"}) {
    EXPECT_EQ(text_.position("NO CARRIER"), 0) << text_.Text.get();
    text_.append(chunk);
  }
  EXPECT_EQ(text_.position("NO CARRIER"), 3);
}

TEST_F(TranscriptTest, FindsAKeyOfRepeatedCharactersThatStraddlesChunks) {
  text_.append("AAB");
  EXPECT_EQ(text_.position("AABAAC"), 0);
  text_.append("AAB");
  EXPECT_EQ(text_.position("AABAAC"), 0);
  text_.append("AAC");
  EXPECT_EQ(text_.position("AABAAC"), 4);
}

TEST_F(TranscriptTest, FindsTheFirstOccurrenceThoughANewerOneCame) {
  text_.append("OK");
  EXPECT_EQ(text_.position("OK"), 1);
  text_.append(" and OK");
  EXPECT_EQ(text_.position("OK"), 1);
}

TEST_F(TranscriptTest, IsSearchedExactlyInCase) {
  text_.append("ok Ok oK");
  EXPECT_EQ(text_.position("OK"), 0);
}

TEST_F(TranscriptTest, FindsNothingOfTheOldTextOnceCleared) {
  text_.append("xxOK");
  EXPECT_EQ(text_.position("OK"), 3);
  text_.clear();
  EXPECT_EQ(text_.position("OK"), 0);
  text_.append("O");
  EXPECT_EQ(text_.position("OK"), 0);
  text_.append("K");
  EXPECT_EQ(text_.position("OK"), 1);
}

TEST_F(TranscriptTest, DoesntJoinAKeyAcrossAClearing) {
  text_.append("O");
  EXPECT_EQ(text_.position("OK"), 0);
  text_.clear();
  text_.append("K");
  EXPECT_EQ(text_.position("OK"), 0);
}

TEST_F(TranscriptTest, SearchesAnAssignedTextAnew) {
  text_.append("xxOK");
  EXPECT_EQ(text_.position("OK"), 3);
  text_.Text = "OK longer than before";
  EXPECT_EQ(text_.position("OK"), 1);
  EXPECT_EQ(text_.position("before"), 16);
}

TEST_F(TranscriptTest, GivesTheRoomOfALongTextBackOnceCleared) {
  for (int piece = 0; piece < 1000; ++piece) text_.append(std::string(4096, 'x'));
  EXPECT_EQ(text_.position("xxOK"), 0);
  text_.clear();
  EXPECT_LT(text_.Text.peek().capacity(), 64u * 1024);
  text_.append("OK");
  EXPECT_EQ(text_.position("OK"), 1);
}

TEST_F(TranscriptTest, HoldsEveryByte) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  text_.append(bytes);
  EXPECT_EQ(text_.Text.get(), bytes);
  EXPECT_EQ(text_.position(std::string(1, '\0')), 1);
  EXPECT_EQ(text_.position("\xFF"), 256);
}

TEST_F(TranscriptTest, SlicesItsText) {
  text_.append("012345");
  EXPECT_EQ(text_.slice(2, 3), "123");
  EXPECT_EQ(text_.slice(5, 15), "45");
  EXPECT_EQ(text_.slice(7, 1), "");
  EXPECT_THROW(text_.slice(0, 1), RuntimeFailure);
  EXPECT_THROW(text_.slice(1, -1), RuntimeFailure);
}

TEST_F(TranscriptTest, AnswersEveryKeyLikeASearchFromTheBeginning) {
  std::mt19937 random(newSeed());
  const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
  const auto randomText = [&](int longest) {
    std::string text;
    for (int left = upTo(longest); left > 0; --left) text += "OK:A"[upTo(3)];
    return text;
  };
  std::vector<std::string> keys = {"OK", "OKOK", "O", "AOA", "K:", "", "never there"};
  for (int i = 0; i < 10; ++i) keys.push_back(randomText(6));

  for (int step = 0; step < 20'000; ++step) {
    const int action = upTo(99);
    if (action == 0) {
      text_.clear();
    } else if (action == 1) {
      text_.Text = randomText(20);
    } else if (action < 40) {
      text_.append(randomText(3));
    } else {
      const std::string& key = keys[static_cast<std::size_t>(upTo(16))];
      const Position naive = position(key, text_.Text.get());
      ASSERT_EQ(text_.position(key), naive) << '"' << key << "\" in \"" << text_.Text.get() << '"';
      ASSERT_EQ(text_.holds(key), naive != 0);
    }
  }
}

}  // namespace
}  // namespace gsm
