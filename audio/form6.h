#pragma once

#include "controls/list_controls.h"
#include "controls/option_button.h"
#include "controls/simple_controls.h"
#include "controls/slider.h"
#include "link/text.h"
#include "panel/feature_window.h"

namespace gsm {

/// The audio window: gains, echo cancellation, side tone, auto-answer.
class Form6 : public FeatureWindow {
 public:
  explicit Form6(Panel& panel);

  /// The readers of the modem's replies about the gains and the side tone; `key` is where the word
  /// of the reply stands in the transcript.
  void showSpeakerGain(Position key);
  void showMicrophoneGain(Position key);
  void showSideTone(Position key);

  Label Label7{*this, "Label7"};  // the status line

  // Page "Volume Control".
  Frame Frame1{*this, "Frame1"};
  Frame Frame3{*this, "Frame3", {.Caption = "Tune For Speaker", .In = &Frame1}};
  Slider Slider1{*this, "Slider1", {.In = &Frame3, .Max = 255, .LargeChange = 15}};
  Frame Frame4{*this, "Frame4", {.Caption = "Tune For Microphone", .In = &Frame1}};
  Slider Slider2{*this, "Slider2", {.In = &Frame4, .Max = 255, .LargeChange = 15}};
  Label Label5{*this, "Label5", {.In = &Frame1}};  // the speaker gain to send
  Label Label6{*this, "Label6", {.In = &Frame1}};  // the microphone gain to send

  // Page "Tone/Echo Control".
  Frame Frame2{*this, "Frame2"};
  Frame Frame8{*this, "Frame8", {.Caption = "Side Tone", .In = &Frame2}};
  Frame Frame9{*this, "Frame9", {.In = &Frame8}};
  OptionButton Option1{*this, "Option1", {.Caption = "SideTone Disabled", .In = &Frame9}};
  OptionButton Option2{*this, "Option2", {.Caption = "SideTone Enabled", .In = &Frame9}};
  Frame Frame5{*this, "Frame5", {.Caption = "Configure Echo Cancellation", .In = &Frame2}};
  ComboBox Combo1{*this, "Combo1", {.In = &Frame5}};  // mode
  ComboBox Combo2{*this, "Combo2", {.In = &Frame5}};  // algorithm
  Frame Frame6{*this, "Frame6", {.Caption = "Echo Cancellation 1", .In = &Frame5}};
  Slider Slider3{*this, "Slider3", {.In = &Frame6, .Max = 15, .LargeChange = 1}};
  Slider Slider4{*this, "Slider4", {.In = &Frame6, .Max = 3, .LargeChange = 1}};
  Slider Slider5{*this, "Slider5", {.In = &Frame6, .Max = 31, .LargeChange = 2}};
  Slider Slider6{*this, "Slider6", {.In = &Frame6, .Max = 31, .LargeChange = 2}};
  Frame Frame7{*this, "Frame7", {.Caption = "Echo Cancellation3", .In = &Frame5}};
  Slider Slider7{*this, "Slider7", {.In = &Frame7, .Max = 63, .LargeChange = 1}};
  Slider Slider8{*this, "Slider8", {.In = &Frame7, .Max = 32767, .LargeChange = 1000}};
  Slider Slider9{
      *this,
      "Slider9",
      {.In = &Frame7, .Min = 64, .Max = 256, .Value = 64, .SmallChange = 0, .LargeChange = 0}};
  Slider Slider10{*this, "Slider10", {.In = &Frame8, .Max = 3, .LargeChange = 1}};
};

}  // namespace gsm
