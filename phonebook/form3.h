#pragma once

#include <string>

#include "controls/control_array.h"
#include "controls/data_control.h"
#include "controls/list_controls.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "panel/feature_window.h"

namespace gsm {

/// Voice calls: the dial pad, and beside it the SIM's phone book.
class Form3 : public FeatureWindow {
 public:
  explicit Form3(Panel& panel);

  // The pad.
  Frame Frame1{*this, "Frame1", {.Caption = "Dail"}};
  TextBox Text1{*this, "Text1", {.In = &Frame1, .MaxLength = 30, .Enabled = false}};  // dial box
  ControlArray<Picture> Image{*this,
                              "Image",
                              {{.In = &Frame1, .Key = '0'},
                               {.In = &Frame1, .Key = '1'},
                               {.In = &Frame1, .Key = '2'},
                               {.In = &Frame1, .Key = '3'},
                               {.In = &Frame1, .Key = '4'},
                               {.In = &Frame1, .Key = '5'},
                               {.In = &Frame1, .Key = '6'},
                               {.In = &Frame1, .Key = '7'},
                               {.In = &Frame1, .Key = '8'},
                               {.In = &Frame1, .Key = '9'}}};
  Picture Image1{*this, "Image1", {.In = &Frame1}};  // the grounds of the two keys below
  Picture Image2{*this, "Image2", {.In = &Frame1}};
  Label Label4{*this, "Label4", {.Caption = "X", .In = &Frame1, .Key = '*'}};
  Label Label2{*this, "Label2", {.Caption = "#", .In = &Frame1, .Key = '#'}};
  CommandButton Command1{*this, "Command1", {.In = &Frame1}};  // dial
  CommandButton Command4{*this, "Command4", {.In = &Frame1}};  // hang up
  CommandButton Command8{*this, "Command8", {.Caption = "Redial", .In = &Frame1}};
  CommandButton Command6{
      *this, "Command6", {.Caption = "<=", .In = &Frame1, .Key = Control::kBackspaceKey}};
  CommandButton Command7{*this, "Command7", {.Caption = "Clear", .In = &Frame1}};
  Label Label1{*this, "Label1", {.Caption = "<<Signal>>"}};
  Frame Frame3{*this, "Frame3"};
  Label Label3{*this, "Label3", {.In = &Frame3}};  // the call status line

  // The book.
  Frame Frame2{*this, "Frame2"};
  ListBox List1{*this, "List1", {.In = &Frame2}};
  TextBox Text2{*this, "Text2", {.In = &Frame2}};  // used count
  TextBox Text4{*this, "Text4", {.In = &Frame2}};  // total count
  CommandButton Command2{*this, "Command2", {.Caption = "Add", .In = &Frame2}};
  CommandButton Command3{*this, "Command3", {.Caption = "Delete", .In = &Frame2}};
  CommandButton Command5{*this, "Command5", {.Caption = "Reload PhoneBook", .In = &Frame2}};

  DataControl Data1{*this, "Data1", {.DatabaseName = "PhoneBook.mdb", .RecordSource = "DATA"}};
  DataControl Data2{*this, "Data2", {.DatabaseName = "PhoneBook.mdb", .RecordSource = "Details"}};

  /// Adds the row of an entry to the list: index, two blanks, the number padded to 20, the name.
  /// `invalidArgument` when the number is longer.
  void addRow(const std::string& index, const std::string& number, const std::string& name);
  /// Adds an entry to the mirror.
  void storeEntry(const std::string& index, const std::string& number, const std::string& name);
  /// Sets the first stored counts that meet `criterion` to those on view, if any do.
  void storeCounts(const std::string& criterion);

 protected:
  void Form_Load() override;

 private:
  enum class OnError { ignored, shown };

  void pressKey(const std::string& key);
  void dial();
  void redial();
  void hangUp();
  void watchCall(OnError onError);
  void backspace();
  void pickEntry();
  void openAdd();
  void deleteEntry();
  void reload();
  std::string selectedRow() const;
};

}  // namespace gsm
