#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/clock.h"

namespace gsm {

/// Something that goes on for as long as the object lives.
class Repetition {
 public:
  virtual ~Repetition() = default;
};

/// The one queue of events, and the one place where the program waits.
class EventLoop {
 public:
  using Event = std::function<void()>;

  virtual ~EventLoop() = default;

  /// Queues `event` after all that wait.
  virtual void post(Event event) = 0;

  /// One pass: runs what waits at its beginning, each to its end; when nothing does, sleeps until
  /// something comes or `until` is reached. What comes up meanwhile is left to the next pass, so
  /// a source that never rests can't keep a waiting handler from its turn.
  /// May be called from inside an event: passes nest.
  virtual void pass(std::optional<Instant> until = std::nullopt) = 0;

  /// Runs `event` at each multiple of `interval` (above zero) from now, until the result is
  /// destroyed.
  [[nodiscard]] virtual std::unique_ptr<Repetition> every(Duration interval, Event event) = 0;
};

}  // namespace gsm
