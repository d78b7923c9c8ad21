#pragma once

#include "controls/control.h"

namespace gsm {

struct OptionButtonDesign {
  std::string Caption;  // "&" marks the mnemonic
  Control* In = nullptr;
  bool Value = false;
  bool Visible = true;
  bool Enabled = true;
};

/// One choice of several: within a frame (or directly on the window) at most one option is set.
class OptionButton : public Control {
 public:
  using Design = OptionButtonDesign;
  OptionButton(Window& window, std::string name, Design design = {}, int index = kNoIndex);

  Property<std::string> Caption;

  /// Setting it, by code or by the user, clears the others of the group and runs `Click`.
  Property<bool> Value;
  Event Click{*this};

  /// The user chooses this option. False when it is out of reach.
  bool userClick();

 private:
  void choose();
};

}  // namespace gsm
