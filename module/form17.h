#pragma once

#include <string>
#include <string_view>

#include "controls/list_controls.h"
#include "controls/simple_controls.h"
#include "module/module_window.h"

namespace gsm {

struct OutcomeWords;
class Transcript;

/// The maker's own features: indications, voice mail, pins and the switch that turns the module
/// off, a page behind a button each.
class Form17 : public ModuleWindow {
 public:
  explicit Form17(Panel& panel);

  CommandButton Command1{*this, "Command1", {.Caption = "Indications"}};
  CommandButton Command2{*this, "Command2", {.Caption = "CPHS Features"}};
  CommandButton Command3{*this, "Command3", {.Caption = "GPIO Management"}};
  CommandButton Command5{*this, "Command5", {.Caption = "Power Down Mode"}};
  Label Label10{*this, "Label10", {.Caption = "<<Signal>>"}};

  // The cell environment, the indications that come unasked, and the indicators.
  Frame Frame1{*this, "Frame1"};
  Frame Frame2{*this, "Frame2", {.Caption = "CCED", .In = &Frame1}};
  Label Label2{*this, "Label2", {.Caption = "Mode", .In = &Frame2}};
  ComboBox Combo1{*this, "Combo1", {.In = &Frame2, .Style = ComboStyle::dropDownList}};
  Label Label3{*this, "Label3", {.Caption = "Requested Dump", .In = &Frame2}};
  ComboBox Combo2{*this, "Combo2", {.In = &Frame2}};
  CommandButton Command7{*this, "Command7", {.Caption = "OK", .In = &Frame2}};
  Frame Frame3{*this, "Frame3", {.Caption = "WIND", .In = &Frame1}};
  Label Label4{*this, "Label4", {.Caption = "IndLevel", .In = &Frame3}};
  ComboBox Combo3{*this, "Combo3", {.In = &Frame3}};
  Label Label5{*this, "Label5", {.In = &Frame3}};  // what the chosen level means
  CommandButton Command8{*this, "Command8", {.Caption = "OK", .In = &Frame3}};
  Label Label1{*this, "Label1", {.In = &Frame1}};  // the status line of both
  Frame Frame4{*this, "Frame4", {.Caption = "CIND (Indication Control)", .In = &Frame1}};
  CommandButton Command6{*this, "Command6", {.Caption = "Check Current Status", .In = &Frame4}};
  Label Label14{*this, "Label14", {.Caption = "Label14", .In = &Frame4}};

  // The voice mail.
  Frame Frame5{*this, "Frame5", {.Caption = "Voice Mail Indicator", .Visible = false}};
  Label Label7{*this, "Label7", {.Caption = "Mode", .In = &Frame5}};
  ComboBox Combo4{*this, "Combo4", {.In = &Frame5}};
  CommandButton Command9{*this, "Command9", {.Caption = "OK", .In = &Frame5}};
  Label Label6{*this, "Label6", {.In = &Frame5}};  // the page's status line

  // The pins.
  Frame Frame6{*this, "Frame6", {.Caption = "GPIO", .Visible = false}};
  Frame Frame7{*this, "Frame7", {.Caption = "Read I/O Pin", .In = &Frame6}};
  Label Label8{*this, "Label8", {.Caption = "PIN", .In = &Frame7}};
  ComboBox Combo5{*this, "Combo5", {.In = &Frame7}};
  CommandButton Command10{*this, "Command10", {.Caption = "Ok", .In = &Frame7}};
  Label Label9{*this, "Label9", {.In = &Frame7}};  // the page's status line

  // The power.
  Frame Frame9{*this, "Frame9", {.Caption = "Power OFF", .Visible = false}};
  CommandButton Command4{*this, "Command4", {.Caption = "POWER DOWN MODE", .In = &Frame9}};
  Label Label13{*this, "Label13", {.In = &Frame9}};  // the page's status line

 protected:
  void Form_Load() override;

 private:
  void turnTo(Frame& page);
  void change(std::string_view command, Label& status, const OutcomeWords& words);

  void openIndications();
  void changeDump();
  void showLevel();
  void changeLevel();
  void readIndicators();

  void openVoiceMail();
  void changeVoiceMail();

  void openPins();
  void readPin();
  void showPin(std::string_view pin);

  void switchOff();

  // Where a pin's state is looked for. It was meant to be set, and never is.
  const Transcript* pinReply_ = nullptr;
};

}  // namespace gsm
