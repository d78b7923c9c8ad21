#include <gtest/gtest.h>

#include <cmath>

#include "modem/form20.h"
#include "tests/support/open_port_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

// The small window that comes up now and then with advice about the signal.
class ImageWindow : public OpenPortTest {
 protected:
  void SetUp() override { begin({2026, 3, 1, 0, 0, 0}); }
  void TearDown() override { watch_.reset(); }

  void begin(LocalTime clock) {
    startWithOpenPort(clock);
    watch_ = std::make_unique<PropertyWatch>(panel().form20, [this](PropertyId property) {
      if (property != PropertyId::Visible) return;
      (panel().form20.Visible.peek() ? shown_ : hidden_).push_back(std::round(now() * 100) / 100);
    });
  }

  void enable() {
    inPanel([this] { panel().form20.Timer1.Enabled = true; });
    run(0);
  }

  using Times = std::vector<double>;
  Times shown_;
  Times hidden_;

 private:
  std::unique_ptr<PropertyWatch> watch_;
};

TEST_F(ImageWindow, StaysAwayUntilItsTimerIsEnabled) {
  inPanel([this] { panel().form20.Image1.Visible = true; });  // the first reference loads it
  run(200);
  EXPECT_FALSE(panel().form20.Timer1.Enabled.peek());
  EXPECT_EQ(panel().form20.Timer1.Interval.peek(), 50000);
  EXPECT_EQ(shown_, Times{});
}

TEST_F(ImageWindow, ComesUpForThreeSecondsEveryFiftySeconds) {
  enable();
  run(160);
  EXPECT_EQ(shown_, (Times{50, 100, 150}));
  EXPECT_EQ(hidden_, (Times{53, 103, 153}));
}

TEST_F(ImageWindow, StaysUpUntilWhatBeganMeanwhileHasEnded) {
  enable();
  receive("a", 52.5);
  run(90);
  EXPECT_EQ(shown_, Times{50});
  EXPECT_EQ(hidden_, Times{54.5});
}

TEST_F(ImageWindow, DropsTheTickThatComesWhileItIsStillUp) {
  enable();
  inPanel([this] { form1().Pause(60.5); }, 51);
  run(200);
  EXPECT_EQ(shown_, (Times{50, 150, 200}));
  EXPECT_EQ(hidden_, (Times{111.5, 153}));
}

class ImageWindowAtMidnight : public ImageWindow {
 protected:
  void SetUp() override { begin({2026, 3, 1, 23, 59, 8}); }
};

TEST_F(ImageWindowAtMidnight, StaysUpUntilItsNextTickHasEnded) {
  enable();
  run(110);
  EXPECT_EQ(shown_, (Times{50, 100}));  // the second time it is up already
  EXPECT_EQ(hidden_, Times{103});
  EXPECT_EQ(boxes(), std::vector<std::string>{});
  EXPECT_FALSE(ended());
}

}  // namespace
}  // namespace gsm
