#include "simulator/text/text.h"

#include <gtest/gtest.h>

namespace gsm::simulator {
namespace {

using std::string_literals::operator""s;

TEST(Text, ReadsANumberOnlyFromTheWholeText) {
  EXPECT_EQ(parseNumber<int>("042"), 42);
  EXPECT_EQ(parseNumber<int>("-7"), -7);
  for (const char* bad : {"", " 4", "4 ", "4x", "99999999999999999999"}) {
    EXPECT_EQ(parseNumber<int>(bad), std::nullopt) << bad;
  }
}

TEST(Text, TakesWordsWithTheBlanksAroundThem) {
  std::string_view text = "  fault  add   cut 3 ";
  EXPECT_EQ(takeWord(text), "fault");
  EXPECT_EQ(text, "add   cut 3");
  EXPECT_EQ(words(text), (std::vector<std::string_view>{"add", "cut", "3"}));
  EXPECT_TRUE(words("   ").empty());
}

TEST(Text, UnescapesQuotedAndBareTexts) {
  EXPECT_EQ(unescaped(R"("a\r\n\t\\\"\x00\xfFb")"), "a\r\n\t\\\"\0\xFF"s + "b");
  EXPECT_EQ(unescaped(R"(a\x41)"), "aA");
  EXPECT_EQ(unescaped(R"("")"), "");
}

TEST(Text, RefusesMalformedEscapesAndQuotes) {
  for (const char* bad :
       {R"("a)", R"("a"b)", R"(a"b)", R"(\)", R"(\q)", R"(\x4)", R"(\x4g)", R"(\x-1)"}) {
    EXPECT_EQ(unescaped(bad), std::nullopt) << bad;
  }
}

}  // namespace
}  // namespace gsm::simulator
