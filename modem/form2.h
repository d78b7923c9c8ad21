#pragma once

#include "controls/simple_controls.h"
#include "panel/feature_window.h"

namespace gsm {

/// Who the modem is: its IMEI, maker, model and revision.
class Form2 : public FeatureWindow {
 public:
  explicit Form2(Panel& panel);

  Frame Frame1{*this, "Frame1"};
  Frame Frame2{*this, "Frame2", {.Caption = "Modem Information", .In = &Frame1}};
  Label Label2{*this, "Label2", {.In = &Frame2}};  // the word "IMEI: "
  Label Label3{*this, "Label3", {.In = &Frame2}};  // the digits
  Label Label4{*this, "Label4", {.In = &Frame2}};  // the heading of the two below
  Label Label5{*this, "Label5", {.In = &Frame2}};  // maker and model
  Label Label6{*this, "Label6", {.In = &Frame2}};  // revision
  CommandButton Command1{*this, "Command1", {.Caption = "View", .In = &Frame1}};

  static constexpr const char* kModelHeading = "ManuFacturer And Model Details ";
  static constexpr const char* kModelFile = "Model.txt";

 private:
  void readModelFile();
};

}  // namespace gsm
