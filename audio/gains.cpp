#include "audio/form6.h"
#include "link/conversation.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"

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

// The outcome of both is the dispatcher's to tell. A gain that isn't known is left alone.
void Form6::changeGains() try {
  if (!Label5.Caption.empty()) modem().exchange("AT+VGR=" + trim(Label5.Caption.get()));
  if (!Label6.Caption.empty()) modem().exchangeOnTop("AT+VGT=" + trim(Label6.Caption.get()));
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
