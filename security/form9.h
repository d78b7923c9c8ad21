#pragma once

#include "controls/option_button.h"
#include "controls/simple_controls.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"
#include "panel/feature_window.h"

namespace gsm {

struct LockPage;

/// Phone lock, SIM PIN and network lock: a page for each tab, all three of one build.
class Form9 : public FeatureWindow {
 public:
  explicit Form9(Panel& panel);

  Frame Frame1{*this, "Frame1"};
  TabStrip TabStrip1{*this, "TabStrip1", {.Tabs = {"PHONE", "SIM PIN", "NETWORK"}, .In = &Frame1}};
  Label Label1{*this, "Label1", {.In = &Frame1}};  // that the states are being read
  CommandButton Command10{*this, "Command10", {.Caption = "Refresh", .In = &Frame1}};
  CommandButton Command11{*this, "Command11", {.Caption = "<Signal>", .In = &Frame1}};

  // The phone's lock.
  Frame Frame2{*this, "Frame2", {.In = &Frame1}};
  Label Label2{*this, "Label2", {.In = &Frame2}};  // the page's status line
  CommandButton Command2{*this, "Command2", {.Caption = "Change Status", .In = &Frame2}};
  OptionButton Option1{
      *this, "Option1", {.Caption = "LOCK PHONE", .In = &Frame2, .Visible = false}};
  OptionButton Option2{
      *this, "Option2", {.Caption = "UNLOCK PHONE", .In = &Frame2, .Visible = false}};
  Label Label3{*this, "Label3", {.Caption = " Password(8Digit)", .In = &Frame2, .Visible = false}};
  TextBox Text1{*this, "Text1", {.In = &Frame2, .MaxLength = 8, .Masked = true, .Visible = false}};
  CommandButton Command1{*this, "Command1", {.Caption = "OK", .In = &Frame2, .Visible = false}};
  OptionButton Option3{
      *this, "Option3", {.Caption = "Change Password", .In = &Frame2, .Visible = false}};
  Label Label4{*this, "Label4", {.Caption = "Old Password", .In = &Frame2, .Visible = false}};
  TextBox Text2{*this, "Text2", {.In = &Frame2, .MaxLength = 8, .Masked = true, .Visible = false}};
  Label Label5{*this, "Label5", {.Caption = "New Password", .In = &Frame2, .Visible = false}};
  TextBox Text3{*this, "Text3", {.In = &Frame2, .MaxLength = 8, .Masked = true, .Visible = false}};
  CommandButton Command3{*this, "Command3", {.Caption = "OK", .In = &Frame2, .Visible = false}};

  // The SIM's PIN.
  Frame Frame3{*this, "Frame3", {.In = &Frame1, .Visible = false}};
  Label Label6{*this, "Label6", {.In = &Frame3}};  // the page's status line
  CommandButton Command4{*this, "Command4", {.Caption = "Change Status", .In = &Frame3}};
  OptionButton Option4{
      *this, "Option4", {.Caption = "ACTIVATE PIN", .In = &Frame3, .Visible = false}};
  OptionButton Option5{
      *this, "Option5", {.Caption = "DEACTIVATE PIN", .In = &Frame3, .Visible = false}};
  Label Label7{*this, "Label7", {.Caption = "Enter Password", .In = &Frame3, .Visible = false}};
  TextBox Text4{*this, "Text4", {.In = &Frame3, .MaxLength = 8, .Masked = true, .Visible = false}};
  CommandButton Command5{*this, "Command5", {.Caption = "OK", .In = &Frame3, .Visible = false}};
  OptionButton Option6{
      *this, "Option6", {.Caption = "Change Password", .In = &Frame3, .Visible = false}};
  Label Label8{*this, "Label8", {.Caption = "Old Password", .In = &Frame3, .Visible = false}};
  TextBox Text5{*this, "Text5", {.In = &Frame3, .MaxLength = 8, .Masked = true, .Visible = false}};
  Label Label9{*this, "Label9", {.Caption = "New Password", .In = &Frame3, .Visible = false}};
  TextBox Text6{*this, "Text6", {.In = &Frame3, .MaxLength = 8, .Masked = true, .Visible = false}};
  CommandButton Command6{*this, "Command6", {.Caption = "OK", .In = &Frame3, .Visible = false}};

  // The network's lock.
  Frame Frame4{*this, "Frame4", {.In = &Frame1, .Visible = false}};
  Label Label10{*this, "Label10", {.In = &Frame4}};  // the page's status line
  CommandButton Command7{*this, "Command7", {.Caption = "Change Status", .In = &Frame4}};
  OptionButton Option7{
      *this, "Option7", {.Caption = "Network Lock", .In = &Frame4, .Visible = false}};
  OptionButton Option8{
      *this, "Option8", {.Caption = "Network Unlock", .In = &Frame4, .Visible = false}};
  Label Label11{
      *this, "Label11", {.Caption = "Password(8 Digit)", .In = &Frame4, .Visible = false}};
  TextBox Text7{*this, "Text7", {.In = &Frame4, .MaxLength = 8, .Masked = true, .Visible = false}};
  CommandButton Command8{*this, "Command8", {.Caption = "OK", .In = &Frame4, .Visible = false}};
  OptionButton Option9{
      *this, "Option9", {.Caption = "Change Password", .In = &Frame4, .Visible = false}};
  Label Label12{*this, "Label12", {.Caption = "Old Password", .In = &Frame4, .Visible = false}};
  TextBox Text8{*this, "Text8", {.In = &Frame4, .MaxLength = 8, .Masked = true, .Visible = false}};
  Label Label13{*this, "Label13", {.Caption = "New Password", .In = &Frame4, .Visible = false}};
  TextBox Text9{*this, "Text9", {.In = &Frame4, .MaxLength = 8, .Masked = true, .Visible = false}};
  CommandButton Command9{*this, "Command9", {.Caption = "OK", .In = &Frame4, .Visible = false}};

 protected:
  void Form_Load() override;

 private:
  void readStatus();
  void showState(const LockPage& page, const std::string& told);
  void turnPage();
  void prepare(const LockPage& page);
  void openLock(const LockPage& page);
  void openPasswords(const LockPage& page);
  void changeLock(const LockPage& page);
  void changePassword(const LockPage& page);
  /// Shows the outcome with its colour on the page's status line; with both results the error last.
  void report(const LockPage& page, std::string_view success, std::string_view failure);
};

}  // namespace gsm
