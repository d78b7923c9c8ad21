#pragma once

#include <string>

#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "controls/window.h"

namespace gsm {

struct Panel;

/// Asks for a new entry of the SIM's phone book.
class Form4 : public Window {
 public:
  explicit Form4(Panel& panel);

  Label Label4{*this, "Label4", {.Caption = "Country-Code"}};
  TextBox Text1{*this, "Text1", {.MaxLength = 4}};
  Label Label3{*this, "Label3", {.Caption = "Area-Code"}};
  TextBox Text2{*this, "Text2", {.MaxLength = 4}};
  Label Label2{*this, "Label2", {.Caption = "Phone-Number"}};
  TextBox Text3{*this, "Text3", {.MaxLength = 15}};
  Label Label1{*this, "Label1", {.Caption = "Name"}};
  TextBox Text4{*this, "Text4", {.MaxLength = 14}};
  CommandButton Command1{*this, "Command1", {.Caption = "&Ok", .Default = true}};
  CommandButton Command2{*this, "Command2", {.Caption = "&Cancel", .Cancel = true}};

 protected:
  void Form_Load() override;
  void Form_Unload() override { returnToCalls(); }

 private:
  void addEntry();
  void recordEntry(std::int64_t location, const std::string& phone);
  /// Hides this window and not more, so the boxes keep their texts for the next entry.
  void returnToCalls();

  Panel& panel_;
};

}  // namespace gsm
