// What the user hears, and what the modem takes by itself, in the simulated week.

#include <algorithm>
#include <cmath>

#include "audio/form6.h"
#include "panel/form1.h"
#include "phonebook/form5.h"
#include "tests/together/simulated_week.h"

namespace gsm {
namespace {

enum Tab { kGains = 1, kEcho = 2, kAnswer = 3 };

constexpr int kSpeakerStep = 16;
constexpr int kMicrophoneStep = 32;

constexpr std::array kSlidersOf1 = {&Form6::Slider3, &Form6::Slider4, &Form6::Slider5,
                                    &Form6::Slider6};
constexpr std::array kSlidersOf3 = {&Form6::Slider7, &Form6::Slider8, &Form6::Slider9};

// The modem tells the lower edge of a gain's step, of which three characters are taken.
std::string gainTold(int gain, int step) {
  return (std::to_string(std::min(gain / step * step, 224)) + "\r\n").substr(0, 3);
}

}  // namespace

// A window that was left by its button comes back as it was, with nothing read.
void SimulatedWeek::openAudio(int tab) {
  if (!audio().Visible.peek()) {
    showPanel();
    const bool loads = !audio().isLoaded();
    sent();
    press(form1().Command6);
    ASSERT_TRUE(audio().Visible.peek());
    EXPECT_FALSE(form1().Visible.peek());
    EXPECT_EQ(form1().Label5.Caption.peek(), "Please Wait...");
    if (loads) {
      const std::string microphone = gainTold(sound_.microphoneGain, kMicrophoneStep);
      EXPECT_EQ(audio().Label5.Caption.peek(), gainTold(sound_.speakerGain, kSpeakerStep));
      EXPECT_EQ(audio().Label6.Caption.peek(), microphone);
      EXPECT_EQ(audio().Slider2.Value.peek(), std::stoi(microphone));
      EXPECT_EQ(audio().Label7.Caption.peek(), "Default Values-MicroPhone " + microphone);
    } else {
      EXPECT_EQ(sent(), Texts{});
    }
  }
  world().time().after(Duration::zero(), [this, tab] { audio().TabStrip1.userTab(tab); });
  settle();
  EXPECT_EQ(audio().Frame1.Visible.peek(), tab == kGains);
  EXPECT_EQ(audio().Frame2.Visible.peek(), tab == kEcho);
  EXPECT_EQ(audio().Frame10.Visible.peek(), tab == kAnswer);
  EXPECT_FALSE(audio().Frame12.Visible.peek()) << "no tab leads to it";
}

void SimulatedWeek::tuneGains() {
  comeToRest();
  openAudio(kGains);
  if (perhaps(2)) move(audio().Slider1, static_cast<int>(below(256)));
  if (perhaps(2)) move(audio().Slider2, static_cast<int>(below(256)));
  sound_.speakerGain = std::stoi(audio().Label5.Caption.peek());
  sound_.microphoneGain = std::stoi(audio().Label6.Caption.peek());
  press(audio().Command1);
  EXPECT_EQ(audio().Label7.Caption.peek(), "Changes SuccessFul-Microphone");
  sent();
  if (perhaps(2)) {
    const std::string statusLine = form1().Label5.Caption.peek();
    press(audio().Command2);
    EXPECT_TRUE(form1().Visible.peek());
    EXPECT_TRUE(audio().isLoaded());
    EXPECT_EQ(form1().Label5.Caption.peek(), statusLine);
    EXPECT_EQ(sent(), Texts{});
  } else {
    showPanel();
    EXPECT_EQ(form1().Label5.Caption.peek(), "");
    EXPECT_EQ(sent(), Texts{"AT&W\r"});
  }
}

// What the factory has set goes beyond a slider's end, so the reading of it stops there.
void SimulatedWeek::cancelEcho() {
  comeToRest();
  openAudio(kEcho);
  EXPECT_TRUE(audio().Label7.Caption.peek().starts_with("Echo Current Values--"));
  EXPECT_EQ(audio().Combo1.Text.peek(), std::to_string(sound_.echoMode));
  EXPECT_EQ(audio().Combo2.Text.peek(), std::to_string(sound_.echoAlgorithm));
  const bool isFirst = sound_.echoAlgorithm == 1;
  const bool fits = !isFirst || sound_.echoOf1[1] <= audio().Slider4.Max.peek();
  for (std::size_t i = 0; fits && isFirst && i < kSlidersOf1.size(); ++i) {
    EXPECT_EQ((audio().*kSlidersOf1[i]).Value.peek(), sound_.echoOf1[i]);
  }
  for (std::size_t i = 0; !isFirst && i < kSlidersOf3.size(); ++i) {
    EXPECT_EQ((audio().*kSlidersOf3[i]).Value.peek(), sound_.echoOf3[i]);
  }
  if (fits) {
    EXPECT_EQ(audio().Frame6.Visible.peek(), isFirst);
    EXPECT_EQ(audio().Frame7.Visible.peek(), !isFirst);
  }
  sound_.echoMode = static_cast<int>(below(2));
  sound_.echoAlgorithm = perhaps(2) ? 1 : 3;
  pick(audio().Combo1, sound_.echoMode);
  pick(audio().Combo2, sound_.echoAlgorithm == 1 ? 0 : 1);
  EXPECT_EQ(audio().Frame6.Visible.peek(), sound_.echoAlgorithm == 1);
  EXPECT_EQ(audio().Frame7.Visible.peek(), sound_.echoAlgorithm == 3);
  const auto moveAll = [this](const auto& sliders, auto& values) {
    for (std::size_t i = 0; i < sliders.size(); ++i) {
      Slider& slider = audio().*sliders[i];
      const int least = slider.Min.peek();
      const auto count = static_cast<std::size_t>(slider.Max.peek() - least + 1);
      move(slider, least + static_cast<int>(below(count)));
      values[i] = slider.Value.peek();
    }
  };
  if (sound_.echoAlgorithm == 1) {
    moveAll(kSlidersOf1, sound_.echoOf1);
  } else {
    moveAll(kSlidersOf3, sound_.echoOf3);
  }
  press(audio().Command3);
  EXPECT_EQ(audio().Label7.Caption.peek(), "Changes SuccessFul");
}

void SimulatedWeek::setSideTone() {
  comeToRest();
  openAudio(kEcho);
  EXPECT_EQ(audio().Option1.Value.peek(), sound_.sideTone == 0);
  EXPECT_EQ(audio().Option2.Value.peek(), sound_.sideTone == 1);
  EXPECT_EQ(audio().Slider10.Value.peek(), sound_.sideToneLevel);
  sound_.sideTone = static_cast<int>(below(2));
  sound_.sideToneLevel = static_cast<int>(below(4));
  click(sound_.sideTone == 0 ? audio().Option1 : audio().Option2);
  move(audio().Slider10, sound_.sideToneLevel);
  press(audio().Command4);
  EXPECT_EQ(audio().Label7.Caption.peek(), "Changes SuccessFul");
}

// The status line has gone on to the tones' length, which is one of three digits where it can't be
// read.
void SimulatedWeek::compareAutoAnswer(int rings) {
  EXPECT_EQ(audio().Option3.Value.peek(), rings == 0);
  EXPECT_EQ(audio().Option4.Value.peek(), rings != 0);
  EXPECT_EQ(audio().Combo3.Visible.peek(), rings != 0);
  const bool isRead = sound_.toneLength < 100;
  const std::string length = std::to_string(sound_.toneLength * 100);
  EXPECT_EQ(audio().Text1.Text.peek(), isRead ? length : "");
  EXPECT_EQ(audio().Label7.Caption.peek(),
            isRead       ? "Tone Lenght Currently Is" + length
            : rings == 0 ? "Auto Answer Disabled"
                         : "Auto Answer Enabled,Total Rings" + std::to_string(rings));
  if (rings == 0) return;
  EXPECT_EQ(audio().Combo3.Text.peek(), std::to_string(rings));
}

// The number of rings is looked at for both, so with none of it even the end isn't sent.
void SimulatedWeek::switchAutoAnswer(const std::string& rings) {
  const bool on = !rings.empty();
  click(on ? audio().Option4 : audio().Option3);
  EXPECT_EQ(audio().Combo3.Visible.peek(), on);
  if (on) type(audio().Combo3, rings);
  const bool isKnown = !audio().Combo3.Text.peek().empty();
  const std::string before = audio().Label7.Caption.peek();
  sent();
  press(audio().Command5);
  if (!isKnown || (on && std::stoi(rings) > 8)) {
    expectBox(isKnown ? "UnsuccessFul Changes.Check Rings " : "");
    EXPECT_EQ(sent(), Texts{});
    EXPECT_EQ(audio().Label7.Caption.peek(), before);
    return;
  }
  EXPECT_EQ(audio().Label7.Caption.peek(), on ? "Changes SuccessFul.AutoAnswer Enabled"
                                              : "Changes SuccessFul.AutoAnswer Disabled");
  EXPECT_EQ(prompt().Command1.Enabled.peek(), !on);
  EXPECT_EQ(prompt().Label2.Caption.peek(), on ? "AutoAnswer Enabled" : "");
}

// It rings at once and each five seconds, and the modem takes the call a second behind the ring
// that it has been told. In the end the user answers again.
void SimulatedWeek::letModemAnswer() {
  comeToRest();
  followLoading();
  if (model_.entries().empty()) needCalls();  // or the ring itself would begin a download
  openAudio(kAnswer);
  compareAutoAnswer(0);
  if (perhaps(3)) switchAutoAnswer("");
  if (perhaps(3)) switchAutoAnswer("9");
  const int rings = 1 + static_cast<int>(below(8));
  switchAutoAnswer(std::to_string(rings));
  const auto isCall = [this](const char* state) {
    return tell("state").find(std::string("calls: 1 ") + state) != std::string::npos;
  };
  if (tell("ring " + someCaller()).empty()) {
    run(5 * (rings - 1) + 0.5);
    EXPECT_TRUE(isCall("incoming")) << rings << " rings";
    run(1);
    EXPECT_TRUE(isCall("active")) << rings << " rings";
    run(3 + static_cast<double>(below(10)));
    tell(perhaps(2) ? "hangup" : "hangup silent");
    run(10);
    comeToRest();
    followLoading();
  }
  openAudio(kAnswer);
  compareAutoAnswer(rings);
  switchAutoAnswer("");
}

// Half of a tenth goes to the even one. The modem takes three digits of tenths.
void SimulatedWeek::setToneLength() {
  static const std::vector<std::string> lengths = {"300",  "1500", "49",    "250",  "350",
                                                   "1200", "9949", "25500", "32700"};
  comeToRest();
  openAudio(kAnswer);
  compareAutoAnswer(0);
  const std::string length = oneOf(lengths);
  type(audio().Text1, length + " ms");
  EXPECT_EQ(audio().Text1.Text.peek(), length) << "nothing but digits";
  press(audio().Command6);
  const int tenths = static_cast<int>(std::nearbyint(std::stod(length) / 100));
  const bool isTaken = tenths <= 255;
  if (isTaken) sound_.toneLength = tenths;
  EXPECT_EQ(audio().Label7.Caption.peek(),
            isTaken ? "Changes SuccessFul-TONE LENGTH" : "Changes Unsuccessful,CHECK TONE LENGTH");
  EXPECT_EQ(audio().Label7.ForeColor.peek(), isTaken ? 0x400000 : 192);
}

}  // namespace gsm
