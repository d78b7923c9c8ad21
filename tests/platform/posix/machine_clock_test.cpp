#include "platform/posix/machine_clock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>
#include <thread>

namespace gsm {
namespace {

using namespace std::chrono_literals;

float secondsOf(const LocalTime& time) {
  return static_cast<float>((time.hour * 60 + time.minute) * 60 + time.second);
}

TEST(MachineClock, BeginsAtZeroAndGoesForward) {
  const MachineClock clock;
  const Instant first = clock.now();
  EXPECT_GE(first, Duration::zero());
  EXPECT_LT(first, 1s);
  std::this_thread::sleep_for(2ms);
  EXPECT_GE(clock.now(), first + 2ms);
}

TEST(MachineClock, ReportsTheMachinesLocalTime) {
  const MachineClock clock;
  const std::time_t before = std::time(nullptr);
  const LocalTime told = clock.localTime();
  const std::time_t after = std::time(nullptr);
  std::tm fields{};
  ::localtime_r(before == after ? &before : &after, &fields);
  EXPECT_EQ(told.year, fields.tm_year + 1900);
  EXPECT_EQ(told.month, fields.tm_mon + 1);
  EXPECT_EQ(told.hour, fields.tm_hour);
}

// The rule of a time zone, as long as the object lives.
class TimeZone {
 public:
  explicit TimeZone(const std::string& rule) { ::setenv("TZ", rule.c_str(), 1); }
  ~TimeZone() {
    was_ ? ::setenv("TZ", was_->c_str(), 1) : ::unsetenv("TZ");
    ::tzset();
  }
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;

 private:
  const std::optional<std::string> was_ =
      std::getenv("TZ") == nullptr ? std::nullopt : std::optional<std::string>(std::getenv("TZ"));
};

// The hours between what the clock tells under two rules.
int hoursBetween(const MachineClock& clock, const std::string& first, const std::string& second) {
  const TimeZone before(first);
  const float begin = clock.secondsSinceMidnight();
  const TimeZone after(second);
  const float passed = clock.secondsSinceMidnight() - begin;
  return (static_cast<int>(std::lround(passed / 3600)) + 24) % 24;
}

TEST(MachineClock, FollowsAChangeOfTheTimeZone) {
  const MachineClock clock;
  EXPECT_EQ(hoursBetween(clock, "UTC0", "AAA-5"), 5);
  EXPECT_EQ(hoursBetween(clock, "AAA-5", "BBB+3"), 16);
}

TEST(MachineClock, FollowsSummerTime) {
  const MachineClock clock;
  // All the year, and never.
  EXPECT_EQ(hoursBetween(clock, "AAA0", "AAA0BBB,0/0,J365/25"), 1);
}

TEST(MachineClock, CountsTheSecondsOfTheDay) {
  const MachineClock clock;
  const float before = secondsOf(clock.localTime());
  const float seconds = clock.secondsSinceMidnight();
  EXPECT_GE(seconds, before);
  EXPECT_LT(seconds, before + 2);
}

TEST(MachineClock, RunsFasterWhenTold) {
  const MachineClock fast(100);
  const Instant line = fast.now();
  const float day = fast.secondsSinceMidnight();
  std::this_thread::sleep_for(50ms);
  const double onLine = toSeconds(fast.now() - line);
  EXPECT_GE(onLine, 5);
  EXPECT_NEAR(static_cast<double>(fast.secondsSinceMidnight() - day), onLine, 2);
}

TEST(MachineClock, SaysHowLongADurationReallyLasts) {
  EXPECT_EQ(MachineClock(20).realTime(1s), 50ms);
  EXPECT_EQ(MachineClock(1).realTime(1s), 1s);
}

}  // namespace
}  // namespace gsm
