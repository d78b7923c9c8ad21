#pragma once

#include "controls/simple_controls.h"
#include "controls/window.h"

namespace gsm {

struct Panel;

/// Signal and registration, beside the other windows. It has no code: others write its controls.
class Form7 : public Window {
 public:
  explicit Form7(Panel& panel);

  Frame Frame1{*this, "Frame1"};
  Label Label1{*this, "Label1", {.Caption = "Signal  And Network", .In = &Frame1}};
  Label Label2{*this, "Label2", {.Caption = "L", .In = &Frame1}};
  Label Label3{*this, "Label3", {.Caption = "H", .In = &Frame1}};

  Shape Shape1{*this, "Shape1", {.In = &Frame1}};  // the outline in which the bars lie
  // The bars, from the left.
  Picture Image1{*this, "Image1", {.In = &Frame1, .Visible = false}};
  Picture Image2{*this, "Image2", {.In = &Frame1, .Visible = false}};
  Picture Image3{*this, "Image3", {.In = &Frame1, .Visible = false}};
  Picture Image4{*this, "Image4", {.In = &Frame1, .Visible = false}};
  Picture Image5{*this, "Image5", {.In = &Frame1, .Visible = false}};

  Label Label4{*this, "Label4", {.In = &Frame1}};  // the values
  Label Label5{*this, "Label5", {.In = &Frame1}};  // the registration
};

}  // namespace gsm
