#include <gtest/gtest.h>

#include "panel/form1.h"
#include "panel/form7.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "phonebook/form5.h"
#include "tests/phonebook/download_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

const std::string kEmergencyRing = unsolicited("RING") + unsolicited("+CLIP: \"112\",129");

// What the windows of the phone book keep while they are hidden, and lose when they are closed.
class PhoneBookWindows : public DownloadTest {
 protected:
  void SetUp() override {
    DownloadTest::SetUp();
    layEntries({{"1", "112", "HELP"}});
    layCounts("100", "1");
  }
  /// As `route`, also while the poll runs.
  void take(const std::string& text) {
    receive(text);
    settle();
  }
  void close(Window& window) {
    inPanel([&window] { window.userClose(); });
    run(0);
    ASSERT_FALSE(window.isLoaded());
  }
};

TEST_F(PhoneBookWindows, TheCallWindowKeepsItsStateWhileAnotherIsShown) {
  openCalls();
  calls().Text1.Text = "123";
  calls().Label3.Caption = "status";
  select(0);
  layEntries({{"2", "113", "MORE"}});
  inPanel([this] {
    calls().Hide();
    calls().Show();
  });
  settle();
  EXPECT_EQ(rows(), Texts{"1  112                 HELP"});
  EXPECT_EQ(calls().List1.ListIndex.peek(), 0);
  EXPECT_EQ(dialBox(), "112");
  EXPECT_EQ(callStatus(), "status");
}

TEST_F(PhoneBookWindows, TheCallWindowLosesItsStateWhenItIsClosedAndHangsNothingUp) {
  openCalls();
  calls().Text1.Text = "123";
  reply("ATD123;", kOk);
  click(calls().Command1);
  settle();
  form1().Label5.Caption = "Please Wait";
  sent();
  close(calls());
  settle();
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(statusLine(), "");
  EXPECT_TRUE(form1().Visible.peek());
  openCalls();
  EXPECT_EQ(dialBox() + callStatus(), "");
  EXPECT_EQ(used() + "/" + total(), "1/100");
}

TEST_F(PhoneBookWindows, ACallWatchGoesOnAfterTheClosingInAWindowLoadedAnew) {
  openCalls();
  calls().Text1.Text = "123";
  reply("ATD123;", kOk);
  click(calls().Command1);
  run(4);
  ASSERT_EQ(callStatus(), "Connected SuccessFully-123");
  close(calls());
  run(3);
  EXPECT_TRUE(calls().isLoaded());
  EXPECT_FALSE(calls().Visible.peek());
  EXPECT_EQ(callStatus(), "Connected SuccessFully-");
  EXPECT_EQ(waiting(), 1);
}

TEST_F(PhoneBookWindows, TheCallWindowIsNotToldOfACallThatIsAnsweredAtThePrompt) {
  openCalls();
  calls().Label3.Caption = "before";
  route(kEmergencyRing);
  for (CommandButton* button : {&prompt().Command1, &prompt().Command2}) {
    click(*button);
    run(3);
    EXPECT_EQ(callStatus(), "before");
  }
}

TEST_F(PhoneBookWindows, TheAddWindowLoadsOnceForAnyNumberOfEntries) {
  openCalls();
  int emptied = 0;
  click(calls().Command2);
  Form4& form = panel().form4;
  form.Text1.Text = "+33";
  PropertyWatch watch(form.Text1, [&](PropertyId property) {
    if (property == PropertyId::Text && form.Text1.Text.peek().empty()) ++emptied;
  });
  for (int round = 0; round < 3; ++round) {
    click(form.Command2);
    EXPECT_TRUE(form.isLoaded());
    EXPECT_FALSE(form.Visible.peek());
    click(calls().Command2);
    EXPECT_TRUE(form.Visible.peek());
  }
  EXPECT_EQ(emptied, 0);
  close(form);
  EXPECT_TRUE(calls().Visible.peek());
  click(calls().Command2);
  EXPECT_EQ(emptied, 1);
}

TEST_F(PhoneBookWindows, TheAddWindowTakesAsManyKeysAsItsBoxesHold) {
  openCalls();
  click(calls().Command2);
  Form4& form = panel().form4;
  inPanel([&form] {
    for (TextBox* box : {&form.Text1, &form.Text2, &form.Text3, &form.Text4}) {
      box->userType("12345678901234567890");
    }
  });
  run(0);
  EXPECT_EQ(form.Text1.Text.peek(), "1234");
  EXPECT_EQ(form.Text2.Text.peek(), "1234");
  EXPECT_EQ(form.Text3.Text.peek(), "123456789012345");
  EXPECT_EQ(form.Text4.Text.peek(), "12345678901234");
}

TEST_F(PhoneBookWindows, TheDialBoxTakesNoTyping) {
  openCalls();
  inPanel([this] { EXPECT_FALSE(calls().Text1.userType("1")); });
  run(0);
  EXPECT_EQ(dialBox(), "");
}

TEST_F(PhoneBookWindows, ThePromptKeepsItsTextsWhileItIsHidden) {
  take(kEmergencyRing);
  prompt().Label2.Caption = "AutoAnswer Enabled";
  prompt().Command1.Enabled = false;
  take(unsolicited("NO CARRIER"));
  EXPECT_FALSE(promptUp());
  EXPECT_TRUE(prompt().isLoaded());
  EXPECT_EQ(caller(), "Call Received From  HELP");
  clearTranscript();
  take(kEmergencyRing);
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(prompt().Label2.Caption.peek(), "AutoAnswer Enabled");
  EXPECT_FALSE(prompt().Command1.Enabled.peek());
}

TEST_F(PhoneBookWindows, ThePromptLosesItsStateWhenItIsClosedAndComesUpAtTheNextRing) {
  take(kEmergencyRing);
  prompt().Label2.Caption = "AutoAnswer Enabled";
  prompt().Command1.Enabled = false;
  close(prompt());
  EXPECT_TRUE(polls());
  take(kEmergencyRing);
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(caller(), "Call Received From  HELP");
  EXPECT_EQ(prompt().Label2.Caption.peek(), "");
  EXPECT_TRUE(prompt().Command1.Enabled.peek());
}

TEST_F(PhoneBookWindows, ACallsEndLoadsThePromptAndTheCallWindowWithoutShowingThem) {
  route(unsolicited("NO CARRIER"));
  EXPECT_TRUE(calls().isLoaded());
  EXPECT_FALSE(calls().Visible.peek());
  EXPECT_TRUE(prompt().isLoaded());
  EXPECT_FALSE(promptUp());
}

// The reference that looks up a caller is the first to the call window, which then downloads.
TEST_F(PhoneBookWindows, ARingWithAnEmptyBookDownloadsItFirst) {
  SqliteEngine().OpenDatabase(bookFile())->Execute("delete from DATA");
  answerCounts("1,100");
  answerEntry(1, "112", "Helper");
  receive(kEmergencyRing);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CPBS?\r", "AT+CPBR=1\r"}));
  EXPECT_EQ(caller(), "Call Received From  Helper");
  EXPECT_TRUE(promptUp());
  EXPECT_TRUE(calls().Visible.peek());
}

TEST_F(PhoneBookWindows, TheStatusWindowFollowsTheCallWindowButNotToItsFullSize) {
  openCalls();
  for (const int state : {WindowState::minimised, WindowState::normal, WindowState::minimised}) {
    inPanel([this, state] { calls().userState(state); });
    run(0);
    EXPECT_EQ(panel().form7.WindowState.peek(), state);
  }
  inPanel([this] { calls().userState(WindowState::maximised); });
  run(0);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::minimised);
}

TEST_F(PhoneBookWindows, ANumberTypedBeforeADialCostsOneToneEach) {
  openCalls();
  for (const int key : {0, 1, 4, 6}) {
    reply("AT+VTS=" + std::to_string(key), kError);
    click(calls().Image[key]);
    settle();
    EXPECT_EQ(transcript(), "");
  }
  click(calls().Label4);
  settle();
  click(calls().Command1);
  run(3);
  EXPECT_EQ(sent(), (Texts{"AT+VTS=0\r", "AT+VTS=1\r", "AT+VTS=4\r", "AT+VTS=6\r", "AT+VTS=*\r",
                           "ATD0146*;\r"}));
  EXPECT_EQ(callStatus(), "Dialing....0146*");
}

TEST_F(PhoneBookWindows, ASecondDialsWatchEndsBeforeTheFirstGoesOn) {
  openCalls();
  calls().Text1.Text = "123";
  click(calls().Command1);
  run(5);
  calls().Text1.Text = "456";
  click(calls().Command1);
  run(3);
  EXPECT_EQ(sent(), (Texts{"ATD123;\r", "ATD456;\r"}));
  EXPECT_EQ(callStatus(), "Dialing....456");
  EXPECT_EQ(waiting(), 2);
  run(17.5);
  EXPECT_EQ(waiting(), 1);
  // The first watch is still there to see a word, and shows what the dial box holds now.
  receive(kOk);
  run(4);
  EXPECT_EQ(callStatus(), "Connected SuccessFully-456");
  EXPECT_EQ(waiting(), 1);
  settle();
  EXPECT_EQ(waiting(), 0);
}

TEST_F(PhoneBookWindows, AHangUpDuringARedialLeavesTheWatchAnEmptyTranscript) {
  openCalls();
  reply("ATDL", "\r\n45678;\r\n" + std::string(kError));
  reply("ATH", kOk);
  click(calls().Command8);
  run(5);
  ASSERT_EQ(callStatus(), "Error Occurred.Plz Disconnect");
  click(calls().Command4);
  settle();
  EXPECT_EQ(callStatus(), "DisConnected ");
  EXPECT_EQ(dialBox(), "");
}

}  // namespace
}  // namespace gsm
