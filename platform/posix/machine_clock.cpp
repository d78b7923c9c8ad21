#include "platform/posix/machine_clock.h"

#include <ctime>

namespace gsm {
namespace {

// The machine's time zone may change while the program runs: its owner travels.
std::tm localFields(std::chrono::sys_seconds time) {
  ::tzset();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
  std::tm fields{};
  ::localtime_r(&seconds, &fields);
  return fields;
}

}  // namespace

MachineClock::MachineClock(double speed) : speed_(speed) {}

Instant MachineClock::now() const {
  const Duration elapsed = std::chrono::steady_clock::now() - start_;
  // In real time every nanosecond counts as it is, without a detour over floating point.
  return speed_ == 1 ? elapsed : fromSeconds(toSeconds(elapsed) * speed_);
}

Duration MachineClock::realTime(Duration duration) const {
  return speed_ == 1 ? duration : fromSeconds(toSeconds(duration) / speed_);
}

// The machine's wall clock, which its owner may set, plus what the fast clock is ahead of it.
MachineClock::SystemTime MachineClock::wallTime() const {
  const Instant time = now();
  return std::chrono::system_clock::now() + (time - realTime(time));
}

LocalTime MachineClock::localTime() const {
  const std::tm fields = localFields(std::chrono::floor<std::chrono::seconds>(wallTime()));
  return {.year = fields.tm_year + 1900,
          .month = fields.tm_mon + 1,
          .day = fields.tm_mday,
          .hour = fields.tm_hour,
          .minute = fields.tm_min,
          .second = fields.tm_sec};
}

float MachineClock::secondsSinceMidnight() const {
  const SystemTime time = wallTime();
  const auto wholeSecond = std::chrono::floor<std::chrono::seconds>(time);
  const std::tm fields = localFields(wholeSecond);
  const int whole = (fields.tm_hour * 60 + fields.tm_min) * 60 + fields.tm_sec;
  return static_cast<float>(whole + toSeconds(time - wholeSecond));
}

}  // namespace gsm
