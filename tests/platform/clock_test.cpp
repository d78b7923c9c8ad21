#include "platform/clock.h"

#include <optional>
#include <vector>

#include "tests/support/platform_fixture.h"

namespace gsm {
namespace {

std::string shown(const LocalTime& time) { return time.date() + " " + time.timeOfDay(); }

TEST(LocalTime, IsShownWithLeadingZerosDayFirst) {
  EXPECT_EQ(shown({2026, 3, 1, 9, 5, 7}), "01/03/2026 09:05:07");
  EXPECT_EQ(shown({1999, 12, 31, 23, 59, 59}), "31/12/1999 23:59:59");
  EXPECT_EQ(shown({33, 1, 1, 0, 0, 0}), "01/01/0033 00:00:00");
}

TEST(Durations, ConvertToSecondsAndBack) {
  EXPECT_EQ(fromSeconds(0.05), std::chrono::milliseconds(50));
  EXPECT_EQ(fromSeconds(-1), std::chrono::seconds(-1));
  EXPECT_EQ(toSeconds(std::chrono::milliseconds(1250)), 1.25);
  EXPECT_EQ(toSeconds(fromSeconds(1e9)), 1e9);
}

TEST(VirtualLocalTime, GoesOnOverMidnightTheMonthAndTheYear) {
  const struct {
    LocalTime start;
    double seconds;
    const char* then;
  } rows[] = {
      {{2026, 3, 1, 10, 0, 0}, 0, "01/03/2026 10:00:00"},
      {{2026, 3, 1, 10, 0, 0}, 0.999, "01/03/2026 10:00:00"},
      {{2026, 3, 1, 10, 0, 0}, 59.9, "01/03/2026 10:00:59"},
      {{2026, 3, 1, 23, 59, 59}, 1, "02/03/2026 00:00:00"},
      {{2026, 4, 30, 23, 59, 59}, 1, "01/05/2026 00:00:00"},
      {{2026, 12, 31, 23, 59, 59}, 2, "01/01/2027 00:00:01"},
      {{2024, 2, 28, 23, 0, 0}, 3600, "29/02/2024 00:00:00"},
      {{2025, 2, 28, 23, 0, 0}, 3600, "01/03/2025 00:00:00"},
      {{2100, 2, 28, 12, 0, 0}, 86400, "01/03/2100 12:00:00"},
      {{2000, 2, 28, 12, 0, 0}, 86400, "29/02/2000 12:00:00"},
      {{2026, 1, 1, 0, 0, 0}, 365.0 * 86400, "01/01/2027 00:00:00"},
  };
  for (const auto& [start, seconds, then] : rows) {
    VirtualTime time(start, [] { return true; });
    time.run(fromSeconds(seconds));
    EXPECT_EQ(shown(time.localTime()), then);
  }
}

TEST(VirtualLocalTime, SecondsSinceMidnightBeginAnewEachDay) {
  VirtualTime time({2026, 3, 1, 23, 59, 58}, [] { return true; });
  EXPECT_EQ(time.secondsSinceMidnight(), 86398.0f);
  time.run(fromSeconds(1.5));
  EXPECT_EQ(time.secondsSinceMidnight(), 86399.5f);
  time.run(fromSeconds(0.5));
  EXPECT_EQ(time.secondsSinceMidnight(), 0.0f);
  time.run(std::chrono::hours(30));
  EXPECT_EQ(time.secondsSinceMidnight(), 6 * 3600.0f);
}

}  // namespace
}  // namespace gsm
