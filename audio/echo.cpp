#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "audio/form6.h"
#include "link/conversation.h"
#include "panel/form1.h"
#include "panel/pages.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

using SliderOf = Slider Form6::*;
constexpr std::array<SliderOf, 4> kSlidersOf1 = {&Form6::Slider3, &Form6::Slider4, &Form6::Slider5,
                                                 &Form6::Slider6};
constexpr std::array<SliderOf, 3> kSlidersOf3 = {&Form6::Slider7, &Form6::Slider8, &Form6::Slider9};

// What an algorithm is told by, and its values in the order of the reply and of the command.
struct EchoAlgorithm {
  double number;
  Frame Form6::*frame;
  std::span<const SliderOf> sliders;
};
constexpr std::array kAlgorithms = {
    EchoAlgorithm{1, &Form6::Frame6, kSlidersOf1},
    EchoAlgorithm{3, &Form6::Frame7, kSlidersOf3},
};

// Null when there is none of that number. `typeMismatch` when it isn't a number.
const EchoAlgorithm* algorithmOf(const std::string& text) {
  const double told = number(text);
  const auto* const found =
      std::find_if(kAlgorithms.begin(), kAlgorithms.end(),
                   [told](const EchoAlgorithm& each) { return each.number == told; });
  return found == kAlgorithms.end() ? nullptr : found;
}

void showSlidersOf(Form6& window, const EchoAlgorithm& algorithm) {
  showPage({&window.Frame6, &window.Frame7}, window.*algorithm.frame);
}

// Takes the field up to the next comma off `rest`.
std::string takeField(std::string& rest) {
  std::string field = before(",", rest);
  rest = behind(",", rest);
  return field;
}

}  // namespace

// What comes back is the dispatcher's.
void Form6::readEchoAndSideTone() {
  modem().exchange("AT+ECHO?");
  modem().exchangeOnTop("AT+SIDET?");
}

void Form1::ShowEchoValues(const std::string& key) try {
  const auto place = static_cast<Position>(wholeCount(key));
  if (place == 0) return;
  const std::string values = Text1.slice(place + 6, 20);
  std::string rest = values;
  const std::string mode = takeField(rest);
  if (mode.empty()) return;
  const std::string number = takeField(rest);
  const EchoAlgorithm* const algorithm = algorithmOf(number);
  if (algorithm == nullptr) return;
  const auto& sliders = algorithm->sliders;
  std::vector<std::string> fields;
  while (fields.size() + 1 < sliders.size()) fields.push_back(takeField(rest));
  fields.push_back(before("\r", rest));

  Form6& window = panel_.form6;
  window.Label7.Caption = "Echo Current Values--" + values;
  window.Combo1.Text = mode;
  window.Combo2.Text = number;
  for (std::size_t i = 0; i < sliders.size(); ++i) {
    (window.*sliders[i]).Value = wholeNumber(fields[i]);
  }
  showSlidersOf(window, *algorithm);
  Text1.clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// Without a trap. The list holds numbers alone, and typing is no click.
void Form6::showAlgorithm() {
  const EchoAlgorithm* const algorithm = algorithmOf(Combo2.Text);
  if (algorithm != nullptr) showSlidersOf(*this, *algorithm);
}

// One of the two drop-downs is enough to go on, and without an algorithm that fails. The outcome is
// the dispatcher's to tell.
void Form6::changeEcho() try {
  if (Combo1.Text.empty() && Combo2.Text.empty()) return;
  const EchoAlgorithm* const algorithm = algorithmOf(Combo2.Text);
  if (algorithm == nullptr) return;
  std::string command = "AT+ECHO=" + Combo1.Text + "," + Combo2.Text.get();
  for (const SliderOf slider : algorithm->sliders) {
    command.append(",").append(std::to_string((this->*slider).Value));
  }
  modem().exchange(command);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
