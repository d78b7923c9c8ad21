#include "platform/headless/virtual_time.h"

#include <cmath>

#include "platform/headless/side_stack.h"
#include "tests/support/platform_fixture.h"

namespace gsm {
namespace {

class VirtualTimeTest : public PlatformTest {
 protected:
  void noteAfter(double seconds, const std::string& what) {
    time().after(fromSeconds(seconds), [this, what] { note(what); });
  }
  std::string atText() { return std::to_string(std::lround(at() * 1000)) + " ms"; }
};

TEST_F(VirtualTimeTest, StandsStillOutsideOfRun) {
  EXPECT_EQ(at(), 0);
  noteAfter(0, "event");
  EXPECT_EQ(takeNotes(), Notes());
  run(0);
  EXPECT_EQ(takeNotes(), Notes({"event"}));
  EXPECT_EQ(at(), 0);
}

TEST_F(VirtualTimeTest, ARunTakesExactlyItsTimeEvenWhenNothingHappens) {
  run(1.5);
  EXPECT_EQ(at(), 1.5);
  run(3600);
  EXPECT_EQ(at(), 3601.5);
  run(0);
  EXPECT_EQ(at(), 3601.5);
}

TEST_F(VirtualTimeTest, EventsRunAtTheirTimesWhateverTheOrderOfQueueing) {
  time().after(fromSeconds(2), [this] { note("late " + atText()); });
  time().after(fromSeconds(0.5), [this] { note("early " + atText()); });
  run(3);
  EXPECT_EQ(takeNotes(), Notes({"early 500 ms", "late 2000 ms"}));
}

TEST_F(VirtualTimeTest, EventsOfOneInstantRunInTheOrderOfQueueing) {
  for (const char* name : {"a", "b", "c", "d", "e"}) noteAfter(1, name);
  run(1);
  EXPECT_EQ(takeNotes(), Notes({"a", "b", "c", "d", "e"}));
}

TEST_F(VirtualTimeTest, OfTwoEventsOfOneInstantTheOneQueuedFirstRunsFirstThoughQueuedFromAfar) {
  noteAfter(1, "first");
  time().after(fromSeconds(0.5), [this] { noteAfter(0.5, "second"); });
  noteAfter(1, "between");
  run(1);
  EXPECT_EQ(takeNotes(), Notes({"first", "between", "second"}));
}

TEST_F(VirtualTimeTest, AnEventDueAtTheEndOfARunBelongsToIt) {
  noteAfter(1, "due");
  run(1);
  EXPECT_EQ(takeNotes(), Notes({"due"}));
}

TEST_F(VirtualTimeTest, AnEventDueLaterWaitsForALaterRun) {
  noteAfter(1, "due");
  run(0.999);
  EXPECT_EQ(takeNotes(), Notes());
  run(0.001);
  EXPECT_EQ(takeNotes(), Notes({"due"}));
}

TEST_F(VirtualTimeTest, WhatAnEventQueuesForNowRunsInTheSameRun) {
  time().after(fromSeconds(1), [this] {
    noteAfter(0, "queued");
    note("queueing");
  });
  run(1);
  EXPECT_EQ(takeNotes(), Notes({"queueing", "queued"}));
}

TEST_F(VirtualTimeTest, ANegativeDelayIsNow) {
  run(5);
  time().after(fromSeconds(-3), [this] { note(atText()); });
  run(0);
  EXPECT_EQ(takeNotes(), Notes({"5000 ms"}));
}

TEST_F(VirtualTimeTest, ARunEndsInTheMiddleOfAHandlerThatWaitsAndTheNextGoesOnThere) {
  inProgram([this] {
    wait(2);
    note("went on " + atText());
  });
  run(1);
  EXPECT_EQ(depth(), 1);
  EXPECT_EQ(at(), 1);
  EXPECT_EQ(takeNotes(), Notes());
  run(0.5);
  EXPECT_EQ(depth(), 1);
  run(0.5);
  EXPECT_EQ(depth(), 0);
  EXPECT_EQ(takeNotes(), Notes({"went on 2000 ms"}));
}

TEST_F(VirtualTimeTest, EventsRunOnTopOfAHandlerThatWaits) {
  inProgram([this] {
    wait(2);
    note("waited");
  });
  noteAfter(1, "meanwhile");
  run(1.5);
  noteAfter(0.25, "asked for between the runs");
  run(1);
  EXPECT_EQ(takeNotes(), Notes({"meanwhile", "asked for between the runs", "waited"}));
}

TEST_F(VirtualTimeTest, APassWithoutAnythingWaitingSleepsUntilItsTime) {
  inProgram([this] {
    time().pass(time().now() + std::chrono::seconds(3));
    note(atText());
  });
  run(10);
  EXPECT_EQ(takeNotes(), Notes({"3000 ms"}));
}

TEST_F(VirtualTimeTest, APassThatFindsEventsDoesNotSleep) {
  inProgram([this] {
    time().post([this] { note("posted"); });
    time().pass(time().now() + std::chrono::seconds(3));
    note(atText());
  });
  run(10);
  EXPECT_EQ(takeNotes(), Notes({"posted", "0 ms"}));
}

TEST_F(VirtualTimeTest, APassEndsAfterTheFirstInstantAtWhichSomethingHappened) {
  noteAfter(1, "first");
  noteAfter(1, "second");
  noteAfter(2, "third");
  inProgram([this] {
    time().pass(time().now() + std::chrono::seconds(5));
    note(atText());
  });
  run(1.5);
  EXPECT_EQ(takeNotes(), Notes({"first", "second", "1000 ms"}));
}

TEST_F(VirtualTimeTest, APassLeavesWhatComesUpMeanwhileToTheNext) {
  inProgram([this] {
    time().post([this] {
      note("first");
      time().post([this] { note("of the next pass"); });
    });
    time().pass();
    note("pass done");
    time().pass();
  });
  run(0);
  EXPECT_EQ(takeNotes(), Notes({"first", "pass done", "of the next pass"}));
}

TEST_F(VirtualTimeTest, ASourceThatNeverRestsDoesNotKeepAWaitingHandlerFromItsTurn) {
  int left = 1000;
  std::function<void()> again = [&] {
    if (--left > 0) time().post(again);
  };
  time().post(again);
  inProgram([&] {
    time().pass();
    note(left > 900 ? "early" : "late");
  });
  run(0);
  EXPECT_EQ(takeNotes(), Notes({"early"}));
  EXPECT_EQ(left, 0);
}

TEST_F(VirtualTimeTest, APassOnTopOfAPassEndsFirst) {
  inProgram([this] {
    wait(1);
    note("outer " + atText());
  });
  inProgram([this] {
    wait(3);
    note("inner " + atText());
  });
  run(5);
  EXPECT_EQ(takeNotes(), Notes({"inner 3000 ms", "outer 3000 ms"}));
}

TEST_F(VirtualTimeTest, ARepetitionComesAtEachMultipleUntilItsObjectGoes) {
  auto repetition = time().every(std::chrono::milliseconds(400), [this] { note(atText()); });
  run(1);
  repetition.reset();
  run(5);
  EXPECT_EQ(takeNotes(), Notes({"400 ms", "800 ms"}));
}

TEST_F(VirtualTimeTest, ARepetitionMayEndItself) {
  std::unique_ptr<Repetition> repetition;
  repetition = time().every(std::chrono::milliseconds(400), [&] {
    note(atText());
    repetition.reset();
  });
  run(5);
  EXPECT_EQ(takeNotes(), Notes({"400 ms"}));
}

TEST_F(VirtualTimeTest, ARepetitionKeepsItsMultiplesWhenItsEventWaits) {
  auto repetition = time().every(std::chrono::milliseconds(400), [this] {
    note(atText());
    if (at() < 0.5) wait(1);
  });
  run(1.7);
  EXPECT_EQ(takeNotes(), Notes({"400 ms", "800 ms", "1200 ms", "1600 ms"}));
}

class SettleTest : public VirtualTimeTest {};

TEST_F(SettleTest, EndsAtOnceWhenNothingIsQueued) {
  settle();
  EXPECT_EQ(at(), 0);
}

TEST_F(SettleTest, EndsWithTheLastEventAndTheLastHandler) {
  noteAfter(3, "event");
  inProgram([this] { wait(5); });
  settle();
  EXPECT_EQ(at(), 5);
  EXPECT_EQ(depth(), 0);
  EXPECT_EQ(takeNotes(), Notes({"event"}));
}

TEST_F(SettleTest, EventsDueLaterCount) {
  noteAfter(30, "event");
  settle();
  EXPECT_EQ(at(), 30);
  EXPECT_EQ(takeNotes(), Notes({"event"}));
}

TEST_F(SettleTest, EventsThatEventsQueueCountToo) {
  time().after(fromSeconds(1), [this] { noteAfter(1, "later"); });
  settle();
  EXPECT_EQ(at(), 2);
  EXPECT_EQ(takeNotes(), Notes({"later"}));
}

TEST_F(SettleTest, ATimersNextTickDoesNotCountButItsRunningHandlerDoes) {
  auto repetition = time().every(std::chrono::seconds(1), [this] {
    note(atText());
    if (at() < 1.5) machine().handlers().run([this] { wait(4); });
  });
  settle();
  EXPECT_EQ(at(), 0);
  run(1);
  EXPECT_EQ(depth(), 1);
  settle();
  EXPECT_EQ(at(), 5);
  EXPECT_EQ(depth(), 0);
}

TEST_F(SettleTest, TicksThatComeDueMeanwhileAreRun) {
  auto repetition = time().every(std::chrono::seconds(1), [this] { note(atText()); });
  noteAfter(2.5, "event");
  settle();
  EXPECT_EQ(takeNotes(), Notes({"1000 ms", "2000 ms", "event"}));
}

TEST_F(SettleTest, EndsAtItsLimitWithHandlersStillWaiting) {
  inProgram([this] { wait(100); });
  settle(10);
  EXPECT_EQ(at(), 10);
  EXPECT_EQ(depth(), 1);
  settle(200);
  EXPECT_EQ(at(), 100);
}

TEST_F(SettleTest, AnEventAfterTheLimitIsLeft) {
  noteAfter(11, "event");
  settle(10);
  EXPECT_EQ(at(), 10);
  EXPECT_EQ(takeNotes(), Notes());
  settle(10);
  EXPECT_EQ(at(), 11);
  EXPECT_EQ(takeNotes(), Notes({"event"}));
}

class ProgramsEndTest : public VirtualTimeTest {};

TEST_F(ProgramsEndTest, TimeStandsStillFromThenOn) {
  inProgram([this] { platform().program.end(); }, 1);
  noteAfter(2, "event");
  run(5);
  EXPECT_TRUE(ended());
  EXPECT_EQ(at(), 1);
  run(5);
  settle();
  EXPECT_EQ(at(), 1);
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(ProgramsEndTest, UnwindsTheHandlersThatWait) {
  struct Guard {
    std::function<void()> end;
    ~Guard() { end(); }
  };
  inProgram([this] {
    const Guard guard{[this] { note("unwound"); }};
    wait(10);
    note("went on");
  });
  inProgram([this] { platform().program.end(); }, 1);
  run(5);
  EXPECT_EQ(takeNotes(), Notes({"unwound"}));
  EXPECT_EQ(depth(), 0);
}

TEST_F(ProgramsEndTest, AbandoningUnwindsTheHandlersThatWaitToo) {
  struct Guard {
    std::function<void()> end;
    ~Guard() { end(); }
  };
  for (int handler = 0; handler < 3; ++handler) {
    inProgram([this] {
      const Guard guard{[this] { note("unwound"); }};
      wait(10);
    });
  }
  run(1);
  EXPECT_EQ(depth(), 3);
  time().abandon();
  EXPECT_TRUE(ended());
  EXPECT_EQ(depth(), 0);
  EXPECT_EQ(takeNotes(), Notes({"unwound", "unwound", "unwound"}));
  time().abandon();
  EXPECT_TRUE(ended());
}

TEST_F(ProgramsEndTest, AProgramThatNeverBeganCanBeAbandoned) {
  noteAfter(0, "event");
  time().abandon();
  EXPECT_EQ(takeNotes(), Notes());
}

TEST(SideStack, OwnerAndBodyTakeTurns) {
  std::string turns;
  SideStack* self = nullptr;
  SideStack stack([&] {
    turns += "b";
    self->yield();
    turns += "d";
  });
  self = &stack;
  EXPECT_FALSE(stack.hasBegun());
  turns += "a";
  stack.resume();
  EXPECT_TRUE(stack.hasBegun());
  EXPECT_FALSE(stack.hasEnded());
  turns += "c";
  stack.resume();
  EXPECT_TRUE(stack.hasEnded());
  turns += "e";
  stack.resume();
  EXPECT_EQ(turns, "abcde");
}

TEST(SideStack, ABodyThatNeverHadATurnDoesNotRun) {
  bool ran = false;
  {
    SideStack stack([&] { ran = true; });
  }
  EXPECT_FALSE(ran);
}

}  // namespace
}  // namespace gsm
