#pragma once

#include <span>
#include <string>

#include "controls/data_control.h"
#include "controls/list_controls.h"
#include "controls/option_button.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "panel/feature_window.h"

namespace gsm {

/// Short messages: writing, reading, reports.
class Form8 : public FeatureWindow {
 public:
  explicit Form8(Panel& panel);

  /// The characters of one message, header and text together.
  static constexpr int kMessageLength = 160;

  Frame Frame1{*this, "Frame1"};

  Frame Frame2{*this, "Frame2", {.Caption = "Write Message", .In = &Frame1}};
  Label Label1{*this, "Label1", {.Caption = "Number", .In = &Frame2}};
  TextBox Text1{*this, "Text1", {.In = &Frame2}};
  Label Label5{*this, "Label5", {.Caption = "Msg Header (Max 20)", .In = &Frame2}};
  TextBox Text5{*this, "Text5", {.In = &Frame2, .MaxLength = 20}};
  Label Label2{*this, "Label2", {.Caption = "Message", .In = &Frame2}};
  TextBox Text2{*this, "Text2", {.In = &Frame2, .MaxLength = kMessageLength, .MultiLine = true}};
  CommandButton Command1{*this, "Command1", {.Caption = "Send", .In = &Frame2}};
  CommandButton Command2{*this, "Command2", {.Caption = "Save", .In = &Frame2}};
  CommandButton Command7{*this, "Command7", {.Caption = "Clear", .In = &Frame2}};
  CommandButton Command5{*this, "Command5", {.Caption = "Select Outbox Msg", .In = &Frame2}};
  ComboBox Combo2{*this, "Combo2", {.In = &Frame2, .Visible = false}};

  Frame Frame3{*this, "Frame3", {.Caption = "Read Message", .In = &Frame1}};
  ComboBox Combo1{*this, "Combo1", {.In = &Frame3, .Style = ComboStyle::dropDownList}};
  CommandButton Command3{*this, "Command3", {.Caption = "Read", .In = &Frame3}};
  CommandButton Command4{*this, "Command4", {.Caption = "Delete", .In = &Frame3}};
  TextBox Text3{*this, "Text3", {.In = &Frame3, .MultiLine = true}};

  Frame Frame4{*this, "Frame4", {.Caption = "Cell BroadCast", .In = &Frame1}};
  OptionButton Option1{*this, "Option1", {.Caption = "Enable", .In = &Frame4}};
  OptionButton Option2{*this, "Option2", {.Caption = "Disable", .In = &Frame4}};
  CommandButton Command8{*this, "Command8", {.Caption = "OK", .In = &Frame4}};

  Frame Frame5{*this, "Frame5", {.Caption = "Status Report", .In = &Frame1}};
  OptionButton Option3{*this, "Option3", {.Caption = "Enable", .In = &Frame5}};
  OptionButton Option4{*this, "Option4", {.Caption = "Disable", .In = &Frame5}};
  CommandButton Command9{*this, "Command9", {.Caption = "OK", .In = &Frame5}};
  Label Label6{*this, "Label6", {.In = &Frame5}};  // whether reports are on

  CommandButton Command6{*this, "Command6", {.Caption = "PhoneBook", .In = &Frame1}};
  ListBox List1{*this, "List1", {.In = &Frame1}};
  Label Label3{
      *this, "Label3", {.Caption = "Service Center Address", .In = &Frame1, .Visible = false}};
  TextBox Text4{*this, "Text4", {.In = &Frame1, .Visible = false}};  // the service centre
  Label Label4{*this, "Label4", {.In = &Frame1}};                    // the status label
  Label Label7{*this, "Label7", {.Caption = "<<Signal>>", .In = &Frame1}};

  DataControl Data1{*this, "Data1", {.DatabaseName = "PhoneBook.mdb", .RecordSource = "DATA"}};

 protected:
  void Form_Load() override;

 private:
  struct Delivery;
  struct Switch;
  enum class Shown { text, senderAndText };

  // Writing.
  void clearMessage();
  void sendMessage();
  void saveMessage();
  bool refuseWithoutNumber();
  bool deliver(const Delivery& delivery);
  void listNames();
  void pickName();

  // The store.
  void readEntry();
  void loadEntry();
  void ReadMessageEntry(const ComboBox& index, TextBox& target, Shown shown);
  void deleteEntry();

  // What the network sends by itself.
  void switchBroadcast();
  void switchReports();
  void apply(std::span<const Switch> switches, Label* state);
};

}  // namespace gsm
