#pragma once

#include <string>

#include "controls/control_array.h"
#include "controls/list_controls.h"
#include "controls/option_button.h"
#include "controls/serial_control.h"
#include "controls/simple_controls.h"
#include "controls/window.h"

namespace gsm {

struct Panel;

/// The port settings window. It works on any serial control that it is handed and knows nothing of
/// a modem. A statement that fails in it is skipped, and the next one runs.
class frmSettings : public Window {
 public:
  explicit frmSettings(Panel& panel);

  /// Opens the window on `control`, under the caption `title`. A box says when `control` is null
  /// or is no serial control.
  void CommSettings(Object* control, const std::string& title);

  Frame fraPort{*this, "fraPort", {.Caption = "Comm Port"}};
  ComboBox cboPort{*this, "cboPort", {.In = &fraPort, .Style = ComboStyle::dropDownList}};
  Frame fraBaud{*this, "fraBaud", {.Caption = "Baud Rate"}};
  ComboBox cboBaud{*this, "cboBaud", {.In = &fraBaud, .Style = ComboStyle::dropDownList}};
  Frame fraParity{*this, "fraParity", {.Caption = "Parity"}};
  ControlArray<OptionButton> optParity{*this,
                                       "optParity",
                                       {{.Caption = "Even", .In = &fraParity},
                                        {.Caption = "Odd", .In = &fraParity},
                                        {.Caption = "None", .In = &fraParity}}};
  Frame fraDataBits{*this, "fraDataBits", {.Caption = "Data Bits"}};
  ControlArray<OptionButton> optDataBits{
      *this,
      "optDataBits",
      {{.Caption = "7 Bit", .In = &fraDataBits}, {.Caption = "8 Bit", .In = &fraDataBits}}};
  Frame fraStopBits{*this, "fraStopBits", {.Caption = "Stop Bits"}};
  ControlArray<OptionButton> optStopBits{
      *this,
      "optStopBits",
      {{.Caption = "1 Bit", .In = &fraStopBits}, {.Caption = "2  Bit", .In = &fraStopBits}}};
  Frame fraHandshake{*this, "fraHandshake", {.Caption = "Handshaking"}};
  ControlArray<OptionButton> optHandshake{*this,
                                          "optHandshake",
                                          {{.Caption = "None", .In = &fraHandshake},
                                           {.Caption = "Xon", .In = &fraHandshake},
                                           {.Caption = "RTS", .In = &fraHandshake},
                                           {.Caption = "Both", .In = &fraHandshake}}};
  ControlArray<CommandButton> cmdAction{
      *this,
      "cmdAction",
      {{.Caption = "OK", .Default = true}, {.Caption = "Cancel", .Cancel = true}}};

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void listPorts();
  void listPortsAnew();
  void selectPort();
  void selectSettings();
  void optDataBits_Click();
  void optHandshake_Click(int index);
  void cmdAction_Click(int index);
  void takeChoices();
  void closePort();
  void save(const std::string& key, const std::string& value);

  Panel& panel_;

  SerialControl* Control = nullptr;
  int Port = 0;
  std::string Baud;
  std::string Parity;
  std::string DataBits;
  std::string StopBits;
  int Handshake = 0;
  bool PortWasClosed = false;  // at entry, or by the choice of "<none>"
};

}  // namespace gsm
