#pragma once

#include "controls/list_controls.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "module/module_window.h"

namespace gsm {

/// The mode of the SIM toolkit. A change of it takes effect when the modem is reset, which the
/// window says and doesn't do.
class Form18 : public ModuleWindow {
 public:
  explicit Form18(Panel& panel);

  Frame Frame1{*this, "Frame1"};
  Label Label1{*this, "Label1", {.Caption = "Mode", .In = &Frame1}};
  ComboBox Combo1{*this, "Combo1", {.In = &Frame1}};
  Label Label5{*this, "Label5", {.Caption = "Config", .In = &Frame1, .Visible = false}};
  TextBox Text1{*this, "Text1", {.In = &Frame1, .MaxLength = 20, .Visible = false}};
  CommandButton Command1{*this, "Command1", {.Caption = "OK", .In = &Frame1}};
  CommandButton Command2{*this, "Command2", {.Caption = "Refresh", .In = &Frame1}};
  Label Label2{*this, "Label2", {.In = &Frame1, .Visible = false}};  // the status line
  Label Label3{*this, "Label3", {.In = &Frame1, .Visible = false}};  // the timeout
  Label Label4{*this, "Label4", {.In = &Frame1, .Visible = false}};  // the automatic response
  Label Label6{*this,
               "Label6",
               {.Caption = "RESET MODEM TO ACTIVATE CHANGES", .In = &Frame1, .Visible = false}};

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void showStatus(const std::string& reply);
  void chooseMode();
  void changeMode();
  void refresh();
  void closeConfiguration();
};

}  // namespace gsm
