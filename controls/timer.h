#pragma once

#include <memory>

#include "controls/control.h"
#include "platform/event_loop.h"

namespace gsm {

struct TimerDesign {
  int Interval = 0;  // in milliseconds; 0: never
  bool Enabled = true;
};

/// Raises `Tick` at each multiple of its interval while it is enabled and its window is loaded.
///
/// A tick that comes due while the timer's own handler still runs (it may wait, and ticks of the
/// poll last longer than its interval) is dropped: kept ticks would pile up for ever, or starve
/// every handler that waits underneath.
class Timer : public Control {
 public:
  using Design = TimerDesign;
  Timer(Window& window, std::string name, Design design = {}, int index = kNoIndex);

  Property<int> Interval;
  Event Tick{*this};

  void loaded() override { restart(); }
  void unloaded() override { ticking_.reset(); }

 protected:
  void stored(PropertyId property) override;

 private:
  void restart();
  void comeDue();

  std::unique_ptr<Repetition> ticking_;
  bool handlerRuns_ = false;
};

}  // namespace gsm
