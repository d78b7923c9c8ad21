#include <QSlider>
#include <QTabBar>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class RangeWindow : public Window {
 public:
  using Window::Window;
  Slider Slider1{*this, "Slider1", {.Max = 255, .Value = 32, .SmallChange = 2, .LargeChange = 15}};
  TabStrip TabStrip1{*this, "TabStrip1", {.Tabs = {"PHONE", "SIM & PIN", "NETWORK"}}};
};

class RangeViewsTest : public FormTest {
 protected:
  RangeViewsTest() {
    bind(window_);
    window_.Slider1.Scroll = [this] { ++scrolls_; };
    window_.TabStrip1.Click = [this] { ++clicks_; };
  }

  void clickTab(int index) { click(tabs_, tabs_.tabRect(index).center()); }

  RangeWindow window_{platform(), "RangeWindow"};
  QSlider& slider_ = put<QSlider>("Slider1");
  QTabBar& tabs_ = put<QTabBar>("TabStrip1");
  int scrolls_ = 0;
  int clicks_ = 0;
};

TEST_F(RangeViewsTest, ASliderShowsItsRangeAndValue) {
  EXPECT_EQ(slider_.maximum(), 255);
  EXPECT_EQ(slider_.value(), 32);
  EXPECT_EQ(slider_.singleStep(), 2);
  EXPECT_EQ(slider_.pageStep(), 15);
  window_.Slider1.Value = 200;
  EXPECT_EQ(slider_.value(), 200);
  window_.Slider1.Max = 3;
  window_.Slider1.Value = 3;
  EXPECT_EQ(slider_.value(), 3);
  EXPECT_EQ(slider_.maximum(), 3);
}

TEST_F(RangeViewsTest, ShowingAValueDoesntScroll) {
  window_.Slider1.Value = 200;
  settle();
  EXPECT_EQ(scrolls_, 0);
}

TEST_F(RangeViewsTest, TheUserMovesASlider) {
  slider_.setValue(100);
  EXPECT_EQ(scrolls_, 0);
  settle();
  EXPECT_EQ(scrolls_, 1);
  EXPECT_EQ(window_.Slider1.Value.peek(), 100);
}

TEST_F(RangeViewsTest, MovesThatAreWaitingAreTakenAsOne) {
  slider_.setValue(100);
  slider_.setValue(101);
  slider_.setValue(102);
  settle();
  EXPECT_EQ(scrolls_, 1);
  EXPECT_EQ(window_.Slider1.Value.peek(), 102);
  EXPECT_EQ(slider_.value(), 102);
}

TEST_F(RangeViewsTest, AMoveThatThePanelDoesntTakeIsUndone) {
  slider_.setValue(100);
  window_.Slider1.Enabled = false;
  settle();
  EXPECT_EQ(slider_.value(), 32);
}

TEST_F(RangeViewsTest, AStripShowsItsTabs) {
  EXPECT_EQ(tabs_.count(), 3);
  EXPECT_EQ(tabs_.tabText(1), "SIM && PIN") << "Qt shows && as one";
  window_.TabStrip1.Value = 3;
  EXPECT_EQ(tabs_.currentIndex(), 2);
  settle();
  EXPECT_EQ(clicks_, 0);
}

TEST_F(RangeViewsTest, TheUserClicksATab) {
  clickTab(1);
  EXPECT_EQ(clicks_, 0);
  settle();
  EXPECT_EQ(clicks_, 1);
  EXPECT_EQ(window_.TabStrip1.Value.peek(), 2);
}

TEST_F(RangeViewsTest, TheSelectedTabClicksToo) {
  clickTab(0);
  settle();
  EXPECT_EQ(clicks_, 1);
  EXPECT_EQ(window_.TabStrip1.Value.peek(), 1);
}

TEST_F(RangeViewsTest, TheKeyboardChoosesATab) {
  press(tabs_, Qt::Key_Right);
  settle();
  EXPECT_EQ(clicks_, 1);
  EXPECT_EQ(window_.TabStrip1.Value.peek(), 2);
}

}  // namespace
}  // namespace gsm
