#include "platform/code_page.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace gsm {
namespace {

std::string everyByte() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

TEST(CodePage, EveryByteComesBackAsItWas) {
  EXPECT_EQ(fromUtf8(toUtf8(everyByte())), everyByte());
  for (int byte = 0; byte < 256; ++byte) {
    const char character = static_cast<char>(byte);
    EXPECT_EQ(toWindows1252(windows1252()[static_cast<std::size_t>(byte)]), character) << byte;
  }
}

TEST(CodePage, NoTwoBytesAreOneCharacter) {
  const std::set<char16_t> characters(windows1252().begin(), windows1252().end());
  EXPECT_EQ(characters.size(), 256u);
}

TEST(CodePage, PlainTextStaysAsItIs) {
  EXPECT_EQ(toUtf8("AT+CGSN\r\nOK"), "AT+CGSN\r\nOK");
  EXPECT_EQ(fromUtf8("AT+CGSN\r\nOK"), "AT+CGSN\r\nOK");
  EXPECT_EQ(toUtf8(std::string_view("a\0b", 3)), std::string("a\0b", 3));
  EXPECT_EQ(fromUtf8(""), "");
}

TEST(CodePage, LettersAndSignsHaveTheirCharacters) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"\x80", "\u20AC"}, {"\x85", "\u2026"}, {"\x8A", "\u0160"}, {"\x93", "\u201C"},
      {"\x99", "\u2122"}, {"\x9F", "\u0178"}, {"\xA3", "\u00A3"}, {"\xDF", "\u00DF"},
      {"\xE4", "\u00E4"}, {"\xFF", "\u00FF"}};
  for (const auto& [byte, utf8] : rows) {
    EXPECT_EQ(toUtf8(byte), utf8);
    EXPECT_EQ(fromUtf8(utf8), byte);
  }
}

TEST(CodePage, WhatThePageLacksBecomesAQuestionMark) {
  EXPECT_EQ(fromUtf8("\u0416"), "?");      // two bytes
  EXPECT_EQ(fromUtf8("\u4E2D"), "?");      // three
  EXPECT_EQ(fromUtf8("\U0001F600"), "?");  // four
  EXPECT_EQ(fromUtf8("a\u0416b"), "a?b");
  EXPECT_EQ(toWindows1252(0x110000), '?');
}

TEST(CodePage, MalformedTextBecomesQuestionMarksByteByByte) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"\xFF", "?"},            // never a first byte
      {"\x80", "?"},            // a byte that only goes on
      {"\xC3", "?"},            // cut off
      {"\xE2\x82", "??"},       // cut off later
      {"\xF0\x9F\x98", "???"},  // cut off later still
      {"\xC3(",
       "?"
       "("},  // doesn't go on
      {"\xE2\x82(",
       "??"
       "("},                              // doesn't go on to its end
      {"\xC0\x80", "??"},                 // longer than need be
      {"\xE0\x80\x80", "???"},            // likewise
      {"\xF8\x88\x80\x80\x80", "?????"},  // five bytes
      {"\xFE\xFF", "??"},
      {"a\xC3", "a?"},
      {"\xC3\xC3\xA4", "?\xE4"},  // the well-formed one after is read
  };
  for (const auto& [utf8, text] : rows)
    EXPECT_EQ(fromUtf8(utf8), text) << testing::PrintToString(utf8);
}

TEST(CodePage, HalvesOfSurrogatePairsAndWhatLiesBeyondUnicodeAreMalformedToo) {
  EXPECT_EQ(fromUtf8("\xED\xA0\x80"), "???");
  EXPECT_EQ(fromUtf8("\xED\xBF\xBF"), "???");
  EXPECT_EQ(fromUtf8("\xF4\x90\x80\x80"), "????");
  EXPECT_EQ(fromUtf8("\xF7\xBF\xBF\xBF"), "????");
}

TEST(CodePage, NoTextIsTooStrange) {
  // Every pair of bytes, on its own and in the middle of a text.
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string pair = {static_cast<char>(first), static_cast<char>(second)};
      const std::string text = fromUtf8("<" + pair + ">");
      EXPECT_EQ(text.front(), '<');
      EXPECT_EQ(text.back(), '>');
      EXPECT_GE(text.size(), 3u);
      EXPECT_LE(text.size(), 4u);
    }
  }
}

}  // namespace
}  // namespace gsm
