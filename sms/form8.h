#pragma once

#include "panel/feature_window.h"

namespace gsm {

/// Short messages: writing, reading, reports.
class Form8 : public FeatureWindow {
 public:
  explicit Form8(Panel& panel);

  Frame Frame1{*this, "Frame1"};
  Label Label4{*this, "Label4", {.In = &Frame1}};                    // the status label
  TextBox Text4{*this, "Text4", {.In = &Frame1, .Visible = false}};  // the service centre

  Frame Frame5{*this, "Frame5", {.Caption = "Status Report", .In = &Frame1}};
  OptionButton Option3{*this, "Option3", {.Caption = "Enable", .In = &Frame5}};
  OptionButton Option4{*this, "Option4", {.Caption = "Disable", .In = &Frame5}};
  Label Label6{*this, "Label6", {.In = &Frame5}};  // whether reports are on
};

}  // namespace gsm
