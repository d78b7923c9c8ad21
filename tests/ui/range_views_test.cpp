#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QSlider>
#include <QTabBar>
#include <QWheelEvent>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class RangeWindow : public Window {
 public:
  using Window::Window;
  Slider Slider1{*this, "Slider1", {.Max = 255, .Value = 32, .SmallChange = 2, .LargeChange = 15}};
  Slider Slider2{
      *this, "Slider2", {.Min = 64, .Max = 256, .Value = 100, .SmallChange = 0, .LargeChange = 0}};
  TabStrip TabStrip1{*this, "TabStrip1", {.Tabs = {"PHONE", "SIM & PIN", "NETWORK"}}};
};

class RangeViewsTest : public FormTest {
 protected:
  RangeViewsTest() {
    told_.setProperty("valueOf", "Slider1");
    other_.setProperty("valueOf", "Slider2");
    bind(window_);
    window_.Slider1.Scroll = [this] { ++scrolls_; };
    window_.TabStrip1.Click = [this] { ++clicks_; };
  }

  void clickTab(int index) { click(tabs_, tabs_.tabRect(index).center()); }

  static QSlider& horizontal(QSlider& slider) {
    slider.setOrientation(Qt::Horizontal);
    return slider;
  }
  // The wheel above the slider, in eighths of a degree.
  void turnWheel(const QPoint& angle, bool inverted = false) {
    const QPointF at = slider_.rect().center();
    QWheelEvent event(at, slider_.mapToGlobal(at), {}, angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, inverted);
    QApplication::sendEvent(&slider_, &event);
    EXPECT_TRUE(event.isAccepted()) << "what lies around it must not scroll";
    settle();
  }
  // Where the slider is taken, in pixels from its left.
  QPoint handle() const {
    const int room = slider_.width() - 20;
    return {10 + room * slider_.value() / slider_.maximum(), slider_.height() / 2};
  }
  QAccessibleValueInterface& spoken() {
    return *QAccessible::queryAccessibleInterface(&slider_)->valueInterface();
  }
  int value() const { return window_.Slider1.Value.peek(); }

  RangeWindow window_{platform(), "RangeWindow"};
  QSlider& slider_ = horizontal(put<QSlider>("Slider1"));
  QSlider& steady_ = put<QSlider>("Slider2");
  QTabBar& tabs_ = put<QTabBar>("TabStrip1");
  QLabel& told_ = put<QLabel>("decoValue");
  QLabel& other_ = put<QLabel>("decoOther");
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

TEST_F(RangeViewsTest, ArrowKeysMoveASliderByTheSmallStep) {
  press(slider_, Qt::Key_Right);
  settle();
  EXPECT_EQ(value(), 34);
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Down}) press(slider_, key);
  settle();
  EXPECT_EQ(value(), 30);
  press(slider_, Qt::Key_Up);
  settle();
  EXPECT_EQ(value(), 32);
}

TEST_F(RangeViewsTest, PageKeysMoveASliderByTheLargeStep) {
  press(slider_, Qt::Key_PageUp);
  settle();
  EXPECT_EQ(value(), 47);
  press(slider_, Qt::Key_PageDown);
  press(slider_, Qt::Key_PageDown);
  settle();
  EXPECT_EQ(value(), 17);
}

TEST_F(RangeViewsTest, HomeAndEndMoveASliderToItsEnds) {
  press(slider_, Qt::Key_End);
  settle();
  EXPECT_EQ(value(), 255);
  press(slider_, Qt::Key_Home);
  settle();
  EXPECT_EQ(value(), 0);
}

TEST_F(RangeViewsTest, AKeyAtTheEndMovesASliderNoFurther) {
  window_.Slider1.Value = 255;
  press(slider_, Qt::Key_Right);
  press(slider_, Qt::Key_PageUp);
  settle();
  EXPECT_EQ(value(), 255);
  EXPECT_EQ(scrolls_, 0);
}

TEST_F(RangeViewsTest, ANotchOfTheWheelIsTheSmallStep) {
  turnWheel({0, 120});
  EXPECT_EQ(value(), 34);
  turnWheel({0, -240});
  EXPECT_EQ(value(), 30);
  EXPECT_EQ(scrolls_, 2);
  turnWheel({-120, 0});
  EXPECT_EQ(value(), 32);
  turnWheel({0, -120}, true);
  EXPECT_EQ(value(), 34) << "a hand that moves the same way";
}

TEST_F(RangeViewsTest, PartsOfANotchAddUp) {
  turnWheel({0, 50});
  EXPECT_EQ(value(), 32);
  turnWheel({0, 80});
  EXPECT_EQ(value(), 34);
  turnWheel({0, 100});
  EXPECT_EQ(value(), 34);
  turnWheel({0, 10});
  EXPECT_EQ(value(), 36);
}

TEST_F(RangeViewsTest, TheWheelEndsWithTheRange) {
  turnWheel({0, 120 * 1000});
  EXPECT_EQ(value(), 255);
  turnWheel({0, -120 * 1000});
  EXPECT_EQ(value(), 0);
}

TEST_F(RangeViewsTest, TheWheelLeavesADisabledSliderAlone) {
  window_.Slider1.Enabled = false;
  turnWheel({0, 120});
  EXPECT_EQ(slider_.value(), 32);
  EXPECT_EQ(scrolls_, 0);
}

TEST_F(RangeViewsTest, AClickBesideTheHandleIsTheLargeStep) {
  slider_.resize(300, 24);
  click(slider_, {290, 12});
  settle();
  EXPECT_EQ(value(), 47);
  click(slider_, {2, 12});
  settle();
  EXPECT_EQ(value(), 32);
}

TEST_F(RangeViewsTest, TheHandleIsDragged) {
  slider_.resize(300, 24);
  const auto mouse = [this](QEvent::Type type, const QPoint& at, Qt::MouseButtons buttons) {
    QMouseEvent event(type, at, slider_.mapToGlobal(at), Qt::LeftButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(&slider_, &event);
  };
  mouse(QEvent::MouseButtonPress, handle(), Qt::LeftButton);
  ASSERT_TRUE(slider_.isSliderDown());
  mouse(QEvent::MouseMove, {299, 12}, Qt::LeftButton);
  EXPECT_EQ(told_.text(), "255") << "while it is dragged";
  settle();
  EXPECT_EQ(value(), 255);
  mouse(QEvent::MouseButtonRelease, {299, 12}, Qt::NoButton);
  settle();
  EXPECT_EQ(value(), 255);
}

TEST_F(RangeViewsTest, ALabelTellsASlidersValue) {
  EXPECT_EQ(told_.text(), "32");
  window_.Slider1.Value = 200;
  EXPECT_EQ(told_.text(), "200");
  slider_.setValue(100);
  EXPECT_EQ(told_.text(), "100");
  window_.Slider1.Enabled = false;
  settle();
  EXPECT_EQ(told_.text(), "200") << "of the move that the panel hasn't taken";
  EXPECT_EQ(other_.text(), "100") << "which belongs to another one";
}

TEST_F(RangeViewsTest, ASlidersValueIsSpoken) {
  EXPECT_EQ(spoken().currentValue().toInt(), 32);
  EXPECT_EQ(spoken().minimumValue().toInt(), 0);
  EXPECT_EQ(spoken().maximumValue().toInt(), 255);
  EXPECT_EQ(spoken().minimumStepSize().toInt(), 2);
  window_.Slider1.Value = 200;
  EXPECT_EQ(spoken().currentValue().toInt(), 200);
}

TEST_F(RangeViewsTest, AssistiveTechnologyMovesASlider) {
  spoken().setCurrentValue(90);
  settle();
  EXPECT_EQ(value(), 90);
  EXPECT_EQ(scrolls_, 1);
}

// A design without steps leaves the handle alone to be moved.
TEST_F(RangeViewsTest, ASliderWithoutStepsMovesByItsHandleAndToItsEndsOnly) {
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_PageUp, Qt::Key_Left, Qt::Key_PageDown}) {
    press(steady_, key);
  }
  settle();
  EXPECT_EQ(window_.Slider2.Value.peek(), 100);
  press(steady_, Qt::Key_End);
  settle();
  EXPECT_EQ(window_.Slider2.Value.peek(), 256);
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
