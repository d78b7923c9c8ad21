#pragma once

#include "controls/control.h"

namespace gsm {

/// Colours are whole numbers with blue in the high byte and red in the low one.
enum Colour : int { kBlack = 0x000000, kButtonGrey = 0xE0E0E0 };

struct LabelDesign {
  std::string Caption;
  Control* In = nullptr;
  bool Visible = true;
  bool Enabled = true;
  int ForeColor = kBlack;
  char Key = 0;  // clicks it; likewise below
};

/// A text that the user reads, and may click. Always plain text.
class Label : public Control {
 public:
  using Design = LabelDesign;
  Label(Window& window, std::string name, Design design = {}, int index = kNoIndex);

  Property<std::string> Caption;
  Property<int> ForeColor;
  Event Click{*this};

  /// The user clicks. False when the label is out of reach; likewise below.
  bool userClick();
};

struct CommandButtonDesign {
  std::string Caption;  // "&" marks the mnemonic
  Control* In = nullptr;
  bool Visible = true;
  bool Enabled = true;
  int BackColor = kButtonGrey;
  bool Default = false;  // Enter presses it from anywhere in the window
  bool Cancel = false;   // so does Escape
  char Key = 0;
};

class CommandButton : public Control {
 public:
  using Design = CommandButtonDesign;
  CommandButton(Window& window, std::string name, Design design = {}, int index = kNoIndex);

  Property<std::string> Caption;
  Property<int> BackColor;
  Event Click{*this};

  bool userClick();

  bool isDefault() const { return default_; }
  bool isCancel() const { return cancel_; }

 private:
  const bool default_;
  const bool cancel_;
};

struct PictureDesign {
  Control* In = nullptr;
  bool Visible = true;
  bool Enabled = true;
  char Key = 0;
};

/// A picture, which the user may click.
class Picture : public Control {
 public:
  using Design = PictureDesign;
  Picture(Window& window, std::string name, Design design = {}, int index = kNoIndex);

  Event Click{*this};

  bool userClick();
};

struct ShapeDesign {
  Control* In = nullptr;
  bool Visible = true;
  bool Enabled = true;
};

/// A figure that is only there for the eye: it takes no click.
class Shape : public Control {
 public:
  using Design = ShapeDesign;
  Shape(Window& window, std::string name, Design design = {}, int index = kNoIndex);
};

struct FrameDesign {
  std::string Caption;
  Control* In = nullptr;
  bool Visible = true;
  bool Enabled = true;
};

/// A frame groups controls: they show and work only as long as it does, and the option buttons in
/// it exclude one another.
class Frame : public Control {
 public:
  using Design = FrameDesign;
  Frame(Window& window, std::string name, Design design = {}, int index = kNoIndex);

  Property<std::string> Caption;
};

}  // namespace gsm
