#include <gtest/gtest.h>

#include "modem/form11.h"
#include "panel/form1.h"
#include "sms/form8.h"
#include "tests/support/phone_book_test.h"
#include "tests/support/property_watch.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

class NewMessage : public PhoneBookTest {
 protected:
  std::string note() { return panel().form8.Label4.Caption.peek(); }
  bool pictureUp() { return panel().form11.Visible.peek(); }
  int colour() { return static_cast<int>(form1().Command3.BackColor.peek()); }
};

TEST_F(NewMessage, ShowsThePictureForThreeSecondsAndColoursTheButton) {
  const int before = colour();
  receive(unsolicited("+CMTI: \"SM\",12"));
  run(1.99);
  EXPECT_FALSE(pictureUp());
  run(0.1);
  EXPECT_TRUE(pictureUp());
  run(2.85);
  EXPECT_TRUE(pictureUp());
  EXPECT_EQ(colour(), before);
  EXPECT_EQ(note(), "");
  run(0.15);
  EXPECT_FALSE(pictureUp());
  EXPECT_EQ(colour(), 0xC0C0FF);
  EXPECT_EQ(note(), "New Message Received.12");
  EXPECT_EQ(transcript(), "");
}

TEST_F(NewMessage, LosesWhatComesWhileThePictureIsUp) {
  receive(unsolicited("+CMTI: \"SM\",12"));
  receive("x", 2.5);
  settle();
  EXPECT_EQ(transcript(), "");
  EXPECT_FALSE(pictureUp());
}

TEST_F(NewMessage, TakesAReplyThatComesWhileThePictureIsUpForItsOwn) {
  receive(unsolicited("+CMTI: \"SM\",12"));
  receive(information("+CSQ: 15,99"), 2.5);
  run(5.5);
  // The reply's routing found the notice first, and shows the picture once more.
  EXPECT_TRUE(pictureUp());
  EXPECT_EQ(note(), "");
  run(1.9);
  EXPECT_TRUE(pictureUp());
  run(0.2);
  EXPECT_FALSE(pictureUp());
  EXPECT_EQ(signal(), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(waiting(), 0);
}

TEST_F(NewMessage, DuringAnotherReportsTheFirstOnesIndexAndThenNone) {
  Texts notes;
  panel().form8.Label4.Caption = "old";
  PropertyWatch watch(panel().form8.Label4, [&](PropertyId) { notes.push_back(note()); });
  receive(unsolicited("+CMTI: \"SM\",12"));
  receive(unsolicited("+CMTI: \"SM\",13"), 3);
  run(7.9);
  EXPECT_TRUE(pictureUp());
  EXPECT_EQ(notes, Texts{});
  run(0.2);
  // The newer notice reads the older line, clears, and leaves nothing to the older notice.
  EXPECT_EQ(notes, (Texts{"New Message Received.12", "New Message Received."}));
  EXPECT_FALSE(pictureUp());
  EXPECT_EQ(colour(), 0xC0C0FF);
  EXPECT_EQ(transcript(), "");
}

TEST_F(NewMessage, InTheSameTextAsAnotherIsReportedOnce) {
  receive(unsolicited("+CMTI: \"SM\",12") + unsolicited("+CMTI: \"SM\",13"));
  settle();
  EXPECT_EQ(note(), "New Message Received.12");
}

// Each chunk that was waiting routes the notice, but the first has taken the text along.
TEST_F(NewMessage, InSeveralChunksIsReportedOnce) {
  receive("\r\n+CMTI: ");
  receive("\"SM\",12\r\n", 0.1);
  run(5.3);
  EXPECT_EQ(note(), "New Message Received.12");
  EXPECT_FALSE(pictureUp());
  EXPECT_EQ(waiting(), 0);
}

TEST_F(NewMessage, ComesToAWindowThatStaysHidden) {
  receive(unsolicited("+CMTI: \"SM\",12"));
  settle();
  EXPECT_TRUE(panel().form8.isLoaded());
  EXPECT_FALSE(panel().form8.Visible.peek());
}

struct LateRow {
  std::string name;
  std::string text;
  double after;  // the notice's line
  std::string index;
};

class LateEndOfTheLine : public NewMessage, public ::testing::WithParamInterface<LateRow> {};

// The line is read once the picture has gone, as it stands then.
TEST_P(LateEndOfTheLine, CountsUntilThePictureHasGone) {
  receive("\r\n+CMTI: \"SM\",A");
  receive(GetParam().text, GetParam().after);
  run(5.2);
  EXPECT_EQ(note(), "New Message Received." + GetParam().index);
}

INSTANTIATE_TEST_SUITE_P(Rows, LateEndOfTheLine,
                         ::testing::Values(LateRow{"WithIt", "\r\n", 0.1, "A\r"},
                                           LateRow{"BehindIt", "\r\n", 5.05, "10"}),
                         RowName());

TEST_F(NewMessage, WhoseLineEndComesWhileThePictureIsUpIsNotTranslated) {
  receive("\r\n+CMTI: \"SM\",A");
  receive("\r\n", 4);
  Texts notes;
  panel().form8.Label4.Caption = "old";
  PropertyWatch watch(panel().form8.Label4, [&](PropertyId) { notes.push_back(note()); });
  settle();
  EXPECT_EQ(notes, (Texts{"New Message Received.A\r", "New Message Received."}));
}

struct IndexRow {
  std::string name;
  std::string text;
  std::string index;
};

class MessageIndex : public NewMessage, public ::testing::WithParamInterface<IndexRow> {};

TEST_P(MessageIndex, IsTwoCharactersAndALoneLetterIsTranslated) {
  receive(GetParam().text);
  settle();
  EXPECT_EQ(note(), "New Message Received." + GetParam().index);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MessageIndex,
    ::testing::Values(IndexRow{"OneDigitWithItsCarriageReturn", "\r\n+CMTI: \"SM\",3\r\n", "3\r"},
                      IndexRow{"TwoOfThreeDigits", "\r\n+CMTI: \"SM\",123\r\n", "12"},
                      IndexRow{"A", "\r\n+CMTI: \"SM\",A", "10"},
                      IndexRow{"B", "\r\n+CMTI: \"SM\",B", "11"},
                      IndexRow{"C", "\r\n+CMTI: \"SM\",C", "12"},
                      IndexRow{"D", "\r\n+CMTI: \"SM\",D", "D"},
                      IndexRow{"SmallA", "\r\n+CMTI: \"SM\",a", "a"},
                      IndexRow{"AWithItsCarriageReturn", "\r\n+CMTI: \"SM\",A\r\n", "A\r"},
                      IndexRow{"Nothing", "CMTI", ""}),
    RowName());

TEST_F(NewMessage, StatusReportChangesNothing) {
  const std::string report = "\r\n+CDS: 2,116,\"+33146290800\",145,\"98/10/01,12:30:07+04\",0\r\n";
  route(report);
  EXPECT_EQ(transcript(), report);
  EXPECT_EQ(note(), "");
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(panel().form8.Visible.peek());
}

struct StampRow {
  std::string name;
  std::string report;
  bool isRead;
};

class StatusReportStamp : public NewMessage, public ::testing::WithParamInterface<StampRow> {};

// It is shown nowhere. But a report without one ends the routing, before the caret follows.
TEST_P(StatusReportStamp, EndsTheRoutingWhereItCantBeRead) {
  const std::string report = unsolicited("+CDS: " + GetParam().report);
  route(report);
  EXPECT_EQ(transcript(), report);
  EXPECT_EQ(form1().Text1.SelStart.peek(), GetParam().isRead ? static_cast<int>(report.size()) : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StatusReportStamp,
    ::testing::Values(
        StampRow{"OfAModemsLineIsTheNumber", "2,116,\"+33146290800\",145,\"98/10/01\",0", true},
        StampRow{"BetweenNoQuotes", "2,116", false},
        StampRow{"BehindOneQuote", "2,116,\"+33146290800", false},
        StampRow{"BetweenTheFirstTwoCharacters", "\"\"", true},
        StampRow{"OfNineteenCharacters", "\"1234567890123456789\"", true},
        StampRow{"OfTwentyCharacters", "\"12345678901234567890\"", false},
        StampRow{"ThatEndsWithTheTwentyFifth", "2116\"1234567890123456789\"", true},
        StampRow{"ThatEndsWithTheTwentySixth", "2,116\"1234567890123456789\"", false}),
    RowName());

}  // namespace
}  // namespace gsm
