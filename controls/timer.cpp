#include "controls/timer.h"

#include "controls/window.h"
#include "platform/platform.h"
#include "platform/scoped_value.h"

namespace gsm {

Timer::Timer(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, nullptr, /*visible=*/true, design.Enabled),
      Interval(*this, PropertyId::Interval, design.Interval) {
  setUnseen(true);
}

void Timer::stored(PropertyId property) {
  Control::stored(property);
  const bool matters = property == PropertyId::Enabled || property == PropertyId::Interval;
  if (matters && window().isLoaded()) restart();
}

void Timer::restart() {
  ticking_.reset();
  if (!Enabled.peek() || Interval.peek() <= 0) return;
  ticking_ =
      platform().loop.every(std::chrono::milliseconds(Interval.peek()), [this] { comeDue(); });
}

void Timer::comeDue() {
  if (handlerRuns_) return;
  const ScopedValue guard(handlerRuns_, true);
  Tick.raise();
}

}  // namespace gsm
