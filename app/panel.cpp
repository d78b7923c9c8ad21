#include "app/panel.h"

namespace gsm {

void Panel::start() {
  platform.loop.post([this] { form1.Show(); });
}

std::vector<Window*> Panel::windows() { return {&form1, &form2, &form6, &form7, &form20}; }

Window* Panel::window(std::string_view name) {
  for (Window* window : windows()) {
    if (window->name() == name) return window;
  }
  return nullptr;
}

}  // namespace gsm
