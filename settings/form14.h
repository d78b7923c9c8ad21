#pragma once

#include "controls/list_controls.h"
#include "controls/simple_controls.h"
#include "panel/feature_window.h"

namespace gsm {

struct DataChange;

/// Data bearer, compression, error correction and fax: a page for each of three buttons.
class Form14 : public FeatureWindow {
 public:
  explicit Form14(Panel& panel);

  CommandButton Command1{*this, "Command1", {.Caption = "Bearer Type"}};
  CommandButton Command2{*this, "Command2", {.Caption = "Data Compression/Error Correction"}};
  CommandButton Command3{*this, "Command3", {.Caption = "FAX "}};
  Label Label9{*this, "Label9", {.Caption = "<<Signal>>"}};

  // The bearer.
  Frame Frame1{*this, "Frame1", {.Caption = "Bearer Type Selection", .Visible = false}};
  Label Label2{*this, "Label2", {.Caption = "Speed", .In = &Frame1}};
  ComboBox Combo1{*this, "Combo1", {.In = &Frame1, .Style = ComboStyle::dropDownList}};
  Label Label3{*this, "Label3", {.Caption = "Connection Element", .In = &Frame1}};
  ComboBox Combo2{*this, "Combo2", {.In = &Frame1, .Style = ComboStyle::dropDownList}};
  CommandButton Command6{*this, "Command6", {.Caption = "OK", .In = &Frame1}};
  Label Label1{*this, "Label1", {.In = &Frame1}};  // the page's status line

  // Compression and error correction, side by side.
  Frame Frame2{
      *this,
      "Frame2",
      {.Caption = "Data Compression                    Error Correction Mode", .Visible = false}};
  ComboBox Combo3{*this, "Combo3", {.In = &Frame2, .Style = ComboStyle::dropDownList}};
  CommandButton Command7{*this, "Command7", {.Caption = "OK", .In = &Frame2}};
  ComboBox Combo4{*this, "Combo4", {.In = &Frame2, .Style = ComboStyle::dropDownList}};
  CommandButton Command8{*this, "Command8", {.Caption = "OK", .In = &Frame2}};
  Label Label4{*this, "Label4", {.In = &Frame2}};  // the page's status line

  // Fax.
  Frame Frame3{*this, "Frame3", {.Caption = "FAX", .Visible = false}};
  Label Label6{*this, "Label6", {.Caption = "Fax Mode", .In = &Frame3}};
  ComboBox Combo5{*this, "Combo5", {.In = &Frame3, .Style = ComboStyle::dropDownList}};
  CommandButton Command4{*this, "Command4", {.Caption = "Ok", .In = &Frame3}};
  Label Label7{*this, "Label7", {.Caption = "Set Transmit Speed", .In = &Frame3}};
  ComboBox Combo6{*this, "Combo6", {.In = &Frame3}};
  CommandButton Command5{*this, "Command5", {.Caption = "Ok", .In = &Frame3}};
  Label Label8{*this, "Label8", {.Caption = "Set Receive Speed", .In = &Frame3}};
  ComboBox Combo7{*this, "Combo7", {.In = &Frame3}};
  CommandButton Command9{*this, "Command9", {.Caption = "Ok", .In = &Frame3}};
  Label Label5{*this, "Label5", {.In = &Frame3}};  // the page's status line

 protected:
  void Form_Load() override;

 private:
  void readBearer();
  void changeBearer();
  void readCompression();
  void readFax();
  void change(const DataChange& setting);
};

}  // namespace gsm
