#include <gtest/gtest.h>

#include "modem/form11.h"
#include "panel/form1.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "phonebook/form5.h"
#include "sms/form8.h"
#include "tests/phonebook/download_test.h"

namespace gsm {
namespace {

// No wait carries over midnight: the handler ends there, and what it has done stays.
class PhoneBookAtMidnight : public DownloadTest {
 protected:
  static constexpr double kMidnight = 10;  // seconds from the start

  void SetUp() override {
    DownloadTest::SetUp();
    startWithOpenPort({2026, 3, 1, 23, 59, 50});
  }
  void openBook() {
    layEntries({{"1", "112", "HELP"}, {"2", "113", "MORE"}});
    layCounts("100", "2");
    openCalls();
  }
  /// Midnight comes while handlers wait, and they have ended.
  void passMidnight() {
    run(kMidnight - now() - 0.01);
    ASSERT_GT(waiting(), 0);
    run(0.02);
    EXPECT_EQ(waiting(), 0);
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
  }
};

TEST_F(PhoneBookAtMidnight, APollEndsAndTheNextOneGoesOn) {
  openBook();
  reply("AT+CIND?", information("+CIND: 5,4,1,0,0,0,0"));
  run(5.5);
  route("\r\nRING\r\n\r\n+CLIP: \"0146290800\",129\r\n");
  ASSERT_TRUE(promptUp());
  run(1.99);
  ASSERT_EQ(sent(), Texts{"AT+CIND?\r"});
  passMidnight();
  EXPECT_TRUE(promptUp());
  EXPECT_TRUE(polls());
  run(10);
  EXPECT_EQ(sent(), Texts{"AT+CIND?\r"});
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(polls());
}

TEST_F(PhoneBookAtMidnight, ARingIsntRoutedButStaysForTheNext) {
  openBook();
  receive("\r\nRING\r\n\r\n+CLIP: \"112\",129\r\n", 9);
  run(9.5);
  passMidnight();
  EXPECT_FALSE(promptUp());
  EXPECT_FALSE(polls());
  route("\r\n");
  EXPECT_EQ(caller(), "Call Received From  HELP");
  EXPECT_TRUE(polls());
}

TEST_F(PhoneBookAtMidnight, ANewMessageLeavesThePictureUpAndReportsNothing) {
  const std::string line = "\r\n+CMTI: \"SM\",12\r\n";
  receive(line, 7);
  run(9.5);
  ASSERT_TRUE(panel().form11.Visible.peek());
  passMidnight();
  EXPECT_TRUE(panel().form11.Visible.peek());
  EXPECT_EQ(form1().Command3.BackColor.peek(), 0xE0E0E0);
  EXPECT_EQ(panel().form8.Label4.Caption.peek(), "");
  EXPECT_EQ(transcript(), line);
}

TEST_F(PhoneBookAtMidnight, ADownloadKeepsTheEntriesStoredBeforeIt) {
  openBook();
  answerCounts("3,100");
  for (int i = 1; i <= 3; ++i) answerEntry(i, "014629080" + std::to_string(i), "Name");
  run(5);
  click(calls().Command5);
  inPanel([this] { calls().Hide(); });
  run(4.5);
  ASSERT_EQ(sent().back(), "AT+CPBR=2\r");
  passMidnight();
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "0146290801", "Name"}}));
  EXPECT_EQ(rows(), Texts{"1  0146290801          Name"});
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "3"}}));
  EXPECT_EQ(statusLine(), kSaving);
  EXPECT_EQ(callStatus(), "Please Wait.......");
  EXPECT_FALSE(calls().Visible.peek());
  run(30);
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(PhoneBookAtMidnight, ALoadOfAnEmptyBookOpensTheWindowWithoutCounts) {
  layCounts("100", "0");
  run(9.5);
  inPanel([this] { calls().Show(); });
  run(0);
  passMidnight();
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(used() + total(), "");
}

TEST_F(PhoneBookAtMidnight, ACallWatchEndsAndSeesNoWordAnyMore) {
  openBook();
  calls().Text1.Text = "123";
  run(5);
  click(calls().Command1);
  run(3);
  ASSERT_EQ(callStatus(), "Dialing....123");
  passMidnight();
  receive(kOk);
  run(10);
  EXPECT_EQ(callStatus(), "Dialing....123");
}

TEST_F(PhoneBookAtMidnight, ADialIsSentAndNotEvenShown) {
  openBook();
  calls().Text1.Text = "123";
  run(9.5);
  click(calls().Command1);
  passMidnight();
  EXPECT_EQ(sent(), Texts{"ATD123;\r"});
  EXPECT_EQ(callStatus(), "");
}

TEST_F(PhoneBookAtMidnight, ARedialLeavesTheDialBoxAndTheTranscript) {
  openBook();
  reply("ATDL", "\r\n45678;\r\n");
  run(9.5);
  click(calls().Command8);
  passMidnight();
  EXPECT_EQ(callStatus() + dialBox(), "");
  EXPECT_EQ(transcript(), "ATDL\r\r\n45678;\r\n");
}

TEST_F(PhoneBookAtMidnight, AKeyAndAHangUpLeaveTheDialBoxAndTheTranscript) {
  openBook();
  reply("AT+VTS=7", kOk);
  run(9.2);
  click(calls().Image[7]);
  run(0.2);
  click(calls().Command4);
  receive("x", 0.2);
  run(0.3);
  passMidnight();
  EXPECT_EQ(dialBox(), "7");
  EXPECT_EQ(callStatus(), "");
  EXPECT_EQ(transcript(), "x");
}

TEST_F(PhoneBookAtMidnight, AnAddReachesTheModemOnly) {
  openBook();
  click(calls().Command2);
  panel().form4.Text3.Text = "119";
  panel().form4.Text4.Text = "new";
  reply("AT+CPBW=3,119,,\" new\"", kOk);
  run(9.5);
  click(panel().form4.Command1);
  passMidnight();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=3,119,,\" new\"\r"});
  EXPECT_EQ(rows().size(), 2U);
  EXPECT_EQ(storedEntries().size(), 2U);
  EXPECT_EQ(used(), "2");
  EXPECT_TRUE(panel().form4.Visible.peek());
  EXPECT_FALSE(calls().Visible.peek());
}

TEST_F(PhoneBookAtMidnight, ADeleteReachesTheModemOnlyAndShowsNoBox) {
  openBook();
  reply("AT+CPBW=2", kOk);
  run(9.5);
  select(1);
  click(calls().Command3);
  passMidnight();
  EXPECT_EQ(sent(), Texts{"AT+CPBW=2\r"});
  EXPECT_EQ(rows().size(), 2U);
  EXPECT_EQ(storedEntries().size(), 2U);
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
  EXPECT_EQ(callStatus(), "");
  EXPECT_EQ(dialBox(), "113");
}

TEST_F(PhoneBookAtMidnight, ThePromptsButtonsLeaveItUp) {
  inPanel([this] { prompt().Show(); });
  run(9.5);
  click(prompt().Command1);
  click(prompt().Command2);
  receive("x", 0.1);
  run(0.2);
  passMidnight();
  EXPECT_EQ(sent(), (Texts{"ATA\r", "ATH\r"}));
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(transcript(), "x");
}

}  // namespace
}  // namespace gsm
