#include <gtest/gtest.h>

#include "phonebook/form5.h"
#include "tests/audio/audio_test.h"

namespace gsm {
namespace {

// What the user and the network do while the window waits.
class OvertakenAudio : public AudioTest {
 protected:
  void pollInTheMiddle() {
    reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
    inPanel([this] { form1().Timer2.Enabled = true; });
    run(1.5);
  }
  void endPolls() {
    inPanel([this] { form1().Timer2.Enabled = false; });
    settle();
  }
};

// It comes up at once by the second opening, while the first one still waits for its load.
TEST_F(OvertakenAudio, AClickOnOkInALoadSendsWhatIsKnown) {
  reply("AT+VGR?", information("+VGR: 128"));
  beginLoad();
  run(1.5);
  beginLoad();
  EXPECT_TRUE(form().Visible.peek());
  run(0.6);
  EXPECT_EQ(speakerGain(), "128");
  sent();
  run(0.5);
  click(form().Command1);
  settle();
  EXPECT_EQ(sent(), Texts{"AT+VGR=128\r"});
  expectAtRest();
}

TEST_F(OvertakenAudio, AClickOnOkInTheFirstWaitOfALoadGoesBetweenItsReads) {
  beginLoad();
  beginLoad();
  run(0.3);
  move(form().Slider1, 9);
  click(form().Command1);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+VGR?\r", "AT+VGR=9\r", "AT+VGT?\r"}));
}

TEST_F(OvertakenAudio, ATabInTheMiddleOfAnotherPagesReadsReadsOnTopOfThem) {
  openWindow();
  reply("ATS0?", information("002"));
  clickTab(toneAndEcho);
  run(0.5);
  clickTab(answerAndDtmf);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+ECHO?\r", "ATS0?\r", "AT+VTD?\r", "AT+SIDET?\r"}));
  EXPECT_EQ(pages(), Texts{"Frame10"});
  EXPECT_EQ(form().Combo3.Text.peek(), "2");
  expectAtRest();
}

TEST_F(OvertakenAudio, AChangeInTheMiddleOfAReadTakesItsTranscript) {
  openWindow();
  reply("ATS0?", information("002"));
  reply("AT+VTD=3", kOk);
  clickTab(answerAndDtmf);
  run(0.5);
  fill(form().Text1, "300");
  press(form().Command6);
  EXPECT_FALSE(form().Option4.Value.peek());
  EXPECT_EQ(form().Text1.Text.peek(), "") << "the read goes on and empties it";
  EXPECT_EQ(status(), "Changes SuccessFul-TONE LENGTH");
}

TEST_F(OvertakenAudio, OkTwiceSendsBothGainsTwice) {
  openWindow();
  move(form().Slider1, 1);
  move(form().Slider2, 2);
  click(form().Command1);
  run(0.5);
  press(form().Command1);
  EXPECT_EQ(sent(), (Texts{"AT+VGR=1\r", "AT+VGR=1\r", "AT+VGT=2\r", "AT+VGT=2\r"}));
}

TEST_F(OvertakenAudio, ASliderThatIsMovedInTheWaitGoesOutWithTheSecondCommand) {
  openWindow();
  move(form().Slider1, 1);
  click(form().Command1);
  run(0.5);
  move(form().Slider2, 77);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+VGR=1\r", "AT+VGT=77\r"}));
}

// The rest of a handler refers to the window, which loads it anew, unseen.
TEST_F(OvertakenAudio, ClosingTheWindowInTheReadOfTheAnswerLoadsItAnew) {
  openWindow();
  reply("ATS0?", information("002"));
  reply("AT+VTD?", information("+VTD: 3"));
  clickTab(answerAndDtmf);
  run(0.5);
  closeWindow();
  settle();
  EXPECT_EQ(sent(), (Texts{"ATS0?\r", "AT&W\r", "AT+VGR?\r", "AT+VGT?\r", "AT+VTD?\r"}));
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_FALSE(form().Option4.Value.peek()) << "the closing has cleared the reply";
  EXPECT_EQ(form().Text1.Text.peek(), "300");
  EXPECT_EQ(pages(), Texts{"Frame1"});
  expectAtRest();
}

// Nothing else in them refers to the window.
TEST_F(OvertakenAudio, ClosingTheWindowInTheReadOfTheEchoLetsItGo) {
  openWindow();
  clickTab(toneAndEcho);
  run(0.5);
  closeWindow();
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+ECHO?\r", "AT&W\r", "AT+SIDET?\r"}));
  EXPECT_FALSE(form().isLoaded());
  expectAtRest();
}

TEST_F(OvertakenAudio, ClosingTheWindowInTheChangeOfTheGainsLosesTheSecondOne) {
  openWindow();
  move(form().Slider1, 1);
  move(form().Slider2, 2);
  click(form().Command1);
  run(0.5);
  closeWindow();
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+VGR=1\r", "AT&W\r", "AT+VGR?\r", "AT+VGT?\r"}));
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  expectAtRest();
}

TEST_F(OvertakenAudio, ClosingTheWindowInAChangeOfTheAnswerTakesItsReply) {
  openWindow();
  turnTo(answerAndDtmf);
  reply("ATS0=1", kOk);
  click(form().Option4);
  pick(form().Combo3, 0);
  sent();
  click(form().Command5);
  run(0.5);
  closeWindow();
  settle();
  EXPECT_EQ(sent(), (Texts{"ATS0=1\r", "AT&W\r", "AT+VGR?\r", "AT+VGT?\r"}));
  EXPECT_EQ(status(), "Changes UNSuccessFul.Try Again");
  EXPECT_TRUE(panel().form5.Command1.Enabled.peek());
  expectAtRest();
}

TEST_F(OvertakenAudio, ClosingTheWindowInAChangeOfTheToneLengthLetsItGo) {
  openWindow();
  turnTo(answerAndDtmf);
  fill(form().Text1, "300");
  reply("AT+VTD=3", kOk);
  click(form().Command6);
  run(0.5);
  closeWindow();
  settle();
  EXPECT_FALSE(form().isLoaded()) << "the reply is gone, and with it what would be said";
  expectAtRest();
}

TEST_F(OvertakenAudio, ARingTakesTheReplyThatItComesWith) {
  openWindow();
  reply("ATS0?", information("002") + unsolicited("RING"));
  reply("AT+VTD?", information("+VTD: 3"));
  turnTo(answerAndDtmf);
  EXPECT_FALSE(form().Option4.Value.peek());
  EXPECT_EQ(form().Text1.Text.peek(), "300");
}

TEST_F(OvertakenAudio, AGainsReplyTakesTheRingThatItComesWith) {
  reply("AT+VGR?", information("+VGR: 128") + unsolicited("RING"));
  beginLoad();
  settle();
  EXPECT_EQ(speakerGain(), "128");
  EXPECT_FALSE(form1().Timer2.Enabled.peek());
}

TEST_F(OvertakenAudio, ANewMessageTakesTheOutcomeThatItComesWith) {
  openWindow();
  move(form().Slider1, 1);
  setStatus("before");
  reply("AT+VGR=1", kOk + unsolicited("+CMTI: \"SM\",1"));
  press(form().Command1);
  EXPECT_EQ(status(), "before");
}

// The poll clears nothing, and its own wait ends before the routing's.
TEST_F(OvertakenAudio, APollInTheLoadLeavesItsReplies) {
  reply("AT+VGR?", information("+VGR: 128"));
  reply("AT+VGT?", information("+VGT: 064"));
  pollInTheMiddle();
  beginLoad();
  run(8);
  endPolls();
  EXPECT_EQ(speakerGain(), "128");
  EXPECT_EQ(microphoneGain(), "064");
}

TEST_F(OvertakenAudio, APollInTheReadOfTheAnswerLeavesItsReplies) {
  openWindow();
  reply("ATS0?", information("002"));
  reply("AT+VTD?", information("+VTD: 3"));
  pollInTheMiddle();
  clickTab(answerAndDtmf);
  run(8);
  endPolls();
  EXPECT_EQ(form().Combo3.Text.peek(), "2");
  EXPECT_EQ(form().Text1.Text.peek(), "300");
}

TEST_F(OvertakenAudio, APollInTheReadOfTheEchoLeavesItsReplies) {
  openWindow();
  reply("AT+ECHO?", information("+ECHO: 0,3,30,8000,256"));
  reply("AT+SIDET?", information("+SIDET: 1,2"));
  pollInTheMiddle();
  clickTab(toneAndEcho);
  run(8);
  endPolls();
  EXPECT_EQ(form().Slider8.Value.peek(), 8000);
  EXPECT_EQ(form().Slider10.Value.peek(), 2);
}

// The poll's "OK" stands in the transcript too, and is taken for the change's own.
struct PolledRow {
  std::string name;
  AudioTab tab;
  CommandButton Form6::*button;
  std::string command;
  std::string status;
};

class PolledChange : public OvertakenAudio, public ::testing::WithParamInterface<PolledRow> {
 protected:
  void fillPages() {
    assign([this] {
      Form6& window = form();
      window.Label5.Caption = "1";
      window.Combo1.Text = "0";
      window.Combo2.Text = "1";
      window.Option1.Value = true;
      window.Option4.Value = true;
      window.Combo3.Text = "1";
      window.Text1.Text = "300";
      if (window.Combo4.ListCount() > 0) window.Combo4.ListIndex = 3;
      window.Combo5.Text = "1";
    });
  }
};

TEST_P(PolledChange, TakesTheResultOfThePollForItsOwn) {
  openWindow();
  turnTo(GetParam().tab);
  fillPages();
  reply(GetParam().command, kError);
  pollInTheMiddle();
  sent();
  click(form().*GetParam().button);
  run(4);
  EXPECT_EQ(sent(), (Texts{GetParam().command + "\r", "AT+CIND?\r"}));
  EXPECT_EQ(status(), GetParam().status);
  endPolls();
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, PolledChange,
    ::testing::Values(PolledRow{"TheGains", gains, &Form6::Command1, "AT+VGR=1",
                                "Changes SuccessFul-Speaker"},
                      PolledRow{"TheEcho", toneAndEcho, &Form6::Command3, "AT+ECHO=0,1,0,0,0,0",
                                "Changes SuccessFul"},
                      PolledRow{"TheSideTone", toneAndEcho, &Form6::Command4, "AT+SIDET=0,0",
                                "Changes SuccessFul"},
                      PolledRow{"TheAnswer", answerAndDtmf, &Form6::Command5, "ATS0=1",
                                "Changes SuccessFul.AutoAnswer Enabled"},
                      PolledRow{"TheToneLength", answerAndDtmf, &Form6::Command6, "AT+VTD=3",
                                "Changes SuccessFul-TONE LENGTH"},
                      PolledRow{"TheMelody", melodies, &Form6::Command7, "AT+CRMP= 3,0,0,1",
                                "Changes SuccessFul-Ring Melody"}),
    RowName());

TEST_F(OvertakenAudio, ADeviceThatGoesEndsTheLoadWhereItIs) {
  beginLoad();
  run(0.5);
  machine().ports.set({});
  settle();
  EXPECT_EQ(sent(), Texts{"AT+VGR?\r"});
  EXPECT_EQ(status(), "Please Wait....");
  EXPECT_TRUE(form().Visible.peek());
  expectAtRest();
}

TEST_F(OvertakenAudio, ADeviceThatGoesEndsTheReadOfAPageWhereItIs) {
  openWindow();
  clickTab(answerAndDtmf);
  run(0.5);
  machine().ports.set({});
  settle();
  EXPECT_EQ(sent(), Texts{"ATS0?\r"});
  EXPECT_EQ(status(), "Please Wait......");
  expectAtRest();
}

// No wait carries over midnight: the handler ends there, and what it has done stays.
class AudioAtMidnight : public AudioTest {
 protected:
  void SetUp() override { startWithOpenPort({2026, 3, 1, 23, 59, 0}); }
  void startAt(double second) { run(second - now()); }
  void passMidnight() {
    run(60.01 - now());
    expectAtRest();
  }
};

TEST_F(AudioAtMidnight, ALoadEndsWithWhatItHasRead) {
  startAt(59.5);
  beginLoad();
  passMidnight();
  EXPECT_EQ(sent(), Texts{"AT+VGR?\r"});
  EXPECT_EQ(status(), "Please Wait....");
  EXPECT_TRUE(form().Visible.peek());
}

TEST_F(AudioAtMidnight, EveryOtherWaitEndsTheSame) {
  startAt(10);
  openWindow();
  turnTo(toneAndEcho);
  turnTo(answerAndDtmf);
  turnTo(melodies);
  move(form().Slider1, 1);
  assign([this] {
    Form6& window = form();
    for (Frame* frame : {&window.Frame1, &window.Frame2, &window.Frame10}) frame->Visible = true;
    window.Label5.Caption = "1";
    window.Label6.Caption = "2";
    window.Combo1.Text = "0";
    window.Combo2.Text = "1";
    window.Option1.Value = true;
    window.Option3.Value = true;
    window.Combo3.Text = "1";
    window.Text1.Text = "300";
    window.Combo4.Text = "Incoming SMS";
    window.Combo5.Text = "1";
  });
  sent();
  startAt(59.1);
  setStatus("before");
  CommandButton* const buttons[] = {&form().Command1, &form().Command3, &form().Command4,
                                    &form().Command5, &form().Command6, &form().Command7};
  for (CommandButton* button : buttons) {
    click(*button);
    run(0.1);
  }
  passMidnight();
  EXPECT_EQ(sent(), (Texts{"AT+VGR=1\r", "AT+ECHO=0,1,0,0,0,0\r", "AT+SIDET=0,0\r", "ATS0=0\r",
                           "AT+VTD=3\r", "AT+CRMP= 3,0,0,1\r"}));
  EXPECT_EQ(status(), "") << "which the melody has emptied";
  EXPECT_EQ(form().Text1.Text.peek(), "300");
}

TEST_F(AudioAtMidnight, TheReadsOfThePagesEndTheSame) {
  startAt(10);
  openWindow();
  startAt(59.2);
  clickTab(toneAndEcho);
  run(0.1);
  clickTab(answerAndDtmf);
  passMidnight();
  EXPECT_EQ(sent(), (Texts{"AT+ECHO?\r", "ATS0?\r"}));
  EXPECT_EQ(status(), "Please Wait......");
}

}  // namespace
}  // namespace gsm
