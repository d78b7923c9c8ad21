#include <vector>

#include "audio/form6.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

// Takes the field up to the next comma off `rest`.
std::string takeField(std::string& rest) {
  std::string field = before(",", rest);
  rest = behind(",", rest);
  return field;
}

}  // namespace

void Form1::ShowEchoValues(const std::string& key) try {
  const auto place = static_cast<Position>(wholeCount(key));
  if (place == 0) return;
  const std::string values = Text1.slice(place + 6, 20);
  std::string rest = values;
  const std::string mode = takeField(rest);
  if (mode.empty()) return;
  const std::string algorithm = takeField(rest);
  const double kind = number(algorithm);

  Form6& window = panel_.form6;
  std::vector<Slider*> sliders;
  if (kind == 1) {
    sliders = {&window.Slider3, &window.Slider4, &window.Slider5, &window.Slider6};
  } else if (kind == 3) {
    sliders = {&window.Slider7, &window.Slider8, &window.Slider9};
  } else {
    return;
  }
  std::vector<std::string> fields;
  while (fields.size() + 1 < sliders.size()) fields.push_back(takeField(rest));
  fields.push_back(before("\r", rest));

  window.Label7.Caption = "Echo Current Values--" + values;
  window.Combo1.Text = mode;
  window.Combo2.Text = algorithm;
  for (std::size_t i = 0; i < sliders.size(); ++i) sliders[i]->Value = wholeNumber(fields[i]);
  window.Frame6.Visible = kind == 1;
  window.Frame7.Visible = kind == 3;
  Text1.clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
