#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/support/panel_fixture.h"

namespace gsm {
namespace {

class ClockLabel : public PanelTest {
 protected:
  std::string clock() { return form1().Label4.Caption.peek(); }
};

TEST_F(ClockLabel, ShowsTheTimeOfDayFromTheFirstSecondOn) {
  start({.now = {2026, 3, 1, 9, 5, 7}});
  run(0.9);
  EXPECT_EQ(clock(), "");
  run(0.2);
  EXPECT_EQ(clock(), "09:05:08");
  run(3600);
  EXPECT_EQ(clock(), "10:05:08");
}

TEST_F(ClockLabel, GoesOnAfterMidnight) {
  start({.now = {2026, 3, 1, 23, 59, 58}});
  run(1.1);
  EXPECT_EQ(clock(), "23:59:59");
  run(1);
  EXPECT_EQ(clock(), "00:00:00");
}

TEST_F(ClockLabel, GoesOnDuringTheWaitsOfAnExchange) {
  layComFile("\r\n");
  start();
  for (int second = 1; second <= 20; ++second) {
    run(second == 1 ? 1.1 : 1);
    EXPECT_GT(waiting(), 0);
    EXPECT_EQ(clock(), "10:00:" + std::string(second < 10 ? "0" : "") + std::to_string(second));
  }
}

TEST_F(ClockLabel, LeavesThePortAlone) {
  startWithModem();
  run(100);
  EXPECT_EQ(sent(), std::vector<std::string>{});
}

}  // namespace
}  // namespace gsm
