#pragma once

#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "controls/window.h"

namespace gsm {

struct Panel;

/// Asks for the SIM's code. Which of the four prompts and boxes are on view decides what the button
/// sends: the PIN alone, or the PUK with a new PIN.
class Form10 : public Window {
 public:
  explicit Form10(Panel& panel);

  Frame Frame1{*this, "Frame1", {.Caption = "SIM PIN"}};
  Label Label1{*this, "Label1", {.Caption = "Enter SIM PIN", .In = &Frame1}};
  TextBox Text1{*this, "Text1", {.In = &Frame1, .MaxLength = 4, .Masked = true}};
  Label Label2{*this, "Label2", {.Caption = "Enter PUK ", .In = &Frame1}};
  TextBox Text2{*this, "Text2", {.In = &Frame1, .MaxLength = 8}};
  Label Label3{*this, "Label3", {.In = &Frame1}};
  CommandButton Command1{*this, "Command1", {.Caption = "&Ok", .In = &Frame1, .Default = true}};

  /// Shows the PIN's prompt and box without the PUK's.
  void showPinForm();

 private:
  void sendCode();
  void sendPin();
  void sendPuk();

  Panel& panel_;
};

}  // namespace gsm
