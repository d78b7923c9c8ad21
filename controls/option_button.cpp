#include "controls/option_button.h"

#include "controls/window.h"

namespace gsm {

OptionButton::OptionButton(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, design.In, design.Visible, design.Enabled),
      Caption(*this, PropertyId::Caption, std::move(design.Caption)),
      Value(*this, PropertyId::Value, design.Value, [](PropertyOwner& owner, bool set) {
        auto& option = static_cast<OptionButton&>(owner);
        if (set) {
          option.choose();
        } else {
          option.Value.store(false);
        }
      }) {}

void OptionButton::choose() {
  for (Control* control : window().controls()) {
    auto* other = dynamic_cast<OptionButton*>(control);
    if (other != nullptr && other != this && other->container() == container()) {
      other->Value.store(false);
    }
  }
  Value.store(true);
  Click.raise();
}

bool OptionButton::userClick() {
  if (!isReachable()) return false;
  choose();
  return true;
}

}  // namespace gsm
