// Waits while the wall clock jumps: the machine was suspended, summer time begins or ends, somebody
// sets the clock. A wait goes by the time of day, so a jump forward ends it and one back past its
// beginning is taken for midnight; but it never lasts longer than its own time on the time line,
// unless the clock was set back by less than it had waited.

#include <cmath>
#include <optional>
#include <ostream>

#include "link/pause.h"
#include "tests/support/platform_fixture.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

constexpr double kHour = 3600;

// The virtual clock, whose time of day jumps a second after its beginning. Nothing tells the loop.
class JumpingClock : public Clock {
 public:
  JumpingClock(VirtualTime& time, double jump) : time_(time), jump_(jump) {}

  Instant now() const override { return time_.now(); }
  LocalTime localTime() const override { return time_.localTime(); }
  float secondsSinceMidnight() const override {
    constexpr double kDay = 24 * kHour;
    const double ahead = time_.now() < begin_ + std::chrono::seconds(1) ? 0 : jump_;
    return static_cast<float>(
        std::fmod(static_cast<double>(time_.secondsSinceMidnight()) + ahead + kDay, kDay));
  }

 private:
  VirtualTime& time_;
  const Instant begin_ = time_.now();
  const double jump_;
};

struct JumpRow {
  std::string name;
  double jump;                  // of the time of day, a second after the beginning of a wait of 4
  std::optional<double> event;  // when something happens, if it does
  double ends;                  // how long the wait takes
  bool overflows;

  friend void PrintTo(const JumpRow& row, std::ostream* out) { *out << row.name; }
};

class WaitsInAJump : public PlatformTest, public ::testing::WithParamInterface<JumpRow> {};

TEST_P(WaitsInAJump, EndByTheRulesOfTimeThatStand) {
  const auto& [name, jump, event, ends, overflows] = GetParam();
  JumpingClock clock(time(), jump);
  std::optional<int> outcome;
  double lasted = 0;
  inProgram([&] {
    const double begin = at();
    outcome = failureOf([&] { pause(clock, time(), 4); });
    lasted = at() - begin;
  });
  if (event) time().after(fromSeconds(*event), [] {});
  run(60);
  ASSERT_TRUE(outcome) << "it hangs";
  EXPECT_EQ(*outcome, overflows ? 6 : 0);
  EXPECT_NEAR(lasted, ends, 0.01);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WaitsInAJump,
    ::testing::Values(JumpRow{"NoJump", 0, 2, 4, false},
                      JumpRow{"SuspendedForAnHour", kHour, std::nullopt, 4, false},
                      JumpRow{"SuspendedForAnHourAndAnEvent", kHour, 2, 2, false},
                      JumpRow{"SuspendedPastMidnight", 20 * kHour, std::nullopt, 4, true},
                      JumpRow{"SuspendedPastMidnightAndAnEvent", 20 * kHour, 2, 2, true},
                      JumpRow{"SuspendedForADay", 24 * kHour, 2, 4, false},
                      JumpRow{"SummerTimeBegins", kHour, 3, 3, false},
                      JumpRow{"SummerTimeEnds", -kHour, std::nullopt, 4, true},
                      JumpRow{"SummerTimeEndsAndAnEvent", -kHour, 1.5, 1.5, true},
                      JumpRow{"SetForwardWithinTheWait", 2, std::nullopt, 4, false},
                      JumpRow{"SetForwardWithinTheWaitAndAnEvent", 2, 2.5, 2.5, false},
                      JumpRow{"SetBackByLessThanItHasWaited", -0.5, std::nullopt, 4.5, false}),
    RowName());

}  // namespace
}  // namespace gsm
