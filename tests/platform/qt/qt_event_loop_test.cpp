#include "platform/qt/qt_event_loop.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <chrono>
#include <ctime>
#include <string>

namespace gsm {
namespace {

using namespace std::chrono_literals;

class QtEventLoopTest : public ::testing::Test {
 protected:
  static Duration processorTime() {
    std::timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
  }

  void passFor(Duration duration) {
    for (const Instant end = clock_.now() + duration; clock_.now() < end;) loop_.pass(end);
  }

  MachineClock clock_;
  QtEventLoop loop_{clock_};
};

TEST_F(QtEventLoopTest, RunsEventsInTheOrderOfPosting) {
  std::string run;
  loop_.post([&] { run += 'a'; });
  loop_.post([&] { run += 'b'; });
  loop_.pass();
  EXPECT_EQ(run, "ab");
}

TEST_F(QtEventLoopTest, LeavesToTheNextPassWhatComesUpMeanwhile) {
  std::string run;
  loop_.post([&] {
    run += 'a';
    loop_.post([&] { run += 'b'; });
  });
  loop_.pass();
  EXPECT_EQ(run, "a");
  loop_.pass();
  EXPECT_EQ(run, "ab");
}

TEST_F(QtEventLoopTest, SleepsUntilTheGivenInstant) {
  const Instant until = clock_.now() + 50ms;
  while (clock_.now() < until) loop_.pass(until);
  EXPECT_LT(clock_.now(), until + 40ms);
}

TEST_F(QtEventLoopTest, ReturnsAtOnceWhenTheInstantHasPassed) {
  const Instant before = clock_.now();
  loop_.pass(before);
  EXPECT_LT(clock_.now() - before, 50ms);
}

TEST_F(QtEventLoopTest, WaitingTakesNextToNoProcessorTime) {
  const Duration before = processorTime();
  passFor(400ms);
  EXPECT_LT(processorTime() - before, 40ms);
}

TEST_F(QtEventLoopTest, PassesNest) {
  std::string run;
  loop_.post([&] {
    run += '(';
    loop_.pass();
    run += ')';
  });
  loop_.post([&] { run += 'x'; });
  loop_.pass();
  EXPECT_EQ(run, "(x)");
}

TEST_F(QtEventLoopTest, PassesNestAsDeepAsHandlersDo) {
  constexpr int kDeep = 400;
  int depth = 0;
  std::function<void()> deeper = [&] {
    if (++depth == kDeep) return;
    loop_.post(deeper);
    loop_.pass();
  };
  loop_.post(deeper);
  QEventLoop native;
  loop_.post([&] { native.quit(); });
  native.exec();
  EXPECT_EQ(depth, kDeep);
}

TEST_F(QtEventLoopTest, ASourceThatNeverRestsKeepsNoWaitingHandlerFromItsTurn) {
  std::function<void()> again = [&] { loop_.post(again); };
  loop_.post(again);
  bool returned = false;
  loop_.post([&] {
    passFor(20ms);
    returned = true;
  });
  loop_.pass();
  EXPECT_TRUE(returned);
}

TEST_F(QtEventLoopTest, RepeatsAtEachMultipleOfTheInterval) {
  int ticks = 0;
  const auto repetition = loop_.every(20ms, [&] { ++ticks; });
  passFor(210ms);
  EXPECT_GE(ticks, 8);
  EXPECT_LE(ticks, 10);
}

TEST_F(QtEventLoopTest, ARepetitionKeepsItsStepWhenAnEventWasLate) {
  const Instant start = clock_.now();
  std::vector<Instant> ticks;
  const auto repetition = loop_.every(50ms, [&] {
    ticks.push_back(clock_.now() - start);
    if (ticks.size() == 1) passFor(20ms);
  });
  passFor(175ms);
  ASSERT_EQ(ticks.size(), 3u);
  EXPECT_LT(ticks[1], 125ms);
  EXPECT_GE(ticks[1], 100ms);
}

TEST_F(QtEventLoopTest, ARepetitionMayBeEndedByItsOwnEvent) {
  int ticks = 0;
  std::unique_ptr<Repetition> repetition = loop_.every(5ms, [&] {
    ++ticks;
    repetition.reset();
    passFor(30ms);
  });
  passFor(60ms);
  EXPECT_EQ(ticks, 1);
}

TEST_F(QtEventLoopTest, AnEndedRepetitionsWaitingEventNoLongerRuns) {
  int ticks = 0;
  std::unique_ptr<Repetition> repetition = loop_.every(1ms, [&] { ++ticks; });
  QTimer::singleShot(15, [] {});
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);  // its alarm rings: it is queued
  repetition.reset();
  passFor(20ms);
  EXPECT_EQ(ticks, 0);
}

TEST_F(QtEventLoopTest, AnEventThatLastsLongerThanItsIntervalIsQueuedOnce) {
  int inside = 0;
  int deepest = 0;
  const auto repetition = loop_.every(2ms, [&] {
    deepest = std::max(deepest, ++inside);
    if (inside < 5) passFor(10ms);
    --inside;
  });
  passFor(50ms);
  EXPECT_GT(deepest, 1) << "a repetition's events may nest";
}

TEST_F(QtEventLoopTest, DeliversFromALoopOfQtsOwn) {
  std::string run;
  QEventLoop native;
  loop_.post([&] {
    run += 'a';
    loop_.post([&] {
      run += 'b';
      native.quit();
    });
  });
  native.exec();
  EXPECT_EQ(run, "ab");
}

TEST_F(QtEventLoopTest, DeliversFromALoopOfQtsOwnInsideAPass) {
  bool delivered = false;
  loop_.post([&] {
    QEventLoop native;
    const auto repetition = loop_.every(5ms, [&] {
      delivered = true;
      native.quit();
    });
    native.exec();
  });
  loop_.pass();
  EXPECT_TRUE(delivered);
}

TEST_F(QtEventLoopTest, AHandlerThatWaitsInALoopOfQtsOwnLetsEventsRun) {
  bool nested = false;
  QEventLoop native;
  loop_.post([&] {
    loop_.post([&] { nested = true; });
    passFor(10ms);
    native.quit();
  });
  native.exec();
  EXPECT_TRUE(nested);
}

TEST_F(QtEventLoopTest, AFastClockShortensSleepAndIntervals) {
  const MachineClock fast(20);
  QtEventLoop loop(fast);
  int ticks = 0;
  const auto repetition = loop.every(1s, [&] { ++ticks; });
  const Instant before = clock_.now();
  for (const Instant end = fast.now() + 4500ms; fast.now() < end;) loop.pass(end);
  EXPECT_LT(clock_.now() - before, 400ms);
  EXPECT_GE(ticks, 3);
  EXPECT_LE(ticks, 5);
}

}  // namespace
}  // namespace gsm
