#pragma once

#include "platform/controls.h"
#include "platform/window.h"

namespace gsm {

class Panel;

/// The prompt that comes up when somebody calls.
class Form5 : public Window {
 public:
  explicit Form5(Panel& panel);

  Frame Frame1{*this, "Frame1"};
  Label Label2{*this, "Label2", {.In = &Frame1}};  // whether the modem answers by itself
  CommandButton Command1{*this, "Command1", {.Caption = "&Answer", .In = &Frame1}};
};

}  // namespace gsm
