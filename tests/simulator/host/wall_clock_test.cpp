#include "simulator/host/wall_clock.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <time.h>

#include <optional>

namespace gsm::pty {
namespace {

// The zone of this process, for as long as the object lives.
class Zone {
 public:
  explicit Zone(const char* name) {
    if (const char* const before = ::getenv("TZ")) before_ = before;
    ::setenv("TZ", name, 1);
    ::tzset();
  }
  ~Zone() {
    before_ ? ::setenv("TZ", before_->c_str(), 1) : ::unsetenv("TZ");
    ::tzset();
  }

 private:
  std::optional<std::string> before_;
};

struct ZoneRow {
  const char* zone;
  const char* time;
};

TEST(WallClock, TellsTheTimeWithItsZoneInQuartersOfAnHour) {
  constexpr ZoneRow kZones[] = {
      {"UTC0", "09/02/13,23:31:30+00"},
      {"XST-1", "09/02/14,00:31:30+04"},
      {"XST5", "09/02/13,18:31:30-20"},
      {"XST-5:45", "09/02/14,05:16:30+23"},
  };
  for (const auto& [name, time] : kZones) {
    const Zone zone(name);
    EXPECT_EQ(networkTime(1234567890), time) << name;
  }
}

}  // namespace
}  // namespace gsm::pty
