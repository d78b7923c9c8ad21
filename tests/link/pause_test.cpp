#include <gtest/gtest.h>

#include "app/windows.h"
#include "platform/runtime_failure.h"
#include "tests/support/panel_fixture.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

// A panel that does nothing by itself. Its clock begins at midnight, where single precision is
// finer than anything that a test looks at, and Form1's clock label doesn't tick.
class Pauses : public PanelTest {
 protected:
  void SetUp() override { startAt({2026, 3, 1, 0, 0, 0}); }

  void startAt(LocalTime now) {
    start({.now = now});
    run(0);
    form1().Timer1.Enabled = false;
  }

  // A handler that begins `after` seconds from now, waits, and notes when it goes on.
  void waitingHandler(const std::string& name, float seconds, double after = 0) {
    inPanel(
        [this, name, seconds] {
          form1().Pause(seconds);
          gone_.push_back(name);
          times_.push_back(now());
        },
        after);
  }

  using Names = std::vector<std::string>;
  Names gone_;                 // the handlers that have gone on, in their order
  std::vector<double> times_;  // when each did
};

struct WaitRow {
  std::string name;
  float seconds;
};

class PausesOfNothing : public Pauses, public ::testing::WithParamInterface<WaitRow> {};

TEST_P(PausesOfNothing, ReturnAtOnceAndLetNoEventThrough) {
  bool eventRan = false;
  bool eventRanBeforeTheHandlerWentOn = true;
  inPanel([&] {
    machine().platform().loop.post([&] { eventRan = true; });
    form1().Pause(GetParam().seconds);
    eventRanBeforeTheHandlerWentOn = eventRan;
    times_.push_back(now());
  });
  run(1);
  EXPECT_FALSE(eventRanBeforeTheHandlerWentOn);
  EXPECT_TRUE(eventRan);
  EXPECT_EQ(times_, std::vector<double>{0});
}

INSTANTIATE_TEST_SUITE_P(Rows, PausesOfNothing,
                         ::testing::Values(WaitRow{"Zero", 0}, WaitRow{"JustBelowZero", -0.001F},
                                           WaitRow{"MinusOne", -1}),
                         RowName());

class PausesOfTime : public Pauses, public ::testing::WithParamInterface<WaitRow> {};

TEST_P(PausesOfTime, EndAtTheirTime) {
  const double seconds = GetParam().seconds;
  waitingHandler("only", GetParam().seconds);
  run(seconds - 0.01);
  EXPECT_EQ(gone_, Names{});
  run(1);
  ASSERT_EQ(gone_, Names{"only"});
  EXPECT_NEAR(times_[0], seconds, 0.002);
}

INSTANTIATE_TEST_SUITE_P(Rows, PausesOfTime,
                         ::testing::Values(WaitRow{"HalfASecond", 0.5F}, WaitRow{"OneSecond", 1},
                                           WaitRow{"TwoSeconds", 2}, WaitRow{"ThreeSeconds", 3}),
                         RowName());

TEST_F(Pauses, LetEventsRunToTheirEndOnTopOfTheWaitingHandler) {
  waitingHandler("waiting", 1);
  int depth = 0;
  inPanel([&] { depth = waiting(); }, 0.5);
  run(0.6);
  EXPECT_EQ(depth, 2);
  EXPECT_EQ(waiting(), 1);
  EXPECT_EQ(gone_, Names{});
}

TEST_F(Pauses, OfNestedHandlersEndTheNewestFirst) {
  waitingHandler("first", 2, 0);
  waitingHandler("second", 2, 0.1);
  waitingHandler("third", 2, 0.2);
  run(10);
  EXPECT_EQ(gone_, (Names{"third", "second", "first"}));
  for (const double time : times_) EXPECT_NEAR(time, 2.2, 0.002);
}

TEST_F(Pauses, OfAnOuterHandlerLastUntilTheInnerOneHasReturned) {
  waitingHandler("outer", 1, 0);
  waitingHandler("inner", 5, 0.5);
  run(5.4);
  EXPECT_EQ(gone_, Names{});
  run(1);
  EXPECT_EQ(gone_, (Names{"inner", "outer"}));
  EXPECT_NEAR(times_[0], 5.5, 0.002);
  EXPECT_NEAR(times_[1], 5.5, 0.002);
}

TEST_F(Pauses, OfAnInnerHandlerThatEndsEarlyLeaveTheOuterOneItsOwnTime) {
  waitingHandler("outer", 5, 0);
  waitingHandler("inner", 1, 0.5);
  run(10);
  EXPECT_EQ(gone_, (Names{"inner", "outer"}));
  EXPECT_NEAR(times_[0], 1.5, 0.002);
  EXPECT_NEAR(times_[1], 5, 0.002);
}

TEST_F(Pauses, LetTheClockLabelGoOn) {
  form1().Timer1.Enabled = true;
  waitingHandler("waiting", 3);
  run(2.5);
  EXPECT_EQ(gone_, Names{});
  EXPECT_EQ(form1().Label4.Caption.peek(), "00:00:02");
}

TEST_F(Pauses, LateInTheDayAreMeasuredInStepsOfSinglePrecision) {
  startAt({2026, 3, 1, 23, 59, 0});  // one step of the clock is 1/128 second there
  waitingHandler("short", 0.001F);
  run(1);
  ASSERT_EQ(gone_, Names{"short"});
  EXPECT_GT(times_[0], 1.0 / 256 - 0.0001);
  EXPECT_LT(times_[0], 1.0 / 128 + 0.002);

  waitingHandler("long", 2);
  run(5);
  ASSERT_EQ(gone_.size(), 2U);
  EXPECT_NEAR(times_[1] - 1, 2, 1.0 / 128 + 0.002);
}

class PausesBeforeMidnight : public Pauses {
 protected:
  static constexpr double kMidnight = 10;  // seconds from the start

  void SetUp() override { startAt({2026, 3, 1, 23, 59, 50}); }

  // A handler that traps its failure and notes it.
  void trappingHandler(float seconds, double after = 0) {
    inPanel(
        [this, seconds] {
          try {
            form1().Pause(seconds);
            gone_.push_back("went on");
          } catch (const RuntimeFailure& failure) {
            gone_.push_back(std::to_string(failure.number()) + " " + failure.description());
          }
          times_.push_back(now());
        },
        after);
  }
};

TEST_F(PausesBeforeMidnight, ThatEndBeforeItAreOrdinary) {
  trappingHandler(9.5);
  run(20);
  EXPECT_EQ(gone_, Names{"went on"});
}

TEST_F(PausesBeforeMidnight, ThatSpanItOverflowAtTheFirstEventAfterIt) {
  trappingHandler(30);
  inPanel([] {}, kMidnight - 0.5);
  inPanel([] {}, kMidnight + 0.01);
  run(60);
  ASSERT_EQ(gone_, Names{"6 Overflow"});
  EXPECT_NEAR(times_[0], kMidnight + 0.01, 0.01);
}

TEST_F(PausesBeforeMidnight, ThatSpanItOverflowAtMidnightEvenWhenNothingElseHappens) {
  trappingHandler(30);
  run(60);
  ASSERT_EQ(gone_, Names{"6 Overflow"});
  EXPECT_NEAR(times_[0], kMidnight, 0.01);
}

TEST_F(PausesBeforeMidnight, ThatNestAcrossItOverflowOneAfterTheOther) {
  trappingHandler(5, 8);
  trappingHandler(5, 9);
  run(60);
  EXPECT_EQ(gone_, (Names{"6 Overflow", "6 Overflow"}));
}

TEST_F(PausesBeforeMidnight, EndTheProgramWithTheDescriptionWhereNothingTrapsTheFailure) {
  inPanel([this] { form1().Pause(30); });
  run(60);
  const auto shown = machine().boxes.takeShown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].text, "Overflow");
  EXPECT_EQ(shown[0].title, "GSM-APPLICATION");
  EXPECT_TRUE(ended());
}

TEST_F(PausesBeforeMidnight, ThatBeginAfterItAreOrdinaryAgain) {
  trappingHandler(30);
  run(60);
  trappingHandler(2);
  run(3);
  EXPECT_EQ(gone_, (Names{"6 Overflow", "went on"}));
}

// An event loop that counts its passes.
class CountingLoop : public EventLoop {
 public:
  explicit CountingLoop(EventLoop& loop) : loop_(loop) {}
  void post(Event event) override { loop_.post(std::move(event)); }
  void pass(std::optional<Instant> until) override {
    ++passes;
    loop_.pass(until);
  }
  std::unique_ptr<Repetition> every(Duration interval, Event event) override {
    return loop_.every(interval, std::move(event));
  }

  int passes = 0;

 private:
  EventLoop& loop_;
};

class PausesCountedInPasses : public ::testing::Test {
 protected:
  // The passes of the event loop that a wait of `seconds` takes, with `events` during it.
  int passesOf(float seconds, int events, LocalTime now) {
    const TemporaryFolder folder;
    HeadlessPlatform machine(folder.path(), now);
    const Platform& all = machine.platform();
    CountingLoop loop(all.loop);
    Platform counted{all.clock,    loop,         all.handlers, all.boxes,
                     all.program,  all.files,    all.ports,    all.serialDevice,
                     all.settings, all.database, all.windows};
    Windows windows(counted);
    bool ended = false;
    machine.time.after(Duration::zero(), [&] {
      machine.handlers().run([&] {
        windows.panel.form1.Pause(seconds);
        ended = true;
      });
    });
    for (int i = 1; i <= events; ++i) {
      machine.time.after(fromSeconds(i * static_cast<double>(seconds) / (events + 1)), [] {});
    }
    machine.time.run(fromSeconds(2.0 * static_cast<double>(seconds)));
    EXPECT_TRUE(ended);
    machine.time.abandon();
    return loop.passes;
  }
};

TEST_F(PausesCountedInPasses, SleepThroughATimeWithoutEvents) {
  EXPECT_LE(passesOf(100, 0, {2026, 3, 1, 0, 0, 0}), 4);
  EXPECT_LE(passesOf(100, 0, {2026, 3, 1, 23, 50, 0}), 20);
}

TEST_F(PausesCountedInPasses, TakeOnePassForEachEvent) {
  EXPECT_LE(passesOf(100, 50, {2026, 3, 1, 0, 0, 0}), 54);
}

}  // namespace
}  // namespace gsm
