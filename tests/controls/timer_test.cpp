#include "controls/timer.h"

#include <cmath>

#include "tests/controls/window_fixture.h"

namespace gsm {
namespace {

class TimerTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    timer().Tick = [this] { noteTime(); };
  }
  Timer& timer() { return window.Timer1; }

  /// Notes the present time in milliseconds.
  void noteTime() { note(std::to_string(std::lround(at() * 1000))); }
};

TEST_F(TimerTest, TicksAtEachMultipleOfItsInterval) {
  timer().Enabled = true;
  run(3.5);
  EXPECT_EQ(takeNotes(), Notes({"1000", "2000", "3000"}));
}

TEST_F(TimerTest, CountsFromTheMomentItIsEnabled) {
  run(0.25);
  timer().Enabled = true;
  run(2);
  EXPECT_EQ(takeNotes(), Notes({"1250", "2250"}));
}

TEST_F(TimerTest, DoesNotTickWhenDisabled) {
  run(5);
  EXPECT_EQ(takeNotes(), Notes());
  timer().Enabled = true;
  run(1);
  timer().Enabled = false;
  run(5);
  EXPECT_EQ(takeNotes(), Notes({"6000"}));
}

TEST_F(TimerTest, EnablingWhatIsEnabledDoesNotPutTheTickOff) {
  timer().Enabled = true;
  run(0.75);
  timer().Enabled = true;
  run(0.5);
  EXPECT_EQ(takeNotes(), Notes({"1000"}));
}

TEST_F(TimerTest, ANewIntervalCountsFromNow) {
  timer().Enabled = true;
  run(0.5);
  timer().Interval = 200;
  run(0.5);
  EXPECT_EQ(takeNotes(), Notes({"700", "900"}));
}

TEST_F(TimerTest, AnIntervalOfZeroNeverTicks) {
  timer().Enabled = true;
  timer().Interval = 0;
  run(5);
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(TimerTest, ATickIsDroppedWhileItsOwnHandlerStillRuns) {
  timer().Tick = [this] {
    noteTime();
    wait(2.5);
  };
  timer().Enabled = true;
  run(9.9);
  // The ticks of 2 and 3, then of 5 and 6, and of 8 and 9, come while the handler waits.
  EXPECT_EQ(takeNotes(), Notes({"1000", "4000", "7000"}));
  EXPECT_EQ(depth(), 0);
}

TEST_F(TimerTest, AHandlerThatLastsExactlyAnIntervalLosesOneTick) {
  timer().Tick = [this] {
    noteTime();
    wait(1);
  };
  timer().Enabled = true;
  run(6.5);
  EXPECT_EQ(takeNotes(), Notes({"1000", "3000", "5000"}));
}

TEST_F(TimerTest, AnotherTimersHandlerDropsNothing) {
  TestWindow other(platform(), "Window2");
  other.Timer1.Enabled = true;
  other.Timer1.Tick = [this] { note("other"); };
  timer().Tick = [this] {
    note("begin");
    wait(1.5);
    note("end");
  };
  timer().Enabled = true;
  run(2.5);
  time().abandon();  // before the window of this test alone goes
  EXPECT_EQ(takeNotes(), Notes({"other", "begin", "other", "end"}));
}

TEST_F(TimerTest, AHandlerMayDisableItsOwnTimer) {
  timer().Tick = [this] {
    noteTime();
    timer().Enabled = false;
    wait(3);
  };
  timer().Enabled = true;
  run(10);
  EXPECT_EQ(takeNotes(), Notes({"1000"}));
  timer().Enabled = true;
  run(1);
  EXPECT_EQ(takeNotes(), Notes({"11000"}));
}

TEST_F(TimerTest, AFailureThatItsHandlerDoesNotTrapEndsTheProgram) {
  timer().Tick = [this] {
    noteTime();
    throw failure::overflow();
  };
  timer().Enabled = true;
  run(2.5);
  EXPECT_EQ(takeNotes(), Notes({"1000"}));
  EXPECT_TRUE(ended());
  EXPECT_EQ(at(), 1);
  EXPECT_EQ(machine().boxes.takeShown().at(0).text, "Overflow");
}

TEST_F(TimerTest, TicksGoOnWhileOtherHandlersWait) {
  timer().Enabled = true;
  inProgram([this] { wait(2.5); });
  run(2.5);
  EXPECT_EQ(takeNotes(), Notes({"1000", "2000"}));
}

TEST_F(TimerTest, UnloadingItsWindowStopsItAndLoadingBeginsItsDesignAnew) {
  timer().Enabled = true;
  run(1.5);
  window.Unload();
  run(5);
  EXPECT_EQ(takeNotes(), Notes({"1000"}));
  window.Show();  // disabled by design
  run(5);
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(TimerTest, AHandlerMayUnloadItsOwnWindow) {
  timer().Tick = [this] {
    noteTime();
    window.Unload();
    wait(2);
  };
  timer().Enabled = true;
  run(5);
  EXPECT_EQ(takeNotes(), Notes({"1000"}));
}

TEST_F(TimerTest, ATimerEnabledByDesignBeginsWithTheLoadOfItsWindow) {
  struct Ticking : Window {
    using Window::Window;
    Timer Timer1{*this, "Timer1", {.Interval = 500}};
  };
  Ticking ticking(platform(), "Ticking");
  ticking.Timer1.Tick = [this] { noteTime(); };
  run(2);
  EXPECT_EQ(takeNotes(), Notes());
  (void)ticking.Caption.get();
  run(1.1);
  EXPECT_EQ(takeNotes(), Notes({"2500", "3000"}));
}

TEST_F(TimerTest, TicksWhetherItsWindowIsOnViewOrNot) {
  timer().Enabled = true;
  window.Hide();
  run(1);
  EXPECT_EQ(takeNotes(), Notes({"1000"}));
}

TEST_F(TimerTest, TicksUnderAMessageBox) {
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  timer().Enabled = true;
  inProgram([this] { platform().boxes.show("hold"); });
  run(2);
  EXPECT_EQ(takeNotes(), Notes({"1000", "2000"}));
}

}  // namespace
}  // namespace gsm
