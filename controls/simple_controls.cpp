#include "controls/simple_controls.h"

namespace gsm {

Label::Label(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, design.In, design.Visible, design.Enabled),
      Caption(*this, PropertyId::Caption, std::move(design.Caption)),
      ForeColor(*this, PropertyId::ForeColor, design.ForeColor) {
  setKey(design.Key);
}

bool Label::userClick() { return raiseIfReachable(Click); }

CommandButton::CommandButton(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, design.In, design.Visible, design.Enabled),
      Caption(*this, PropertyId::Caption, std::move(design.Caption)),
      BackColor(*this, PropertyId::BackColor, design.BackColor),
      default_(design.Default),
      cancel_(design.Cancel) {
  setKey(design.Key);
}

bool CommandButton::userClick() { return raiseIfReachable(Click); }

Picture::Picture(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, design.In, design.Visible, design.Enabled) {
  setKey(design.Key);
}

bool Picture::userClick() { return raiseIfReachable(Click); }

Shape::Shape(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, design.In, design.Visible, design.Enabled) {}

Frame::Frame(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, design.In, design.Visible, design.Enabled),
      Caption(*this, PropertyId::Caption, std::move(design.Caption)) {}

}  // namespace gsm
