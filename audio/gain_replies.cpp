#include "audio/form6.h"
#include "link/pair_reply.h"
#include "panel/form1.h"
#include "panel/panel.h"

namespace gsm {
namespace {

// The reply to a gain query: its value is the three characters behind the key and a blank.
void showGain(Form6& window, const std::string& gain, std::string_view words, Label& value,
              Slider& slider) {
  window.Label7.Caption = std::string(words) + gain;
  value.Caption = gain;
  slider.Value = wholeNumber(gain);
}

}  // namespace

void Form1::showSpeakerGain(Position key) {
  Form6& window = panel_.form6;
  showGain(window, Text1.slice(key + 5, 3), "Default Values-Speaker ", window.Label5,
           window.Slider1);
}

void Form1::showMicrophoneGain(Position key) {
  Form6& window = panel_.form6;
  showGain(window, Text1.slice(key + 5, 3), "Default Values-MicroPhone ", window.Label6,
           window.Slider2);
}

void Form1::showSideTone(Position key) {
  const PairReply reply = pairReply(Text1, key + 6);
  const double state = number(reply.first);
  Form6& window = panel_.form6;
  if (state == 0) window.Option1.Value = true;
  if (state == 1) window.Option2.Value = true;
  window.Slider10.Value = wholeNumber(reply.second);
}

}  // namespace gsm
