#pragma once

#include "platform/controls.h"
#include "platform/window.h"

namespace gsm {

class Panel;

/// The audio window: gains, echo cancellation, side tone, auto-answer.
class Form6 : public Window {
 public:
  explicit Form6(Panel& panel);

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
  Slider Slider10{*this, "Slider10", {.In = &Frame8, .Max = 3, .LargeChange = 1}};
};

}  // namespace gsm
