#include "controls/control.h"

#include "controls/window.h"
#include "platform/handler_stack.h"
#include "platform/platform.h"

namespace gsm {

Control::Control(Window& window, std::string name, int index, Control* container, bool visible,
                 bool enabled)
    : PropertyOwner(std::move(name)),
      Visible(*this, PropertyId::Visible, visible),
      Enabled(*this, PropertyId::Enabled, enabled),
      window_(window),
      index_(index),
      container_(container) {
  window.controls_.push_back(this);
}

std::string Control::fullName() const {
  return index_ == kNoIndex ? name() : name() + "(" + std::to_string(index_) + ")";
}

void Control::reference() const { window_.reference(); }

bool Control::isReachable() const {
  for (const Control* part = this; part != nullptr; part = part->container_) {
    if (!part->Visible.peek() || !part->Enabled.peek()) return false;
  }
  return window_.isReachable();
}

bool Control::raiseIfReachable(const Event& event) {
  if (!isReachable()) return false;
  event.raise();
  return true;
}

const Platform& Control::platform() const { return window_.platform(); }

void Event::raise() const {
  if (handler_) control_.platform().handlers.run(handler_);
}

}  // namespace gsm
