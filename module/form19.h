#pragma once

#include "controls/list_controls.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "module/module_window.h"

namespace gsm {

/// The contexts of the packet data: a grid of the four that the window knows, and what defines one.
class Form19 : public ModuleWindow {
 public:
  explicit Form19(Panel& panel);

  /// Hides the grid with its headings, and empties its boxes.
  void ClearContextGrid();

  Label Label3{*this, "Label3", {.Caption = "PDP Context Identifier"}};
  ComboBox Combo1{*this, "Combo1", {.Style = ComboStyle::dropDownList}};
  Label Label4{*this, "Label4", {.Caption = "PDP Type"}};
  ComboBox Combo2{*this, "Combo2", {.Style = ComboStyle::dropDownList}};
  Label Label5{*this, "Label5", {.Caption = "Access Point Name"}};
  TextBox Text1{*this, "Text1", {.MaxLength = 20}};
  CommandButton Command1{*this, "Command1", {.Caption = "OK"}};
  CommandButton Command2{*this, "Command2", {.Caption = "Refresh"}};
  Label Label1{*this, "Label1"};  // the status line

  // The grid: a row of three boxes for each context.
  Label Label2{*this, "Label2", {.Caption = "CID", .Visible = false}};
  Label Label6{*this, "Label6", {.Caption = "PDP", .Visible = false}};
  Label Label7{*this, "Label7", {.Caption = "APN", .Visible = false}};
  TextBox Text2{*this, "Text2", {.Visible = false, .Enabled = false}};
  TextBox Text3{*this, "Text3", {.Visible = false, .Enabled = false}};
  TextBox Text4{*this, "Text4", {.Visible = false, .Enabled = false}};
  TextBox Text5{*this, "Text5", {.Visible = false, .Enabled = false}};
  TextBox Text6{*this, "Text6", {.Visible = false, .Enabled = false}};
  TextBox Text7{*this, "Text7", {.Visible = false, .Enabled = false}};
  TextBox Text8{*this, "Text8", {.Visible = false, .Enabled = false}};
  TextBox Text9{*this, "Text9", {.Visible = false, .Enabled = false}};
  TextBox Text10{*this, "Text10", {.Visible = false, .Enabled = false}};
  TextBox Text11{*this, "Text11", {.Visible = false, .Enabled = false}};
  TextBox Text12{*this, "Text12", {.Visible = false, .Enabled = false}};
  TextBox Text13{*this, "Text13", {.Visible = false, .Enabled = false}};

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void showHeadings(bool visible);
  void defineContext();
  void refresh();
};

}  // namespace gsm
