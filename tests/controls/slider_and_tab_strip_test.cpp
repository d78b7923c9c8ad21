#include "tests/controls/window_fixture.h"

namespace gsm {
namespace {

class SliderTest : public WindowTest {};
class TabStripTest : public WindowTest {};

TEST_F(SliderTest, TakesTheValuesOfItsRange) {
  for (const int value : {1, 15, 7}) {
    window.Slider1.Value = value;
    EXPECT_EQ(window.Slider1.Value.get(), value);
  }
}

TEST_F(SliderTest, RefusesAValueOutOfItsRange) {
  for (const int value : {0, 16, -1, 100'000}) {
    EXPECT_EQ(failureOf([&] { window.Slider1.Value = value; }), 380) << value;
  }
  EXPECT_EQ(window.Slider1.Value.get(), 3);
}

TEST_F(SliderTest, ScrollComesFromTheUserAlone) {
  noteEach(window.Slider1.Scroll, "scroll");
  window.Slider1.Value = 5;
  EXPECT_EQ(takeNotes(), Notes());
  EXPECT_TRUE(window.Slider1.userMove(9));
  EXPECT_EQ(window.Slider1.Value.get(), 9);
  EXPECT_EQ(takeNotes(), Notes({"scroll"}));
}

TEST_F(SliderTest, TheUserCanNotMoveItOutOfItsRange) {
  noteEach(window.Slider1.Scroll, "scroll");
  EXPECT_FALSE(window.Slider1.userMove(0));
  EXPECT_FALSE(window.Slider1.userMove(16));
  EXPECT_EQ(window.Slider1.Value.get(), 3);
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(SliderTest, TheDesignsStepsStand) {
  EXPECT_EQ(window.Slider1.smallChange(), 1);
  EXPECT_EQ(window.Slider1.largeChange(), 5);
}

TEST_F(TabStripTest, CountsItsTabsFromOne) {
  EXPECT_EQ(window.TabStrip1.tabs(), std::vector<std::string>({"One", "Two", "Three"}));
  EXPECT_EQ(window.TabStrip1.Value.get(), 1);
}

TEST_F(TabStripTest, EveryClickOnATabRunsClickAlsoOnTheSelectedOne) {
  window.TabStrip1.Click = [this] { note(std::to_string(window.TabStrip1.Value)); };
  EXPECT_TRUE(window.TabStrip1.userTab(1));
  EXPECT_TRUE(window.TabStrip1.userTab(3));
  EXPECT_TRUE(window.TabStrip1.userTab(3));
  EXPECT_EQ(takeNotes(), Notes({"1", "3", "3"}));
}

TEST_F(TabStripTest, ThereIsNoTabZeroAndNoneAfterTheLast) {
  noteEach(window.TabStrip1.Click, "click");
  EXPECT_FALSE(window.TabStrip1.userTab(0));
  EXPECT_FALSE(window.TabStrip1.userTab(4));
  EXPECT_EQ(failureOf([this] { window.TabStrip1.Value = 0; }), 380);
  EXPECT_EQ(failureOf([this] { window.TabStrip1.Value = 4; }), 380);
  EXPECT_EQ(window.TabStrip1.Value.get(), 1);
  EXPECT_EQ(takeNotes(), Notes());
}

}  // namespace
}  // namespace gsm
