#include "simulator/host/real_timeline.h"

#include <gtest/gtest.h>

#include <string>

namespace gsm::pty {
namespace {

using std::chrono::hours;
using std::chrono::nanoseconds;

TEST(RealTimeline, RunsActionsOfOneInstantInTheOrderGiven) {
  RealTimeline time(1);
  std::string order;
  for (const char c : {'a', 'b', 'c'}) time.after(nanoseconds(0), [&order, c] { order += c; });
  EXPECT_EQ(order, "") << "never from inside the call";
  while (time.untilNext()) time.runDue();
  EXPECT_EQ(order, "abc");
}

TEST(RealTimeline, LeavesWhatIsNotDue) {
  RealTimeline time(1);
  bool ran = false;
  time.after(hours(1), [&] { ran = true; });
  time.runDue();
  EXPECT_FALSE(ran);
  EXPECT_GT(time.untilNext(), std::chrono::minutes(59));
}

TEST(RealTimeline, FactorMakesDelaysShorter) {
  RealTimeline time(1000);
  time.after(std::chrono::seconds(1000), [] {});
  EXPECT_LE(time.untilNext(), std::chrono::seconds(1));
}

TEST(RealTimeline, ActionThatAlwaysGivesAnotherDoesntHoldItUp) {
  RealTimeline time(1);
  int runs = 0;
  std::function<void()> again = [&] {
    ++runs;
    time.after(nanoseconds(-5), again);
  };
  time.after(nanoseconds(0), again);
  while (runs == 0) time.runDue();
  EXPECT_EQ(runs, 1);
  EXPECT_TRUE(time.untilNext());
}

}  // namespace
}  // namespace gsm::pty
