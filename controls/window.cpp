#include "controls/window.h"

#include "platform/handler_stack.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"

#include <algorithm>

namespace gsm {

Window::Window(Platform& platform, std::string name, WindowDesign design)
    : PropertyOwner(std::move(name)),
      Caption(*this, PropertyId::Caption, design.Caption),
      Visible(*this, PropertyId::Visible, false),
      WindowState(*this, PropertyId::WindowState, gsm::WindowState::normal),
      MousePointer(*this, PropertyId::MousePointer, gsm::MousePointer::arrow),
      TopMost(*this, PropertyId::TopMost, false),
      Centred(*this, PropertyId::Centred, false),
      platform_(platform),
      design_(std::move(design)) {
  platform.windows.push_back(this);
}

Window::~Window() { std::erase(platform_.windows, this); }

void Window::Show() {
  reference();
  if (Visible.peek()) {
    PropertyOwner::stored(PropertyId::Visible);  // comes to the front once more
  } else {
    Visible.store(true);
  }
}

void Window::Hide() { Visible = false; }

void Window::Unload() {
  if (!loaded_) return;
  const int load = loads_;
  platform_.handlers.run([this] { Form_Unload(); });
  // While Form_Unload waited, the window may have been closed once more. If it has come up anew
  // since, it stays.
  const bool cameUpAnew = loads_ != load && Visible.peek();
  if (!loaded_ || cameUpAnew) return;
  for (Control* control : controls_) control->unloaded();
  Visible.store(false);
  loaded_ = false;
}

void Window::reference() const {
  // Loading is what a reference does to a window, whether or not the caller may change it. A window
  // that is closed while its Form_Load waits is loaded once more: nobody may go on with one that
  // isn't.
  while (!loaded_) const_cast<Window*>(this)->load();
}

void Window::load() {
  restoreDesign();
  for (Control* control : controls_) control->restoreDesign();
  ++loads_;
  loaded_ = true;  // before Form_Load, so that what it refers to doesn't load the window again
  for (Control* control : controls_) control->loaded();
  platform_.handlers.run([this] {
    // A window's first load belongs to whoever happens to refer to it first, so its failure stays
    // its own.
    try {
      Form_Load();
    } catch (const RuntimeFailure&) {}
  });
}

bool Window::isReachable() const {
  // A key held down clicks on and on, each time on top of the handlers that wait.
  constexpr int kDeepestForUser = 2 * HandlerStack::kDeepest;
  return loaded_ && Visible.peek() && !platform_.boxes.isUp() &&
         platform_.handlers.depth() < kDeepestForUser;
}

bool Window::userClose() {
  if (!isReachable()) return false;
  Unload();
  return true;
}

bool Window::userState(int state) {
  if (!isReachable()) return false;
  WindowState = state;
  return true;
}

Control* Window::control(std::string_view name, int index) const {
  for (Control* control : controls_) {
    if (control->name() == name && control->index() == index) return control;
  }
  return nullptr;
}

Window* windowNamed(const Platform& platform, std::string_view name) {
  const auto found = std::find_if(platform.windows.begin(), platform.windows.end(),
                                  [name](const Window* each) { return each->name() == name; });
  return found == platform.windows.end() ? nullptr : *found;
}

void Window::stored(PropertyId property) {
  PropertyOwner::stored(property);
  if (property == PropertyId::WindowState && loaded_) {
    platform_.handlers.run([this] { Form_Resize(); });
  }
}

}  // namespace gsm
