#include <gtest/gtest.h>

#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/routing_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

struct SignalRow {
  std::string name;
  std::string line;
  std::string bars;
  std::string words;
};

class Signal : public RoutingTest, public ::testing::WithParamInterface<SignalRow> {};

TEST_P(Signal, SetsEachBarAndTheWords) {
  for (const char* before : {".....", "#####"}) {
    setBars(before);
    panel().form7.Label4.Caption = "old";
    route("AT+CSQ\r" + information(GetParam().line));
    EXPECT_EQ(bars(), GetParam().bars) << "from " << before;
    EXPECT_EQ(signal(), GetParam().words);
    EXPECT_EQ(transcript(), "");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Signal,
    ::testing::Values(
        SignalRow{"OfZero", "+CSQ: 0,0", "#....", "0,0"},
        SignalRow{"OfOne", "+CSQ: 1,99", "##...", "1,99"},
        SignalRow{"OfTwo", "+CSQ: 2,7", "###..", "2,7"},
        SignalRow{"OfFifteen", "+CSQ: 15,99", "###..", "15,99"},
        SignalRow{"OfThirty", "+CSQ: 30,0", "###..", "30,0"},
        SignalRow{"OfThirtyOneLeavesTheFifthBarDark", "+CSQ: 31,0", "####.", "31,0"},
        SignalRow{"OfNinetyNineIsUnknown", "+CSQ: 99,99", ".....", "Unknown/Undetectable"},
        SignalRow{"KeepsTheFieldsAsTheyCame", "+CSQ:  07, 3", "###..", " 07, 3"},
        SignalRow{"NeedsNoErrorRate", "+CSQ: 15,", "###..", "15,"},
        SignalRow{"TakesThreeFields", "+CSQ: 1,2,3", "##...", "1,2,3"},
        SignalRow{"EndsWithTheTenthCharacterAtTheLatest", "+CSQ: 15,000000", "###..", "15,000000"},
        SignalRow{"WithoutABlankLosesTheFirstDigit", "+CSQ:15,99", "###..", "5,99"},
        SignalRow{"WithoutABlankThirtyOneIsOne", "+CSQ:31,0", "##...", "1,0"},
        SignalRow{"WithoutABlankNinetyNineIsNine", "+CSQ:99,99", "###..", "9,99"}),
    RowName());

struct LineRow {
  std::string name;
  std::string line;
};

class SignalOutsideTheTable : public RoutingTest, public ::testing::WithParamInterface<LineRow> {};

TEST_P(SignalOutsideTheTable, ChangesNothingButTheTranscript) {
  for (const char* before : {".....", "#####", "###.."}) {
    setBars(before);
    panel().form7.Label4.Caption = "old";
    route(information(GetParam().line));
    EXPECT_EQ(bars(), before);
    EXPECT_EQ(signal(), "old");
    EXPECT_EQ(transcript(), "");
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, SignalOutsideTheTable,
                         ::testing::Values(LineRow{"ThirtyTwo", "+CSQ: 32,0"},
                                           LineRow{"NinetyEight", "+CSQ: 98,0"},
                                           LineRow{"AHundred", "+CSQ: 100,0"},
                                           LineRow{"MinusOne", "+CSQ: -1,0"},
                                           LineRow{"BetweenTheFirstTwo", "+CSQ: 0.5,0"},
                                           LineRow{"BetweenTheSecondAndThird", "+CSQ: 1.5,0"},
                                           LineRow{"BetweenThirtyAndThirtyOne", "+CSQ: 30.5,0"}),
                         RowName());

struct RegistrationRow {
  std::string name;
  std::string line;
  std::string words;
};

class Registration : public RoutingTest, public ::testing::WithParamInterface<RegistrationRow> {};

TEST_P(Registration, IsShownInWords) {
  panel().form7.Label5.Caption = "old";
  route("AT+CREG?\r" + information(GetParam().line));
  EXPECT_EQ(registration(), GetParam().words);
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Registration,
    ::testing::Values(
        RegistrationRow{"None", "+CREG: 0,0", "Not Registered"},
        RegistrationRow{"AtHome", "+CREG: 0,1", "Registered/Home Network"},
        RegistrationRow{"Searching", "+CREG: 0,2", "Not Registered.Searching Operator"},
        RegistrationRow{"Denied", "+CREG: 0,3", "Registration Denied"},
        RegistrationRow{"NotKnown", "+CREG: 0,4", "Unknown"},
        RegistrationRow{"Roaming", "+CREG: 0,5", "Registered/Roaming"},
        RegistrationRow{"OfSixLeavesTheLabel", "+CREG: 0,6", "old"},
        RegistrationRow{"OfMinusOneLeavesTheLabel", "+CREG: 0,-1", "old"},
        RegistrationRow{"GoesByTheSecondField", "+CREG: 1,5", "Registered/Roaming"},
        RegistrationRow{"NeedsNoNumberInTheFirstField", "+CREG: x,1", "Registered/Home Network"},
        RegistrationRow{"EndsWithTheTenthCharacterAtTheLatest", "+CREG: 0,0000005",
                        "Registered/Roaming"},
        RegistrationRow{"WithoutABlank", "+CREG:0,1", "Registered/Home Network"},
        RegistrationRow{"WithBlanks", "+CREG:  0, 1", "Registered/Home Network"}),
    RowName());

struct BadReplyRow {
  std::string name;
  std::string text;
};

class BadSignalReply : public RoutingTest, public ::testing::WithParamInterface<BadReplyRow> {};

TEST_P(BadSignalReply, ChangesNothingAndStopsTheRoutingUntilTheTranscriptIsCleared) {
  setBars("#.#.#");
  panel().form7.Label4.Caption = "old";
  panel().form7.Label5.Caption = "old";
  const std::string text = GetParam().text;
  route(text);
  EXPECT_EQ(bars(), "#.#.#");
  EXPECT_EQ(signal(), "old");
  EXPECT_EQ(registration(), "old");
  EXPECT_EQ(transcript(), text);
  EXPECT_EQ(form1().Text1.SelStart.peek(), 0);
  EXPECT_EQ(boxes(), std::vector<std::string>{});
  EXPECT_FALSE(ended());

  EXPECT_FALSE(hearsRing());
  EXPECT_EQ(transcript(), text + "\r\nRING\r\n");
  clearTranscript();
  EXPECT_TRUE(hearsRing());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BadSignalReply,
    ::testing::Values(
        BadReplyRow{"SignalOfOneField", "\r\n+CSQ: 15\r\n\r\nOK\r\n"},
        BadReplyRow{"SignalOfAWord", "\r\n+CSQ: x,0\r\n"},
        BadReplyRow{"SignalOfNoStrength", "\r\n+CSQ: ,0\r\n"},
        BadReplyRow{"SignalOfOneDigitWithoutABlank", "\r\n+CSQ:5,99\r\n"},
        BadReplyRow{"SignalWithTheCarriageReturnTooFarOff", "\r\n+CSQ: 15,0000000\r\n"},
        BadReplyRow{"SignalOfAList", "\r\n+CSQ: (0-31,99),(0-7,99)\r\n"},
        BadReplyRow{"RegistrationWithTheCarriageReturnTooFarOff", "\r\n+CREG: 0,00000005\r\n"},
        BadReplyRow{"RegistrationOfOneField", "\r\n+CREG: 2\r\n"},
        BadReplyRow{"RegistrationOfAWord", "\r\n+CREG: 0,x\r\n"},
        BadReplyRow{"RegistrationOfNoStatus", "\r\n+CREG: 0,\r\n"},
        BadReplyRow{"RegistrationWithTheCell", "\r\n+CREG: 2,1,\"00C3\",\"7066\"\r\n\r\nOK\r\n"},
        BadReplyRow{"RegistrationChangeWithTheCell", "\r\n+CREG: 1,\"00C3\",\"7066\"\r\n"}),
    RowName());

class SignalReplies : public RoutingTest {};

TEST_F(SignalReplies, CutBeforeTheirEndAreReadOnceTheyAreWhole) {
  route("\r\n+CREG: 0,1");
  EXPECT_EQ(transcript(), "\r\n+CREG: 0,1");
  route("\r\n\r\nOK\r\n");
  EXPECT_EQ(registration(), "Registered/Home Network");
}

TEST_F(SignalReplies, AfterABadOneAreNeverRead) {
  route("\r\n+CSQ: x,0\r\n");
  route(information("+CSQ: 15,99"));
  EXPECT_EQ(signal(), "");
  clearTranscript();
  route(information("+CSQ: 15,99"));
  EXPECT_EQ(signal(), "15,99");
}

TEST_F(SignalReplies, ArriveWithoutAnEcho) {
  route(information("+CSQ: 15,99"));
  route(information("+CREG: 0,1"));
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(registration(), "Registered/Home Network");
}

TEST_F(SignalReplies, AreWrittenToAWindowThatNobodyHasOpened) {
  EXPECT_FALSE(panel().form7.isLoaded());
  route(information("+CSQ: 15,99"));
  EXPECT_TRUE(panel().form7.isLoaded());
  EXPECT_FALSE(panel().form7.Visible.peek());
  EXPECT_EQ(signal(), "15,99");
}

}  // namespace
}  // namespace gsm
