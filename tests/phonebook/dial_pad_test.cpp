#include <gtest/gtest.h>

#include "panel/form1.h"
#include "panel/form7.h"
#include "phonebook/form3.h"
#include "tests/support/phone_book_test.h"

namespace gsm {
namespace {

class DialPad : public PhoneBookTest {
 protected:
  void SetUp() override {
    PhoneBookTest::SetUp();
    layEntries({{"1", "112", "HELP"}});
    openCalls();
  }
  void setDialBox(const std::string& text) { calls().Text1.Text = text; }
};

TEST_F(DialPad, EachDigitIsAddedAndSentAsATone) {
  Texts tones;
  std::string digits;
  for (Picture& key : calls().Image) {
    click(key);
    settle();
    digits += std::to_string(key.index());
    tones.push_back("AT+VTS=" + std::to_string(key.index()) + "\r");
    EXPECT_EQ(dialBox(), digits);
  }
  EXPECT_EQ(digits, "0123456789");
  EXPECT_EQ(sent(), tones);
}

TEST_F(DialPad, HashAndStarAreAddedAndSent) {
  click(calls().Label2);
  settle();
  click(calls().Label4);
  settle();
  EXPECT_EQ(dialBox(), "#*");
  EXPECT_EQ(sent(), (Texts{"AT+VTS=#\r", "AT+VTS=*\r"}));
}

TEST_F(DialPad, AKeyClearsTheTranscriptBeforeAndAfterItsTone) {
  leaveInTranscript("old");
  reply("AT+VTS=5", kOk);
  click(calls().Image[5]);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(dialBox(), "5");
  run(0.5);
  EXPECT_EQ(transcript(), "AT+VTS=5\r" + std::string(kOk));
  settle();
  EXPECT_EQ(transcript(), "");
}

TEST_F(DialPad, KeysInQuickSuccessionAllCount) {
  for (int key : {1, 2, 3}) click(calls().Image[key]);
  settle();
  EXPECT_EQ(dialBox(), "123");
  EXPECT_EQ(sent(), (Texts{"AT+VTS=1\r", "AT+VTS=2\r", "AT+VTS=3\r"}));
}

TEST_F(DialPad, BackspaceTakesOneCharacterUntilNoneIsLeft) {
  setDialBox("12");
  click(calls().Command6);
  EXPECT_EQ(dialBox(), "1");
  click(calls().Command6);
  EXPECT_EQ(dialBox(), "");
  click(calls().Command6);
  EXPECT_EQ(dialBox(), "");
  EXPECT_FALSE(ended());
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(DialPad, ClearEmptiesTheBox) {
  setDialBox("123");
  click(calls().Command7);
  EXPECT_EQ(dialBox(), "");
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(DialPad, DialOfNothingAsksForANumber) {
  click(calls().Command1);
  settle();
  const auto shown = machine().boxes.takeShown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].text, "Please Enter Correct Number To Dial");
  EXPECT_EQ(shown[0].title, "GSM");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(callStatus(), "");
}

TEST_F(DialPad, HangUpEndsTheCallAndEmptiesTheBoxOnly) {
  layCounts("100", "1");
  setDialBox("123");
  reply("ATH", kOk);
  leaveInTranscript("old");
  const Texts before = rows();
  click(calls().Command4);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(dialBox(), "123");
  settle();
  EXPECT_EQ(sent(), Texts{"ATH\r"});
  EXPECT_EQ(callStatus(), "DisConnected ");
  EXPECT_EQ(dialBox(), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(rows(), before);
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "112", "HELP"}}));
}

TEST_F(DialPad, WithoutAPortKeysOnlyReachTheBox) {
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  run(0);
  click(calls().Image[7]);
  click(calls().Command4);
  settle();
  EXPECT_EQ(dialBox(), "7");
  EXPECT_EQ(callStatus(), "");
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

TEST_F(DialPad, HoldsThirtyCharacters) {
  setDialBox(std::string(30, '1'));
  click(calls().Image[2]);
  settle();
  EXPECT_EQ(dialBox(), std::string(30, '1'));
  EXPECT_EQ(sent(), Texts{"AT+VTS=2\r"});
}

TEST_F(DialPad, SignalAsksForTheNetwork) {
  click(calls().Label1);
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_TRUE(panel().form7.Visible.peek());
}

}  // namespace
}  // namespace gsm
