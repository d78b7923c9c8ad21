#pragma once

#include "controls/simple_controls.h"
#include "panel/feature_window.h"

namespace gsm {

/// The menu of the module's own features.
class Form16 : public FeatureWindow {
 public:
  explicit Form16(Panel& panel);

  CommandButton Command1{*this, "Command1", {.Caption = "WaveCom Features"}};
  CommandButton Command2{*this, "Command2", {.Caption = "SIM Tool Kit"}};
  CommandButton Command3{*this, "Command3", {.Caption = "GPRS Configuration"}};
  Label Label1{*this, "Label1"};  // "Please Wait" while a window loads

 private:
  void open(Window& window, const char* title = nullptr);
};

}  // namespace gsm
