#pragma once

#include "controls/simple_controls.h"
#include "controls/window.h"

namespace gsm {

struct Panel;

/// The prompt that comes up when somebody calls. It has no notion of a call: the dispatcher shows
/// it, and the poll or "NO CARRIER" takes it down.
class Form5 : public Window {
 public:
  explicit Form5(Panel& panel);

  /// Tells who answers: the user, or else the modem by itself.
  void answerByHand(bool byHand);

  Frame Frame1{*this, "Frame1"};
  Label Label1{*this, "Label1", {.In = &Frame1}};  // who calls
  Label Label2{*this, "Label2", {.In = &Frame1}};  // whether the modem answers by itself
  Picture Image1{*this, "Image1", {.In = &Frame1}};
  CommandButton Command1{*this, "Command1", {.Caption = "&Answer", .In = &Frame1}};
  CommandButton Command2{*this, "Command2", {.Caption = "&HangUp", .In = &Frame1}};

 private:
  void answer();
  void hangUp();

  Panel& panel_;
};

}  // namespace gsm
