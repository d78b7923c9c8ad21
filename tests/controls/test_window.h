#pragma once

#include <functional>
#include <string>
#include <utility>

#include "controls/controls.h"
#include "controls/window.h"

namespace gsm {

/// A window with one control of each kind, whose handlers a test gives.
class TestWindow : public Window {
 public:
  explicit TestWindow(Platform& platform, std::string name = "Window1")
      : Window(platform, std::move(name), {.Caption = "Design"}) {}

  std::function<void()> onLoad;
  std::function<void()> onUnload;
  std::function<void()> onResize;

  Label Label1{*this, "Label1", {.Caption = "Label"}};
  CommandButton Command1{*this, "Command1", {.Caption = "&Go"}};
  Picture Image1{*this, "Image1"};
  TextBox Text1{*this, "Text1", {.Text = "design"}};
  TextBox Text2{*this, "Text2", {.MaxLength = 4}};
  TextBox Text3{*this, "Text3", {.MultiLine = true}};
  ComboBox Combo1{*this, "Combo1"};
  ComboBox Combo2{*this, "Combo2", {.Style = ComboStyle::dropDownList}};
  ListBox List1{*this, "List1"};
  Slider Slider1{*this, "Slider1", {.Min = 1, .Max = 15, .Value = 3}};
  TabStrip TabStrip1{*this, "TabStrip1", {.Tabs = {"One", "Two", "Three"}}};
  Timer Timer1{*this, "Timer1", {.Interval = 1000, .Enabled = false}};

  Frame Frame1{*this, "Frame1", {.Caption = "Outer"}};
  Frame Frame2{*this, "Frame2", {.Caption = "Inner", .In = &Frame1}};
  CommandButton Command2{*this, "Command2", {.In = &Frame2}};

  OptionButton Option1{*this, "Option1", {.Value = true}};
  OptionButton Option2{*this, "Option2"};
  OptionButton Option3{*this, "Option3", {.In = &Frame1}};
  OptionButton Option4{*this, "Option4", {.In = &Frame1, .Value = true}};

  ControlArray<CommandButton> Key{*this, "Key", {{.Caption = "0"}, {.Caption = "1"}}};

 protected:
  void Form_Load() override {
    if (onLoad) onLoad();
  }
  void Form_Unload() override {
    if (onUnload) onUnload();
  }
  void Form_Resize() override {
    if (onResize) onResize();
  }
};

}  // namespace gsm
