#include <gtest/gtest.h>

#include "tests/phonebook/phone_book_test.h"
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

}  // namespace
}  // namespace gsm
