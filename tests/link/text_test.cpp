#include "link/text.h"

#include <gtest/gtest.h>

#include "platform/runtime_failure.h"

namespace gsm {
namespace {

int failureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeFailure& failure) {
    return failure.number();
  }
  return 0;
}

TEST(Text, PositionsAndLengthsMayLieBeyondWhat32BitsCount) {
  constexpr Position kFar = (Position{1} << 32) + 1;
  EXPECT_EQ(slice("text", kFar, 1), "");
  EXPECT_EQ(slice("text", 2, kFar), "ext");
  EXPECT_EQ(failureOf([] { (void)slice("text", -kFar, 1); }), 5);
  EXPECT_EQ(failureOf([] { (void)slice("text", 1, -kFar); }), 5);
}

TEST(Text, PositionsCountFromOneAndAreExactInCase) {
  EXPECT_EQ(position("OK", "AT\r\r\nOK\r\n"), 6);
  EXPECT_EQ(position("ok", "AT\r\r\nOK\r\n"), 0);
  EXPECT_EQ(position("OK", ""), 0);
  EXPECT_EQ(position("", "text"), 1);
  EXPECT_EQ(position("", ""), 0);
}

TEST(Text, ASliceTakesWhatIsThere) {
  EXPECT_EQ(slice("012345", 2, 3), "123");
  EXPECT_EQ(slice("012345", 5, 15), "45");
  EXPECT_EQ(slice("012345", 7, 1), "");
  EXPECT_EQ(slice("012345", 1, 0), "");
}

TEST(Text, ASliceFromBelowOneOrOfNegativeLengthFails) {
  EXPECT_EQ(failureOf([] { slice("text", 0, 2); }), 5);
  EXPECT_EQ(failureOf([] { slice("text", 1, -1); }), 5);
  EXPECT_EQ(failureOf([] { before(",", "no comma"); }), 5);
}

TEST(Text, AReplysFieldIsTakenOffWithItsComma) {
  std::string reply = "1,12,3\r\n\r\nOK";
  EXPECT_EQ(takeReplyField(reply), "1");
  EXPECT_EQ(reply, "12,3\r\n\r\nOK");
  EXPECT_EQ(takeReplyField(reply), "12");
  EXPECT_EQ(reply, "3\r\n\r\nOK");
  EXPECT_EQ(failureOf([&] { takeReplyField(reply); }), 5);
}

TEST(Text, AfterAReplysFieldStandsAsMuchAsOkStandsAt) {
  std::string shortened = "1,OK345678";
  EXPECT_EQ(takeReplyField(shortened), "1");
  EXPECT_EQ(shortened, "OK3");
  std::string withoutOk = "1,2,3";
  EXPECT_EQ(takeReplyField(withoutOk), "1");
  EXPECT_EQ(withoutOk, "");
}

TEST(Text, TrimTakesBlanksOnly) {
  EXPECT_EQ(trim("  9600,N,8,1 "), "9600,N,8,1");
  EXPECT_EQ(trim("\t1\r\n"), "\t1\r\n");
  EXPECT_EQ(trim("   "), "");
}

TEST(Text, ANumberMayHaveWhiteSpaceLineEndsASignAPointAndAnExponent) {
  EXPECT_EQ(number(" 15\r\n"), 15);
  EXPECT_EQ(number("-2.5"), -2.5);
  EXPECT_EQ(number("+.5e1"), 5);
  EXPECT_EQ(number("007"), 7);
}

TEST(Text, WhatIsNoNumberIsATypeMismatch) {
  for (const char* text : {"", " ", "\r\n", "OK", "1 2", "1,5", "12\"", "--1", "+-1", "inf", "nan",
                           "1e", "0x10", "-"}) {
    EXPECT_EQ(failureOf([text] { number(text); }), 13) << '"' << text << '"';
  }
}

TEST(Text, WholeNumbersRoundHalfToEvenAndOverflowBeyondSixteenBits) {
  EXPECT_EQ(wholeNumber("2.5"), 2);
  EXPECT_EQ(wholeNumber("3.5"), 4);
  EXPECT_EQ(wholeNumber("-0.5"), 0);
  EXPECT_EQ(wholeNumber("32767"), 32767);
  EXPECT_EQ(failureOf([] { wholeNumber("32768"); }), 6);
  EXPECT_EQ(failureOf([] { wholeNumber("-32769"); }), 6);
  EXPECT_EQ(failureOf([] { wholeNumber("1e400"); }), 6);
}

TEST(Text, WholeCountsRoundTheSameAndGoBeyondSixteenBits) {
  EXPECT_EQ(wholeCount("2.5"), 2);
  EXPECT_EQ(wholeCount("3.5"), 4);
  EXPECT_EQ(wholeCount("40000\r"), 40000);
  EXPECT_EQ(wholeCount("-40000"), -40000);
  EXPECT_EQ(wholeCount("999999999999999"), 999'999'999'999'999);
  EXPECT_EQ(failureOf([] { wholeCount("1e15"); }), 6);
  EXPECT_EQ(failureOf([] { wholeCount("-1e15"); }), 6);
  EXPECT_EQ(failureOf([] { wholeCount("x"); }), 13);
}

TEST(Text, OverlappingOccurrencesCount) {
  EXPECT_EQ(getCountOf("aaa", "aa"), 2);
  EXPECT_EQ(getCountOf("", "a"), 0);
  EXPECT_EQ(getCountOf("abc", "x"), 0);
}

TEST(Text, StrDelRemovesTheFirstOccurrenceInPlace) {
  std::string text = "one two one";
  EXPECT_EQ(StrDel(text, "one"), " two one");
  EXPECT_EQ(text, " two one");
}

TEST(Text, StrDelOfWhatIsAbsentReturnsTheEmptyTextAndLeavesTheTextAlone) {
  std::string text = "one";
  EXPECT_EQ(StrDel(text, "two"), "");
  EXPECT_EQ(text, "one");
}

TEST(Text, UpperCaseKeepsWhatIsNoLetter) { EXPECT_EQ(upperCase("9600,n,8,1"), "9600,N,8,1"); }

}  // namespace
}  // namespace gsm
