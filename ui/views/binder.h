#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "platform/event_loop.h"
#include "ui/views/window_view.h"

namespace gsm {

/// Brings windows to the screen, each on its form. No window has a view of its own making: widgets
/// are found by the names of the controls.
class Binder {
 public:
  /// `loop` must outlive the binder.
  explicit Binder(EventLoop& loop) : loop_(loop) {}

  /// Binds `window` to the form of its name, or to an empty one when there is none. `window` must
  /// outlive the binder, and the queue of `loop` may not run on after it.
  /// Forms are made when their windows first come up.
  void bind(Window& window);

  void bind(const std::vector<Window*>& windows);

  /// Binds `window` to `form` instead.
  void bind(Window& window, std::unique_ptr<QWidget> form);

  /// The widget on which `window` is shown, made now if need be; null for a window that isn't
  /// bound.
  QWidget* widget(const Window& window) const;

  /// The widget on which `control` is shown, or null for one that works unseen.
  QWidget* widget(const Control& control) const;

 private:
  struct Bound {
    const Window* window;
    std::unique_ptr<WindowView> view;
  };

  void bind(Window& window, WindowView::MakeForm makeForm);

  EventLoop& loop_;
  FormOrder order_;
  BusyPointer pointer_;
  std::vector<Bound> bound_;
};

}  // namespace gsm
