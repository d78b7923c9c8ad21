#include "controls/tab_strip.h"

#include "platform/runtime_failure.h"

namespace gsm {

TabStrip::TabStrip(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, design.In, design.Visible, design.Enabled),
      Value(*this, PropertyId::Value, 1,
            [](PropertyOwner& owner, int tab) {
              auto& strip = static_cast<TabStrip&>(owner);
              if (!strip.holds(tab)) throw failure::invalidPropertyValue();
              strip.Value.store(tab);
            }),
      tabs_(std::move(design.Tabs)) {}

bool TabStrip::userTab(int tab) {
  if (!isReachable() || !holds(tab)) return false;
  Value.store(tab);
  Click.raise();
  return true;
}

}  // namespace gsm
