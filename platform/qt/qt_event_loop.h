#pragma once

#include <QObject>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "platform/event_loop.h"
#include "platform/posix/machine_clock.h"

namespace gsm {

/// The panel's queue of events on top of Qt's event loop.
///
/// The events wait in a queue of their own, since Qt delivers what is posted during a delivery in
/// that same delivery: a source that never rests would keep a waiting handler from its turn. `pass`
/// takes them from there. Where Qt runs a loop by itself (the program's outermost one, that of a
/// message box, a drag), the queue is looked at each time that loop is about to sleep.
class QtEventLoop : public QObject, public EventLoop {
 public:
  /// Needs Qt's application object. `clock` must outlive the loop.
  explicit QtEventLoop(const MachineClock& clock);

  void post(Event event) override;
  void pass(std::optional<Instant> until = std::nullopt) override;
  [[nodiscard]] std::unique_ptr<Repetition> every(Duration interval, Event event) override;

  /// The display has gone, and Qt may no longer be asked for events. From now on a pass lets the
  /// machine's time be spent in `serve`, which is given how long, in real time.
  void goOnWithoutScreen(std::function<void(Duration)> serve) { serve_ = std::move(serve); }

  bool event(QEvent* event) override;

 private:
  struct Waiting {
    std::uint64_t number;  // counts upward in the order of posting
    Event event;
  };

  void runWaiting();
  void passWithoutScreen(std::optional<Instant> until);
  void sleep(std::optional<Instant> until);

  const MachineClock& clock_;
  std::deque<Waiting> queue_;
  std::uint64_t posted_ = 0;
  std::function<void(Duration)> serve_;  // empty while there is a screen
};

}  // namespace gsm
