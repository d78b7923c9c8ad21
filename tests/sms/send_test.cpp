#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/sms/message_window_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

const std::string kSent = information("+CMGS: 13");
constexpr const char* kNotSent = "Message Not Sent.Error Occurred";

class Send : public MessageWindowTest {
 protected:
  void send() { press(window().Command1); }
  /// The writes with their times, counted from now.
  struct Timed {
    double at;
    std::string text;
    bool operator==(const Timed&) const = default;
  };
  std::vector<Timed> writesSince(double start) {
    std::vector<Timed> writes;
    for (const auto& write : sentWithTimes())
      writes.push_back({toSeconds(write.at) - start, write.text});
    return writes;
  }
};

TEST_F(Send, GivesNumberAndMessageToTheModemAndTellsTheTime) {
  compose("12345", "Hello");
  answerWithPrompt();
  answerBody("Hello", kSent);
  send();
  EXPECT_EQ(sent(), (Texts{"AT+CMGS=12345\r", std::string("Hello") + kEnd}));
  // The prompt's routing holds the body up by a second, and the reply's ends before the wait does.
  EXPECT_EQ(note(), "Message Sent SuccessFully At 00:00:08");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(Send, TakesSevenSecondsWithASilentModemAndReportsAnError) {
  stopSendEvents();
  compose("12345", "Hello");
  const double start = now();
  click(window().Command1);
  run(6.99);
  EXPECT_EQ(note(), "");
  EXPECT_EQ(waiting(), 1);
  run(0.02);
  EXPECT_EQ(note(), kNotSent);
  EXPECT_EQ(waiting(), 0);
  const auto writes = writesSince(start);
  ASSERT_EQ(writes.size(), 2U);
  EXPECT_EQ(writes[0].text, "AT+CMGS=12345\r");
  EXPECT_NEAR(writes[0].at, 0, 0.001);
  EXPECT_EQ(writes[1].text, std::string("Hello") + kEnd);
  EXPECT_NEAR(writes[1].at, 1, 0.001);
  expectAtRest();
}

TEST_F(Send, EmptiesTheStatusLabelAndTheTranscriptFirst) {
  window().Label4.Caption = "before";
  leaveInTranscript("+CMGS: from before");
  compose("12345", "Hello");
  click(window().Command1);
  EXPECT_EQ(note(), "");
  EXPECT_EQ(transcript(), "");
  settle();
  EXPECT_EQ(note(), kNotSent);
}

TEST_F(Send, KeepsTheTextsSoThatTheyCanBeSentAgain) {
  compose("12345", " Hello ", " Hi ");
  send();
  send();
  EXPECT_EQ(sent(), (Texts{"AT+CMGS=12345\r", std::string("HiHello") + kEnd, "AT+CMGS=12345\r",
                           std::string("HiHello") + kEnd}));
  EXPECT_EQ(number(), "12345");
  EXPECT_EQ(message(), " Hello ");
  EXPECT_EQ(header(), " Hi ");
}

TEST_F(Send, TakesASecondLongerWhenTheLineReportsThatTheNumberHasLeft) {
  compose("12345", "Hello");
  const double start = now();
  send();
  const auto writes = writesSince(start);
  ASSERT_EQ(writes.size(), 2U);
  EXPECT_NEAR(writes[1].at, 2, 0.02);
  EXPECT_NEAR(now() - start, 8, 0.02);
  EXPECT_EQ(note(), kNotSent);
}

TEST_F(Send, HidesTheStoredMessagesWhenItEnds) {
  stopSendEvents();
  compose("12345", "Hello");
  click(window().Command5);
  click(window().Command1);
  run(6.9);
  EXPECT_TRUE(window().Combo2.Visible.peek());
  run(0.2);
  EXPECT_FALSE(window().Combo2.Visible.peek());
}

TEST_F(Send, WithoutANumberAsksForItAndHidesTheStoredMessages) {
  compose("", "Hello");
  click(window().Command5);
  window().Label4.Caption = "before";
  leaveInTranscript("old");
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  click(window().Command1);
  EXPECT_TRUE(window().Combo2.Visible.peek());
  machine().boxes.answerTop();
  settle();
  expectBox("Please Enter Destination Number");
  EXPECT_FALSE(window().Combo2.Visible.peek());
  EXPECT_EQ(note(), "before");
  EXPECT_EQ(transcript(), "old");
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(Send, TakesTheBodyAsItStandsWhenTheWaitForThePromptIsOver) {
  stopSendEvents();
  compose("12345", "Hello");
  click(window().Command1);
  run(0.5);
  compose("999", "changed", "now");
  run(0.6);
  EXPECT_EQ(sent(), (Texts{"AT+CMGS=12345\r", std::string("nowchanged") + kEnd}));
}

TEST_F(Send, GivesTheTimeAtWhichTheWaitIsOver) {
  startWithOpenPort({2026, 3, 1, 13, 4, 50});
  stopSendEvents();
  open();
  compose("12345", "Hello");
  world().modem.add({.write = std::string("Hello") + kEnd, .replies = {{{fromSeconds(1), kSent}}}});
  const double start = now();
  send();
  EXPECT_EQ(note(), "Message Sent SuccessFully At 13:04:57");
  EXPECT_NEAR(now() - start, 7, 0.01);
}

struct BodyRow {
  std::string name;
  std::string number;
  std::string header;
  std::string text;
  std::string body;  // without its end
};

class SendBody : public Send, public ::testing::WithParamInterface<BodyRow> {};

TEST_P(SendBody, IsHeaderAndTextWithoutTheirOuterBlanks) {
  compose(GetParam().number, GetParam().text, GetParam().header);
  send();
  EXPECT_EQ(sent(), (Texts{"AT+CMGS=" + GetParam().number + "\r", GetParam().body + kEnd}));
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SendBody,
    ::testing::Values(
        BodyRow{"OfATextAlone", "12345", "", "Hello", "Hello"},
        BodyRow{"OfNoText", "12345", "", "", ""}, BodyRow{"OfBlanks", "12345", "   ", "    ", ""},
        BodyRow{"OfAHeaderAlone", "12345", "Hi", "", "Hi"},
        BodyRow{"OfBothWithNothingBetween", "12345", "  Hi  ", "  Hello  ", "HiHello"},
        BodyRow{"OfInnerBlanks", "12345", "a  b", "c  d", "a  bc  d"},
        BodyRow{"OfTabsThatAreNoBlanks", "12345", "\tHi\t", "\tHello\t", "\tHi\t\tHello\t"},
        BodyRow{"OfLineEndsThatAreNoBlanks", "12345", "", "\r\nHello\r\n", "\r\nHello\r\n"},
        BodyRow{"OfSeveralLines", "12345", "", "one\r\ntwo", "one\r\ntwo"},
        BodyRow{"WithAnEndInTheText", "12345", "", "one\x1Atwo", "one\x1Atwo"},
        BodyRow{"WithAnEscapeInTheText", "12345", "", "one\x1Btwo", "one\x1Btwo"},
        BodyRow{"WithQuotes", "12345", "\"", "'\"'", "\"'\"'"},
        BodyRow{"WithBytesOfTheCodePage", "12345", "\x80", "\xE9\xFF\x81", "\x80\xE9\xFF\x81"},
        BodyRow{"WithANul", "12345", "", std::string("a\0b", 3), std::string("a\0b", 3)},
        BodyRow{"WithWordsOfTheModem", "12345", "OK", "ERROR +CMGR: REC READ",
                "OKERROR +CMGR: REC READ"},
        BodyRow{"ToANumberWithBlanks", "  123 45 ", "", "Hello", "Hello"},
        BodyRow{"ToANumberWithAPlus", "+33146290800", "", "Hello", "Hello"},
        BodyRow{"ToANumberWithQuotes", "\"12345\",145", "", "Hello", "Hello"},
        BodyRow{"ToABlank", " ", "", "Hello", "Hello"}),
    RowName());

TEST_F(Send, GoesInOneWriteWithEachOfTheCodePagesBytes) {
  for (const int first : {0, 256 - Form8::kMessageLength}) {
    std::string text;
    for (int byte = first; byte < first + Form8::kMessageLength; ++byte) {
      text += static_cast<char>(byte);
    }
    compose("12345", text);
    send();
    EXPECT_EQ(sent(), (Texts{"AT+CMGS=12345\r", text + kEnd})) << first;
  }
}

TEST_F(Send, OfAHundredAndSixtyCharactersWritesThemAllInSevenSeconds) {
  stopSendEvents();
  const std::string text(160, 'x');
  type(window().Text1, "12345");
  type(window().Text2, text + "y");
  world().modem.add({.write = text + kEnd, .replies = {{{fromSeconds(3), kSent}}}});
  const double start = now();
  send();
  const auto writes = writesSince(start);
  ASSERT_EQ(writes.size(), 2U);
  EXPECT_EQ(writes[0].text.size() + writes[1].text.size(), 14U + 161U);
  EXPECT_NEAR(now() - start, 7, 0.001);
  EXPECT_EQ(note(), "Message Sent SuccessFully At 00:00:07");
}

struct ResultRow {
  std::string name;
  std::string reply;
  bool sent;
};

class SendResult : public Send, public ::testing::WithParamInterface<ResultRow> {};

TEST_P(SendResult, IsReportedByTheReference) {
  compose("12345", "Hello");
  answerWithPrompt();
  answerBody("Hello", GetParam().reply);
  send();
  EXPECT_EQ(note(), GetParam().sent ? "Message Sent SuccessFully At 00:00:08" : kNotSent);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SendResult,
    ::testing::Values(ResultRow{"Taken", kSent, true},
                      ResultRow{"TakenBesideAnError", kSent + kError, true},
                      ResultRow{"AnErrorBeforeItIsTaken", kError + kSent, true},
                      ResultRow{"Refused", kError, false},
                      ResultRow{"RefusedWithACode", "\r\n+CMS ERROR: 38\r\n", false},
                      ResultRow{"OkAlone", kOk, false},
                      ResultRow{"NoColon", "\r\n+CMGS\r\n", false},
                      ResultRow{"AnotherCase", "\r\n+cmgs: 1\r\n", false},
                      ResultRow{"Saved", information("+CMGW: 4"), false},
                      ResultRow{"NoReference", "+CMGS:", true},
                      ResultRow{"VeryLong", std::string(5000, 'x') + kSent, true}),
    RowName());

TEST_F(Send, ReportsAReferenceThatTheMessageItselfHolds) {
  compose("12345", "+CMGS:");
  answerWithPrompt();
  answerBody("+CMGS:", kError);
  send();
  EXPECT_EQ(note(), "Message Sent SuccessFully At 00:00:08");
}

TEST_F(Send, GivesTheBodyEvenToAModemThatRefusedTheNumber) {
  compose("12345", "Hello");
  reply("AT+CMGS=12345", kError);
  send();
  EXPECT_EQ(sent(), (Texts{"AT+CMGS=12345\r", std::string("Hello") + kEnd}));
  EXPECT_EQ(note(), kNotSent);
}

TEST_F(Send, MissesAResultThatComesTooLate) {
  stopSendEvents();
  compose("12345", "Hello");
  answerBody("Hello", kSent, 6.1);
  send();
  EXPECT_EQ(note(), kNotSent);
  // It came unasked for then, and stays.
  EXPECT_EQ(transcript(), std::string("Hello") + kEnd + kSent);
}

TEST_F(Send, WaitsForTheRoutingOfALateResult) {
  stopSendEvents();
  compose("12345", "Hello");
  answerBody("Hello", kSent, 5.9);
  const double start = now();
  send();
  EXPECT_NEAR(now() - start, 1 + 5.9 + 2, 0.01);
  EXPECT_EQ(note(), "Message Sent SuccessFully At 00:00:08");
}

}  // namespace
}  // namespace gsm
