#include "app/panel.h"

namespace gsm {

void Panel::start() {
  platform.loop.post([this] {
    form1.reference();  // which loads it
    // Start-up shows it as soon as it can, and other windows over it: don't lift it once more.
    if (!form1.Visible) form1.Show();
  });
}

std::vector<Window*> Panel::windows() {
  return {&form1,  &form2,  &form3,  &form4,  &form5,  &form6,  &form7,  &form8,   &form9,
          &form10, &form11, &form12, &form14, &form15, &form16, &form20, &settings};
}

Window* Panel::window(std::string_view name) {
  for (Window* window : windows()) {
    if (window->name() == name) return window;
  }
  return nullptr;
}

}  // namespace gsm
