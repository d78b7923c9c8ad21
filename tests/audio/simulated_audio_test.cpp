#include <gtest/gtest.h>

#include <memory>

#include "phonebook/form5.h"
#include "simulator/host/simulated_modem.h"
#include "tests/audio/audio_test.h"

namespace gsm {
namespace {

// The window against a modem that keeps what it is told.
class SimulatedAudio : public AudioTest {
 protected:
  void SetUp() override {
    AudioTest::SetUp();
    modem_ = std::make_unique<SimulatedModem>(machine().time, machine().line,
                                              simulator::ModemOptions{.speed = 9600});
    openWindow();
  }
  // The modem goes after the panel's handlers have been unwound, and before the line.
  void TearDown() override {
    world().time().abandon();
    modem_.reset();
  }
  void openAgain() {
    closeWindow();
    settle();
    openWindow();
  }

  std::unique_ptr<SimulatedModem> modem_;
};

// A gain of two digits keeps its carriage return, which is sent along.
TEST_F(SimulatedAudio, GainsGoRound) {
  EXPECT_EQ(speakerGain(), "128");
  EXPECT_EQ(microphoneGain(), "32\r");
  press(form().Command1);
  EXPECT_EQ(status(), "Changes SuccessFul-Microphone");
  move(form().Slider1, 200);
  move(form().Slider2, 131);
  press(form().Command1);
  EXPECT_EQ(status(), "Changes SuccessFul-Microphone");
  openAgain();
  EXPECT_EQ(speakerGain(), "192") << "the step's lower edge";
  EXPECT_EQ(microphoneGain(), "128");
  EXPECT_EQ(form().Slider1.Value.peek(), 192);
}

TEST_F(SimulatedAudio, EchoOfTheFactoryIsReadAsFarAsTheSlidersTakeIt) {
  turnTo(toneAndEcho);
  EXPECT_EQ(form().Combo1.Text.peek(), "0");
  EXPECT_EQ(form().Combo2.Text.peek(), "1");
  EXPECT_TRUE(form().Frame6.Visible.peek());
  EXPECT_TRUE(form().Frame7.Visible.peek());
  EXPECT_TRUE(form().Option2.Value.peek());
}

TEST_F(SimulatedAudio, EchoOfBothAlgorithmsGoesRound) {
  turnTo(toneAndEcho);
  move(form().Slider3, 15);
  move(form().Slider6, 31);
  press(form().Command3);
  EXPECT_EQ(status(), "Changes SuccessFul");
  openAgain();
  turnTo(toneAndEcho);
  EXPECT_EQ(form().Slider3.Value.peek(), 15);
  EXPECT_EQ(form().Slider6.Value.peek(), 31);
  EXPECT_FALSE(form().Frame7.Visible.peek());
  pick(form().Combo1, 1);
  pick(form().Combo2, 1);
  move(form().Slider8, 12345);
  move(form().Slider9, 100);
  press(form().Command3);
  openAgain();
  turnTo(toneAndEcho);
  EXPECT_EQ(form().Combo1.Text.peek(), "1");
  EXPECT_EQ(form().Combo2.Text.peek(), "3");
  EXPECT_EQ(form().Slider8.Value.peek(), 12345);
  EXPECT_EQ(form().Slider9.Value.peek(), 100);
  EXPECT_FALSE(form().Frame6.Visible.peek());
}

TEST_F(SimulatedAudio, SideToneGoesRound) {
  turnTo(toneAndEcho);
  click(form().Option1);
  move(form().Slider10, 2);
  press(form().Command4);
  EXPECT_EQ(status(), "Changes SuccessFul");
  openAgain();
  turnTo(toneAndEcho);
  EXPECT_TRUE(form().Option1.Value.peek());
  EXPECT_EQ(form().Slider10.Value.peek(), 2);
}

TEST_F(SimulatedAudio, AutoAnswerGoesRound) {
  turnTo(answerAndDtmf);
  EXPECT_TRUE(form().Option3.Value.peek());
  click(form().Option4);
  pick(form().Combo3, 1);
  press(form().Command5);
  EXPECT_EQ(status(), "Changes SuccessFul.AutoAnswer Enabled");
  EXPECT_FALSE(panel().form5.Command1.Enabled.peek());
  openAgain();
  turnTo(answerAndDtmf);
  EXPECT_TRUE(form().Option4.Value.peek());
  EXPECT_EQ(form().Combo3.Text.peek(), "2");
  click(form().Option3);
  press(form().Command5);
  EXPECT_EQ(status(), "Changes SuccessFul.AutoAnswer Disabled");
  EXPECT_TRUE(panel().form5.Command1.Enabled.peek());
}

TEST_F(SimulatedAudio, ToneLengthGoesRound) {
  turnTo(answerAndDtmf);
  EXPECT_EQ(form().Text1.Text.peek(), "0");
  fill(form().Text1, "1500");
  press(form().Command6);
  EXPECT_EQ(status(), "Changes SuccessFul-TONE LENGTH");
  fill(form().Text1, "32767");
  press(form().Command6);
  EXPECT_EQ(status(), "Changes Unsuccessful,CHECK TONE LENGTH");
  openAgain();
  turnTo(answerAndDtmf);
  EXPECT_EQ(form().Text1.Text.peek(), "1500");
}

TEST_F(SimulatedAudio, MelodyPlays) {
  turnTo(melodies);
  pick(form().Combo4, 1);
  pick(form().Combo5, 10);
  move(form().Slider11, 15);
  press(form().Command7);
  EXPECT_EQ(status(), "Changes SuccessFul-Ring Melody");
  fill(form().Combo5, "11");
  press(form().Command7);
  EXPECT_EQ(status(), "Changes UnSuccessFul-Ring Melody");
}

}  // namespace
}  // namespace gsm
