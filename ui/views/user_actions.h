#pragma once

#include <functional>
#include <utility>

#include "platform/event_loop.h"
#include "ui/views/going_on.h"

namespace gsm {

/// Queues what the user does on a window. Handlers never run from inside a widget's own event: they
/// may wait, and the widget would wait with them.
class UserActions {
 public:
  /// `showAgain` makes all views of the window show their state anew. `loop` and `pointer` must
  /// outlive this.
  UserActions(EventLoop& loop, BusyPointer& pointer, std::function<void()> showAgain)
      : loop_(loop), pointer_(pointer), showAgain_(std::move(showAgain)) {}

  /// Queues `action`, which says whether the panel let it happen. A widget shows what its user did
  /// at once; when the panel doesn't let it happen (the control went out of reach meanwhile), the
  /// window shows once more how things really are.
  void post(std::function<bool()> action) const {
    loop_.post([this, action = std::move(action)] {
      if (!action()) showAgain_();
    });
  }

  /// Likewise for what the user did on `widget`, which shows that something is going on meanwhile.
  void post(QWidget& widget, std::function<bool()> action) const {
    post([this, &widget, action = std::move(action)] {
      const GoingOn goingOn(pointer_, widget);
      return action();
    });
  }

 private:
  EventLoop& loop_;
  BusyPointer& pointer_;
  const std::function<void()> showAgain_;
};

}  // namespace gsm
