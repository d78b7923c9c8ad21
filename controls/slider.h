#pragma once

#include "controls/control.h"

namespace gsm {

struct SliderDesign {
  Control* In = nullptr;
  int Min = 0;
  int Max = 10;
  int Value = 0;
  int SmallChange = 1;
  int LargeChange = 5;
  bool Visible = true;
  bool Enabled = true;
};

class Slider : public Control {
 public:
  using Design = SliderDesign;
  Slider(Window& window, std::string name, Design design = {}, int index = kNoIndex);

  Property<int> Min;
  Property<int> Max;
  /// A value out of `Min` to `Max` fails with `invalidPropertyValue`.
  Property<int> Value;

  /// The user has moved the slider; an assignment doesn't raise it.
  Event Scroll{*this};

  int smallChange() const { return smallChange_; }
  int largeChange() const { return largeChange_; }

  /// The user moves the slider to `value`. False when the slider or the value is out of reach.
  bool userMove(int value);

 private:
  bool holds(int value) const { return value >= Min.peek() && value <= Max.peek(); }

  const int smallChange_;
  const int largeChange_;
};

}  // namespace gsm
