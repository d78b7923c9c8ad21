#pragma once

#include <string>

#include "controls/list_controls.h"
#include "controls/option_button.h"
#include "controls/simple_controls.h"
#include "panel/feature_window.h"

namespace gsm {

/// The modem's line settings. The window is preset by who opens it and reads nothing itself; it
/// writes all of them in one pass and lets the port stay as it is.
class Form15 : public FeatureWindow {
 public:
  explicit Form15(Panel& panel);

  /// Tells on the main window the character framing of these codes; one without words leaves its
  /// place empty.
  void ShowFramingChoice(const std::string& framing, const std::string& parity);

  Frame Frame1{*this, "Frame1"};
  Label Label1{*this, "Label1", {.In = &Frame1}};  // the status line
  CommandButton Command1{*this, "Command1", {.Caption = "Save Configurations", .In = &Frame1}};

  Frame Frame2{*this, "Frame2", {.Caption = "Fixed DTE Rate", .In = &Frame1}};
  ComboBox Combo1{*this, "Combo1", {.In = &Frame2}};

  Frame Frame3{*this, "Frame3", {.Caption = "DTE-DCE Character Framing", .In = &Frame1}};
  Frame Frame4{*this, "Frame4", {.Caption = "Format", .In = &Frame3}};
  OptionButton Option1{*this, "Option1", {.Caption = "AutoDetect", .In = &Frame4}};
  OptionButton Option2{*this, "Option2", {.Caption = "8 Data,2 Stop", .In = &Frame4}};
  OptionButton Option3{*this, "Option3", {.Caption = "8 Data,1 Parity,1Stop", .In = &Frame4}};
  OptionButton Option4{*this, "Option4", {.Caption = "8 Data,1 Stop", .In = &Frame4}};
  OptionButton Option5{*this, "Option5", {.Caption = "7 Data,2 Stop", .In = &Frame4}};
  OptionButton Option6{*this, "Option6", {.Caption = "7 Data,1 Parity,1 Stop", .In = &Frame4}};
  OptionButton Option7{*this, "Option7", {.Caption = "7 Data,1 Stop", .In = &Frame4}};
  Frame Frame5{*this, "Frame5", {.Caption = "Parity", .In = &Frame3}};
  OptionButton Option8{*this, "Option8", {.Caption = "Odd", .In = &Frame5}};
  OptionButton Option9{*this, "Option9", {.Caption = "Even", .In = &Frame5}};
  OptionButton Option10{*this, "Option10", {.Caption = "Mark", .In = &Frame5}};
  OptionButton Option11{*this, "Option11", {.Caption = "Space", .In = &Frame5}};
  OptionButton Option12{*this, "Option12", {.Caption = "None", .In = &Frame5}};

  Frame Frame6{*this, "Frame6", {.Caption = "DTE-DCE Local Flow Control", .In = &Frame1}};
  Frame Frame7{*this, "Frame7", {.Caption = "DCE-DTE", .In = &Frame6}};
  OptionButton Option13{*this, "Option13", {.Caption = "None", .In = &Frame7}};
  OptionButton Option14{*this, "Option14", {.Caption = "X on/X Off Local", .In = &Frame7}};
  OptionButton Option15{*this, "Option15", {.Caption = "RTS", .In = &Frame7}};
  OptionButton Option16{*this, "Option16", {.Caption = "X on/X Off Global", .In = &Frame7}};
  Frame Frame8{*this, "Frame8", {.Caption = "DTE-DCE", .In = &Frame6}};
  OptionButton Option17{*this, "Option17", {.Caption = "None", .In = &Frame8}};
  OptionButton Option18{*this, "Option18", {.Caption = "X on/X off", .In = &Frame8}};
  OptionButton Option19{*this, "Option19", {.Caption = "CTS", .In = &Frame8}};

  Frame Frame9{*this, "Frame9", {.Caption = "Set DCD Signal", .In = &Frame1}};
  OptionButton Option22{*this, "Option22", {.Caption = "Always On", .In = &Frame9}};
  OptionButton Option23{*this, "Option23", {.Caption = "Match With Remote Modem", .In = &Frame9}};
  Frame Frame10{*this, "Frame10", {.Caption = "Set DTR signal", .In = &Frame1}};
  OptionButton Option24{*this, "Option24", {.Caption = "Ignore", .In = &Frame10}};
  OptionButton Option25{*this, "Option25", {.Caption = "Switch From On-Off", .In = &Frame10}};
  OptionButton Option26{*this, "Option26", {.Caption = "Call ClearDown", .In = &Frame10}};

  Frame Frame11{*this, "Frame11", {.Caption = "Set DSR Signal", .In = &Frame1}};
  OptionButton Option20{*this, "Option20", {.Caption = "Always On", .In = &Frame11}};
  OptionButton Option21{
      *this, "Option21", {.Caption = "On-Data Mode/Off Command Mode", .In = &Frame11}};
  Frame Frame12{*this, "Frame12", {.Caption = "Echo", .In = &Frame1}};
  OptionButton Option27{*this, "Option27", {.Caption = "Disable", .In = &Frame12}};
  OptionButton Option28{*this, "Option28", {.Caption = "Enable", .In = &Frame12}};

 protected:
  void Form_Load() override;

 private:
  void saveConfigurations();
};

}  // namespace gsm
