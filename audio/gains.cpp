#include "audio/form6.h"
#include "link/conversation.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

// The reply to a gain query: its value is the three characters after the key and a blank.
void showGain(Form6& window, const std::string& gain, std::string_view words, Label& value,
              Slider& slider) {
  window.Label7.Caption = std::string(words) + gain;
  value.Caption = gain;
  slider.Value = wholeNumber(gain);
}

}  // namespace

void Form6::showSpeakerGain(Position key) {
  showGain(*this, modem().slice(key + 5, 3), "Default Values-Speaker ", Label5, Slider1);
}

void Form6::showMicrophoneGain(Position key) {
  showGain(*this, modem().slice(key + 5, 3), "Default Values-MicroPhone ", Label6, Slider2);
}

// The outcome of both is the dispatcher's to tell. A gain that isn't known is left alone.
void Form6::changeGains() try {
  if (!Label5.Caption.empty()) modem().exchange("AT+VGR=" + trim(Label5.Caption.get()));
  if (!Label6.Caption.empty()) modem().exchangeOnTop("AT+VGT=" + trim(Label6.Caption.get()));
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
