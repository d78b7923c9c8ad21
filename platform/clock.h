#pragma once

#include <chrono>
#include <string>

namespace gsm {

using Duration = std::chrono::nanoseconds;

/// A point on the program's own time line, counted from the program's start. It never goes back.
using Instant = std::chrono::nanoseconds;

/// `seconds`, as near as the time line's nanoseconds allow.
constexpr Duration fromSeconds(double seconds) {
  return std::chrono::round<Duration>(std::chrono::duration<double>(seconds));
}

/// `duration` in seconds.
constexpr double toSeconds(Duration duration) {
  return std::chrono::duration<double>(duration).count();
}

/// A date and time of day as a wall clock shows it, 24-hour.
struct LocalTime {
  int year;
  int month;  // 1 to 12
  int day;    // 1 to 31
  int hour;
  int minute;
  int second;

  std::string date() const;       // "dd/mm/yyyy"
  std::string timeOfDay() const;  // "hh:mm:ss"
};

/// Tells the time. The wall clock may be set by its owner at any moment, so waits look at
/// `secondsSinceMidnight`, and only the time line orders events.
class Clock {
 public:
  virtual ~Clock() = default;

  virtual Instant now() const = 0;
  virtual LocalTime localTime() const = 0;

  /// Seconds of local time since midnight, in the single precision in which waits are measured.
  virtual float secondsSinceMidnight() const = 0;
};

}  // namespace gsm
