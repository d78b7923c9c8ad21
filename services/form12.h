#pragma once

#include <string>
#include <string_view>

#include "controls/list_controls.h"
#include "controls/option_button.h"
#include "controls/simple_controls.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"
#include "panel/feature_window.h"

namespace gsm {

struct BarringFacility;

/// The network's supplementary services: a page of frames for each tab.
class Form12 : public FeatureWindow {
 public:
  explicit Form12(Panel& panel);

  // -- Call forwarding ---------------------------------------------------------------------------

  /// Reads the reply about a reason (0 to 5) that the transcript holds, if it ends well and has a
  /// state.
  void ReadForwardReply(int reason);
  /// Shows on the reason's label what `reply` reports: state, class and number. `invalidArgument`
  /// when more follows than the shortest reply has, and it isn't a number in quotes.
  void ParseForwardReply(int reason, const std::string& reply);
  /// Puts the reason, the words of the state and of the class before what the reason's label holds;
  /// a digit without words leaves their place empty.
  void ShowForwardStatus(int reason, std::string_view status, std::string_view serviceClass);
  /// Takes back what the user has typed and chosen on the page.
  void ClearForwardPage();

  // -- Call barring ------------------------------------------------------------------------------

  /// Shows a barred facility with the words of the class. Shows nothing when `serviceClass` isn't a
  /// number.
  void ShowBarredStatus(const BarringFacility& facility, const std::string& serviceClass);

  // -- Closed user group -------------------------------------------------------------------------

  /// Shows the fields of a reply, on the status label and in the drop-downs. A value that the
  /// window doesn't know has no words and leaves its drop-down alone.
  void ShowCugStatus(const std::string& mode, const std::string& index, const std::string& info);

  // -- Controls ----------------------------------------------------------------------------------

  TabStrip TabStrip1{
      *this,
      "TabStrip1",
      {.Tabs = {"Call Forward", "Call Baring", "Call Waiting", "Closed User Group"}}};
  CommandButton Command8{*this, "Command8", {.Caption = "<Signal>"}};

  // Forwarding: what to change, and what holds.
  Frame Frame1{*this, "Frame1"};
  Frame Frame2{*this, "Frame2", {.Caption = "Reason", .In = &Frame1}};
  OptionButton Option1{*this, "Option1", {.Caption = "UnConditional", .In = &Frame2}};
  OptionButton Option2{*this, "Option2", {.Caption = "Mobile Busy", .In = &Frame2}};
  OptionButton Option3{*this, "Option3", {.Caption = "No Reply", .In = &Frame2}};
  OptionButton Option4{*this, "Option4", {.Caption = "Not Reachable", .In = &Frame2}};
  OptionButton Option5{*this, "Option5", {.Caption = "All Call Forwarding", .In = &Frame2}};
  OptionButton Option6{
      *this, "Option6", {.Caption = "All Conditional Call Forwarding", .In = &Frame2}};
  Frame Frame3{*this, "Frame3", {.Caption = "Mode", .In = &Frame1}};
  OptionButton Option7{*this, "Option7", {.Caption = "Register", .In = &Frame3}};
  OptionButton Option8{*this, "Option8", {.Caption = "Erase", .In = &Frame3}};
  Frame Frame4{*this, "Frame4", {.Caption = "Class", .In = &Frame1}};
  OptionButton Option12{*this, "Option12", {.Caption = "Voice", .In = &Frame4}};
  OptionButton Option13{*this, "Option13", {.Caption = "Data", .In = &Frame4}};
  OptionButton Option14{*this, "Option14", {.Caption = "Fax", .In = &Frame4}};
  OptionButton Option15{*this, "Option15", {.Caption = "SMS", .In = &Frame4}};
  OptionButton Option16{*this, "Option16", {.Caption = "All Classes", .In = &Frame4}};
  Label Label1{*this, "Label1", {.Caption = "Number", .In = &Frame1}};
  TextBox Text1{*this, "Text1", {.In = &Frame1}};
  CommandButton Command1{*this, "Command1", {.Caption = "OK", .In = &Frame1}};
  CommandButton Command2{*this, "Command2", {.Caption = "Refresh", .In = &Frame1}};
  Label Label2{*this, "Label2", {.In = &Frame1}};  // the page's status line
  Frame Frame13{*this, "Frame13", {.Caption = "Call Forward Current Status:"}};
  Label Label11{*this, "Label11", {.In = &Frame13}};
  Label Label12{*this, "Label12", {.In = &Frame13}};
  Label Label13{*this, "Label13", {.In = &Frame13}};
  Label Label14{*this, "Label14", {.In = &Frame13}};
  Label Label15{*this, "Label15", {.In = &Frame13}};
  Label Label16{*this, "Label16", {.In = &Frame13}};

  // Barring: what holds, and in its place what to change.
  Frame Frame9{*this, "Frame9"};
  Label Label3{*this, "Label3", {.In = &Frame9}};  // the state of the five facilities
  CommandButton Command4{*this, "Command4", {.Caption = "Change Status", .In = &Frame9}};
  Frame Frame5{*this, "Frame5", {.Visible = false}};
  Frame Frame6{*this, "Frame6", {.Caption = "Facility", .In = &Frame5}};
  OptionButton Option17{*this, "Option17", {.Caption = "Barr All Outgoing Calls", .In = &Frame6}};
  OptionButton Option18{
      *this, "Option18", {.Caption = "Barr Outgoing International Calls", .In = &Frame6}};
  OptionButton Option19{
      *this,
      "Option19",
      {.Caption = "Barr Outgoing Internet calls Except Home Country", .In = &Frame6}};
  OptionButton Option20{*this, "Option20", {.Caption = "Barr All Incoming Calls", .In = &Frame6}};
  OptionButton Option21{
      *this,
      "Option21",
      {.Caption = "Barr Incoming When Roaming outside Home Country", .In = &Frame6}};
  Frame Frame7{*this, "Frame7", {.Caption = "Mode", .In = &Frame5}};
  OptionButton Option22{*this, "Option22", {.Caption = "Unlock", .In = &Frame7}};
  OptionButton Option23{*this, "Option23", {.Caption = "Lock", .In = &Frame7}};
  Frame Frame8{*this, "Frame8", {.Caption = "Class", .In = &Frame5}};
  OptionButton Option24{*this, "Option24", {.Caption = "Voice", .In = &Frame8}};
  OptionButton Option25{*this, "Option25", {.Caption = "Data", .In = &Frame8}};
  OptionButton Option26{*this, "Option26", {.Caption = "Fax", .In = &Frame8}};
  OptionButton Option27{*this, "Option27", {.Caption = "Short Message", .In = &Frame8}};
  OptionButton Option28{*this, "Option28", {.Caption = "All Classes", .In = &Frame8}};
  Label Label4{*this, "Label4", {.Caption = "Password", .In = &Frame5}};
  TextBox Text2{*this, "Text2", {.In = &Frame5, .MaxLength = 4, .Masked = true}};
  CommandButton Command3{*this, "Command3", {.Caption = "OK", .In = &Frame5}};
  Label Label5{*this, "Label5", {.In = &Frame5}};  // the page's status line

  // Waiting.
  Frame Frame10{*this, "Frame10"};
  Label Label6{*this, "Label6", {.In = &Frame10}};  // the page's status line
  CommandButton Command5{*this, "Command5", {.Caption = "Change Status", .In = &Frame10}};
  Frame Frame11{*this, "Frame11", {.In = &Frame10}};
  OptionButton Option29{*this, "Option29", {.Caption = "Enable Call Waiting", .In = &Frame11}};
  OptionButton Option30{*this, "Option30", {.Caption = "Disable Call Waiting", .In = &Frame11}};
  CommandButton Command6{*this, "Command6", {.Caption = "OK", .In = &Frame10}};

  // The user group.
  Frame Frame12{*this, "Frame12", {.Caption = "Closed User Group", .Visible = false}};
  Label Label8{*this, "Label8", {.Caption = "Mode", .In = &Frame12}};
  ComboBox Combo1{*this, "Combo1", {.In = &Frame12}};
  Label Label9{*this, "Label9", {.Caption = "CUG Index", .In = &Frame12}};
  ComboBox Combo2{*this, "Combo2", {.In = &Frame12}};
  Label Label10{*this, "Label10", {.Caption = "Info", .In = &Frame12}};
  ComboBox Combo3{*this, "Combo3", {.In = &Frame12}};
  CommandButton Command7{*this, "Command7", {.Caption = "OK", .In = &Frame12}};
  Label Label7{*this, "Label7", {.In = &Frame12}};  // the page's status line

 protected:
  void Form_Load() override;

 private:
  void turnPage();
  void changeForwarding();
  void readBarring();
  void openBarringChange();
  void changeBarring();
  void readWaiting();
  void openWaitingChange();
  void changeWaiting();
  void readUserGroup();
  void changeUserGroup();
};

}  // namespace gsm
