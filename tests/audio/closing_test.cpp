// The window's closing saves the modem's profile and waits a second for it, in which everything
// may happen.

#include <gtest/gtest.h>

#include "panel/form7.h"
#include "tests/audio/audio_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

class AudioClosing : public AudioTest {
 protected:
  void SetUp() override {
    AudioTest::SetUp();
    prepare();
  }
  void prepare() {
    inPanel([this] {
      form1().Frame5.Visible = false;
      form1().Command6.Enabled = true;
      form1().Show();
    });
    run(0);
    press(form1().Command6);
    setStatus("before");
    sentWithTimes();
  }
  void expectGone() {
    EXPECT_FALSE(form().isLoaded());
    EXPECT_FALSE(form().Visible.peek());
    expectAtRest();
  }
  void expectBack() {
    expectGone();
    EXPECT_TRUE(form1().Visible.peek());
    EXPECT_EQ(caption(form1().Label5), "");
  }
};

TEST_F(AudioClosing, SavesTheProfileAndGoesAfterASecond) {
  leaveInTranscript("old");
  closeWindow();
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
  EXPECT_EQ(transcript(), "old");
  run(0.98);
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  EXPECT_EQ(caption(form1().Label5), "Please Wait...");
  EXPECT_EQ(transcript(), "old");
  run(0.04);
  expectBack();
  EXPECT_EQ(transcript(), "");
  settle();
  EXPECT_EQ(sent(), Texts{});
}

// Some window is on view all the while, and the main one never comes up over an old reply.
TEST_F(AudioClosing, BringsTheMainWindowBackOverAnEmptyTranscriptBeforeTheWindowGoes) {
  leaveInTranscript("old");
  Texts steps;
  const PropertyWatch ofTranscript(form1().Text1, [&](PropertyId property) {
    if (property == PropertyId::Text) steps.push_back("the transcript is \"" + transcript() + "\"");
  });
  const PropertyWatch ofMain(form1(), [&](PropertyId property) {
    if (property == PropertyId::Visible) steps.emplace_back("the main window comes");
  });
  const PropertyWatch ofStatus(form1().Label5, [&](PropertyId property) {
    if (property == PropertyId::Caption) steps.push_back("it says " + caption(form1().Label5));
  });
  const PropertyWatch ofWindow(form(), [&](PropertyId property) {
    if (property == PropertyId::Visible) steps.emplace_back("the window goes");
  });
  closeWindow();
  settle();
  EXPECT_EQ(steps, (Texts{"the transcript is \"\"", "the main window comes", "it says ",
                          "the window goes"}));
}

TEST_F(AudioClosing, IsTheSameWhateverTheModemSays) {
  for (const char* answer : {kOk, kError, "\r\nERROR\r\n\r\nOK\r\n", ""}) {
    reply("AT&W", answer);
    closeWindow();
    settle();
    EXPECT_EQ(sent(), Texts{"AT&W\r"});
    EXPECT_EQ(transcript(), "");
    expectBack();
    prepare();
  }
}

// The second one goes through first, so hiding the window at the end of the first loads it anew,
// unseen; then it goes for good.
TEST_F(AudioClosing, OnceMoreInThatSecondSavesTwiceAndLoadsTheWindowOnItsWayOut) {
  closeWindow();
  run(0.5);
  closeWindow();
  EXPECT_EQ(sent(), (Texts{"AT&W\r", "AT&W\r"}));
  run(1.01);
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(caption(form1().Label5), "");
  EXPECT_FALSE(form().Visible.peek());
  settle();
  EXPECT_EQ(sent(), kGainReads);
  expectBack();
}

TEST_F(AudioClosing, AClickOnOkInThatSecondSendsTheGains) {
  move(form().Slider1, 100);
  move(form().Slider2, 50);
  reply("AT+VGR=100", kOk);
  closeWindow();
  run(0.5);
  click(form().Command1);
  EXPECT_EQ(sent(), (Texts{"AT&W\r", "AT+VGR=100\r"}));
  run(1);
  EXPECT_TRUE(form().Visible.peek()) << "the handler that came last ends first";
  settle();
  EXPECT_EQ(sent(), Texts{"AT+VGT=50\r"});
  expectBack();
}

TEST_F(AudioClosing, ATabInThatSecondReadsItsPage) {
  reply("AT+ECHO?", information("+ECHO: 0,3,30,8000,256"));
  closeWindow();
  run(0.5);
  clickTab(toneAndEcho);
  EXPECT_EQ(pages(), Texts{"Frame2"});
  settle();
  EXPECT_EQ(sent(), (Texts{"AT&W\r", "AT+ECHO?\r", "AT+SIDET?\r"}));
  expectBack();
}

TEST_F(AudioClosing, BackInThatSecondBringsTheMainWindowUpAtOnce) {
  closeWindow();
  run(0.5);
  click(form().Command2);
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_TRUE(form().isLoaded());
  EXPECT_EQ(caption(form1().Label5), "Please Wait...");
  settle();
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
  expectBack();
}

// It was never gone, so it goes with the closing.
TEST_F(AudioClosing, BackAndAnOpeningInThatSecondDontKeepTheWindow) {
  closeWindow();
  run(0.3);
  click(form().Command2);
  run(0.3);
  click(form1().Command6);
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
  settle();
  EXPECT_EQ(sent(), Texts{});
  expectBack();
}

TEST_F(AudioClosing, ASliderInThatSecondIsMovedInVain) {
  closeWindow();
  run(0.5);
  move(form().Slider1, 77);
  EXPECT_EQ(speakerGain(), "77");
  settle();
  expectBack();
  beginLoad();
  settle();
  EXPECT_EQ(speakerGain(), "");
}

TEST_F(AudioClosing, MinimisingInThatSecondTakesTheStatusWindowAlong) {
  closeWindow();
  run(0.5);
  inPanel([this] { form().userState(WindowState::minimised); });
  run(0);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::minimised);
  settle();
  expectBack();
}

TEST_F(AudioClosing, ARingInThatSecondIsHeardAndTheMainWindowComesBackAfterIt) {
  closeWindow();
  receive(unsolicited("RING"), 0.5);
  run(2.49);
  EXPECT_FALSE(form1().Timer2.Enabled.peek());
  EXPECT_TRUE(form().Visible.peek());
  run(0.02);
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
  EXPECT_FALSE(form().isLoaded());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(caption(form1().Label5), "");
}

TEST_F(AudioClosing, APollInThatSecondLosesItsReplyToTheClosing) {
  reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
  inPanel([this] { form1().Timer2.Enabled = true; });
  run(1.5);
  closeWindow();
  run(0.6);
  EXPECT_EQ(sent(), (Texts{"AT&W\r", "AT+CIND?\r"}));
  inPanel([this] { form1().Timer2.Enabled = false; });
  settle();
  EXPECT_EQ(transcript(), "");
  expectBack();
}

TEST_F(AudioClosing, AReplyInThatSecondIsShownOnTheWindowThatGoes) {
  closeWindow();
  receive(information("+VGR: 200"), 0.1);
  settle();
  EXPECT_EQ(status(), "Default Values-Speaker 200") << "which it shows no more";
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
  expectBack();
}

// Its routing ends when the window is gone, and what it assigns loads the window anew.
TEST_F(AudioClosing, AReplyBehindThatSecondLoadsTheWindowUnseen) {
  receive(information("+VGR: 200"), 1.2);
  closeWindow();
  run(1.1);
  expectBack();
  settle();
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(speakerGain(), "200");
  EXPECT_EQ(sent(), (Texts{"AT&W\r", "AT+VGR?\r", "AT+VGT?\r"}));
}

TEST_F(AudioClosing, AModemThatGoesInThatSecondChangesNothing) {
  closeWindow();
  run(0.5);
  machine().ports.set({});
  settle();
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
  expectBack();
}

TEST_F(AudioClosing, APortThatIsClosedInThatSecondChangesNothing) {
  closeWindow();
  run(0.5);
  closePort();
  settle();
  expectBack();
}

// The trap skips what brings the main window back, and keeps nothing from going.
class AudioClosingInVain : public AudioClosing {
 protected:
  void expectNothingOnView() {
    expectGone();
    EXPECT_FALSE(form1().Visible.peek());
    EXPECT_EQ(caption(form1().Label5), "Please Wait...");
    EXPECT_EQ(transcript(), "old");
  }
};

TEST_F(AudioClosingInVain, WithoutAPortEndsSilentlyBeforeTheMainWindowIsBack) {
  leaveInTranscript("old");
  closePort();
  closeWindow();
  EXPECT_EQ(sent(), Texts{});
  expectNothingOnView();
}

TEST_F(AudioClosingInVain, WithoutADeviceEndsSilentlyBeforeTheMainWindowIsBack) {
  leaveInTranscript("old");
  machine().ports.set({});
  closeWindow();
  settle();
  expectNothingOnView();
}

class AudioClosingAtMidnight : public AudioClosingInVain {
 protected:
  void SetUp() override {
    startWithOpenPort({2026, 3, 1, 23, 59, 0});
    prepare();
  }
};

TEST_F(AudioClosingAtMidnight, EndsSilentlyBeforeTheMainWindowIsBack) {
  run(59.5 - now());
  leaveInTranscript("old");
  closeWindow();
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
  run(0.6);
  expectNothingOnView();
}

}  // namespace
}  // namespace gsm
