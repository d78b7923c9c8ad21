#include "controls/slider.h"

#include "platform/runtime_failure.h"

namespace gsm {

Slider::Slider(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, design.In, design.Visible, design.Enabled),
      Min(*this, PropertyId::Min, design.Min),
      Max(*this, PropertyId::Max, design.Max),
      Value(*this, PropertyId::Value, design.Value,
            [](PropertyOwner& owner, int value) {
              auto& slider = static_cast<Slider&>(owner);
              if (!slider.holds(value)) throw failure::invalidPropertyValue();
              slider.Value.store(value);
            }),
      smallChange_(design.SmallChange),
      largeChange_(design.LargeChange) {}

bool Slider::userMove(int value) {
  if (!isReachable() || !holds(value)) return false;
  Value.store(value);
  Scroll.raise();
  return true;
}

}  // namespace gsm
