#include <gtest/gtest.h>

#include "phonebook/form3.h"
#include "platform/sqlite/phone_book_file.h"
#include "platform/sqlite/sqlite_engine.h"
#include "sms/form8.h"
#include "tests/module/makers_features_test.h"

namespace gsm {
namespace {

constexpr const char* kOffWords = "Power OFF SuccessFul.....Restart...";

class PowerOff : public MakersFeaturesTest {
 protected:
  void SetUp() override {
    createPhoneBook(bookFile());
    MakersFeaturesTest::SetUp();
    openWindow();
    press(form().Command5);
  }
  std::filesystem::path bookFile() const { return folder() / "phonebook.mdb"; }
  std::string status() { return caption(form().Label13); }
  void holdBoxes() { machine().boxes.setAnswer(HeadlessBoxes::Answer::hold); }
  void answerBox() {
    world().time().after(Duration::zero(), [this] { machine().boxes.answerTop(); });
    settle();
  }
};

TEST_F(PowerOff, SavesTheProfileFirstAndGivesTheModemThreeSeconds) {
  leaveInTranscript("old");
  const double begin = now();
  click(form().Command4);
  EXPECT_EQ(transcript(), "");
  run(1);
  receive("left over");
  settle();
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), 2U);
  EXPECT_EQ(writes[0].text, "AT&W\r");
  EXPECT_NEAR(toSeconds(writes[0].at) - begin, 0, 0.01);
  EXPECT_EQ(writes[1].text, "AT+CPOF\r");
  EXPECT_NEAR(toSeconds(writes[1].at) - begin, 3, 0.01);  // two after the last that came
  EXPECT_NEAR(now() - begin, 6, 0.1);
  EXPECT_EQ(status(), "");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(PowerOff, WaitsAsLongAsItSays) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  click(form().Command4);
  run(0.99);
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
  run(0.02);
  EXPECT_EQ(sent(), Texts{"AT+CPOF\r"});
  run(2.97);
  EXPECT_GT(waiting(), 0);
  run(0.03);
  EXPECT_EQ(waiting(), 0);
}

TEST_F(PowerOff, TellsTheUserAndThenEndsTheProgram) {
  reply("AT&W", kOk);
  reply("AT+CPOF", kOk);
  holdBoxes();
  click(form().Command4);
  run(4.99);
  EXPECT_EQ(boxes(), Texts{});
  run(0.5);
  EXPECT_EQ(status(), "POWER OFF SuccessFul");
  expectBox(kOffWords);
  EXPECT_FALSE(ended());
  answerBox();
  EXPECT_TRUE(ended());
  EXPECT_EQ(sent(), (Texts{"AT&W\r", "AT+CPOF\r"}));
}

TEST_F(PowerOff, EndsNothingUntilTheBoxIsAnswered) {
  reply("AT+CPOF", kOk);
  holdBoxes();
  click(form().Command4);
  run(3600);
  EXPECT_FALSE(ended());
  EXPECT_GT(waiting(), 0);
  EXPECT_EQ(boxes(), Texts{kOffWords});
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  // The clock and the port go on under it.
  const std::string time = caption(form1().Label4);
  receive("\r\nOK\r\n");
  run(5);
  EXPECT_NE(caption(form1().Label4), time);
  EXPECT_FALSE(ended());
  answerBox();
  EXPECT_TRUE(ended());
}

TEST_F(PowerOff, EndsTheProgramAlsoWhenOtherWindowsStandOpen) {
  inPanel([this] {
    panel().form3.Show();
    panel().form8.Show();
    form1().Show();
  });
  settle();
  sent();
  reply("AT+CPOF", kOk);
  press(form().Command4);
  EXPECT_EQ(boxes(), Texts{kOffWords});
  EXPECT_TRUE(ended());
  // No window is unloaded on the way: the main one would have saved the profile once more.
  EXPECT_EQ(sent(), (Texts{"AT&W\r", "AT+CPOF\r"}));
  EXPECT_TRUE(panel().form3.isLoaded());
  EXPECT_TRUE(form().Visible.peek());
}

TEST_F(PowerOff, LeavesNoFileAndNoBookBehindThatIsHeld) {
  inPanel([this] {
    panel().form3.Show();
    panel().form8.Show();
  });
  settle();
  Files& files = panel().platform.files;
  inPanel([&files] { files.openForOutput(1, "Model.txt"); });
  run(0);
  reply("AT+CPOF", kOk);
  press(form().Command4);
  EXPECT_TRUE(ended());
  EXPECT_NO_THROW(files.openForOutput(1, "Model.txt"));
  const auto book = SqliteEngine(std::chrono::milliseconds(0)).OpenDatabase(bookFile());
  EXPECT_NO_THROW(book->Execute("delete from DATA"));
}

TEST_F(PowerOff, RefusedSaysSoAndGoesOn) {
  reply("AT+CPOF", kError);
  press(form().Command4);
  EXPECT_EQ(status(), "Changes Unsuccessful");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(PowerOff, OfAModemThatSaysBothWordsEndsTheProgram) {
  reply("AT+CPOF", "\r\nERROR\r\n\r\nOK\r\n");
  press(form().Command4);
  EXPECT_EQ(status(), "POWER OFF SuccessFul");
  EXPECT_TRUE(ended());
}

TEST_F(PowerOff, WithAnotherAnswerGoesOnWithTheStatusAsItWas) {
  inPanel([this] { form().Label13.Caption = "Changes Unsuccessful"; });
  reply("AT+CPOF", "\r\n+CME: 515\r\n");
  press(form().Command4);
  EXPECT_EQ(status(), "Changes Unsuccessful");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

// The answer to the saving is of no interest, whatever it is.
TEST_F(PowerOff, TheAnswerToTheSavingDecidesNothing) {
  reply("AT&W", kOk);
  reply("AT+CPOF", kError);
  press(form().Command4);
  EXPECT_EQ(status(), "Changes Unsuccessful");
  EXPECT_FALSE(ended());
}

TEST_F(PowerOff, RefusedSavingDoesntKeepItFromEnding) {
  reply("AT&W", kError);
  reply("AT+CPOF", kOk);
  press(form().Command4);
  EXPECT_TRUE(ended());
}

// The poll's reply shares the transcript, and its "OK" is as good as the modem's own.
TEST_F(PowerOff, TakesTheOkOfAPollForItsOwn) {
  reply("AT+CPOF", kError);
  reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
  click(form().Command4);
  run(2.5);
  inPanel([this] { form1().pollCall(); });
  settle();
  EXPECT_EQ(sent(), (Texts{"AT&W\r", "AT+CPOF\r", "AT+CIND?\r"}));
  EXPECT_EQ(status(), "POWER OFF SuccessFul");
  EXPECT_TRUE(ended());
}

// Six seconds after the write, when the handler has long gone on.
TEST_F(PowerOff, AnswerThatComesTooLateEndsNothing) {
  reply("AT+CPOF", kOk, fromSeconds(6));
  press(form().Command4);
  EXPECT_EQ(status(), "");
  expectAtRest();
}

TEST_F(PowerOff, OverAClosedPortDoesNothing) {
  closePort();
  press(form().Command4);
  EXPECT_EQ(status(), "");
  expectAtRest();
}

TEST_F(PowerOff, OfADeviceThatGoesInBetweenEndsNothing) {
  click(form().Command4);
  run(1);
  machine().ports.set({});
  settle();
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
  EXPECT_EQ(status(), "");
  expectAtRest();
}

// The window comes anew for its words, and reads; then the box is shown and the program ends.
TEST_F(PowerOff, OfAWindowThatIsClosedMeanwhileEndsTheProgram) {
  reply("AT+CPOF", kOk);
  click(form().Command4);
  run(3);
  closeWindow();
  settle();
  EXPECT_EQ(sent(), (Texts{"AT&W\r", "AT+CPOF\r", "AT+CIND?\r"}));
  EXPECT_EQ(boxes(), Texts{kOffWords});
  EXPECT_TRUE(ended());
}

TEST_F(PowerOff, PressedTwiceEndsTheProgramOnce) {
  reply("AT+CPOF", kOk);
  click(form().Command4);
  run(1);
  click(form().Command4);
  settle();
  EXPECT_EQ(boxes(), Texts{kOffWords});
  EXPECT_TRUE(ended());
}

}  // namespace
}  // namespace gsm
