#pragma once

#include <chrono>

#include "platform/clock.h"

namespace gsm {

/// The machine's clock. It may be told to run faster than it does, for demonstrations and tests:
/// then the time line and the time of day both advance `speed` times as fast from the start on.
class MachineClock : public Clock {
 public:
  /// The time line begins now. `speed` must be above zero; 1 is real time.
  explicit MachineClock(double speed = 1);

  Instant now() const override;
  LocalTime localTime() const override;
  float secondsSinceMidnight() const override;

  /// How long `duration` of this clock lasts on the machine.
  Duration realTime(Duration duration) const;

 private:
  using SystemTime = std::chrono::time_point<std::chrono::system_clock, Duration>;

  SystemTime wallTime() const;

  const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  const double speed_;
};

}  // namespace gsm
