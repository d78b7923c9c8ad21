#include "platform/handler_stack.h"

#include <limits>
#include <new>

#include "tests/support/platform_fixture.h"

namespace gsm {
namespace {

class HandlerStackTest : public PlatformTest {
 protected:
  HandlerStack& handlers() { return machine().handlers(); }

  /// Runs `action` on top of so many handlers that `depth` are on the stack with its own.
  void atDepth(int depth, const std::function<void()>& action) {
    handlers().run([&] {
      if (handlers().depth() < depth) {
        atDepth(depth, action);
      } else {
        action();
      }
    });
  }
};

TEST_F(HandlerStackTest, CountsTheHandlersThatHaveBegunAndNotEnded) {
  EXPECT_EQ(depth(), 0);
  handlers().run([this] {
    EXPECT_EQ(depth(), 1);
    handlers().run([this] { EXPECT_EQ(depth(), 2); });
    EXPECT_EQ(depth(), 1);
  });
  EXPECT_EQ(depth(), 0);
}

TEST_F(HandlerStackTest, HandlersThatWaitStandOnOneAnother) {
  inProgram([this] {
    wait(3);
    note("first");
  });
  inProgram(
      [this] {
        wait(1);
        note("second");
      },
      1);
  run(1.5);
  EXPECT_EQ(depth(), 2);
  run(1);
  EXPECT_EQ(depth(), 1);
  settle();
  EXPECT_EQ(depth(), 0);
  EXPECT_EQ(takeNotes(), Notes({"second", "first"}));
}

TEST_F(HandlerStackTest, TheOlderHandlerGoesOnOnlyAfterTheYoungerHasEnded) {
  inProgram([this] {
    wait(1);
    note("older at " + std::to_string(static_cast<int>(at())));
  });
  inProgram([this] { wait(5); });
  settle();
  EXPECT_EQ(takeNotes(), Notes({"older at 5"}));
}

TEST_F(HandlerStackTest, AnUntrappedFailureIsShownAndEndsTheProgram) {
  now([this] {
    note("begun");
    throw RuntimeFailure(13, "Type mismatch");
  });
  EXPECT_TRUE(ended());
  EXPECT_EQ(depth(), 0);
  const auto boxes = machine().boxes.takeShown();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "Type mismatch");
  EXPECT_EQ(boxes[0].title, "GSM-APPLICATION");
  EXPECT_EQ(boxes[0].icon, BoxIcon::none);
}

TEST_F(HandlerStackTest, AnUntrappedFailureEndsTheHandlersUnderneathToo) {
  inProgram([this] {
    wait(2);
    note("went on");
  });
  inProgram([] { throw failure::overflow(); }, 1);
  run(5);
  EXPECT_TRUE(ended());
  EXPECT_EQ(at(), 1);
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(HandlerStackTest, TheBoxOfAFailureWaitsForTheUserBeforeTheEnd) {
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  now([] { throw failure::overflow(); });
  run(5);
  EXPECT_FALSE(ended());
  EXPECT_EQ(depth(), 1);
  time().after(fromSeconds(0), [this] { machine().boxes.answerTop(); });
  run(0);
  EXPECT_TRUE(ended());
}

TEST_F(HandlerStackTest, NoTrapCatchesTheEndOfTheProgram) {
  now([this] {
    try {
      platform().program.end();
    } catch (const std::exception&) {
      note("caught");
    }
    note("went on");
  });
  EXPECT_TRUE(ended());
  EXPECT_EQ(takeNotes(), Notes());
}

// The system has no way to give so much, however much memory it has.
std::string unthinkablyLong() {
  const volatile auto size = static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max());
  return std::string(size / 2, 'x');
}

TEST_F(HandlerStackTest, WantOfMemoryIsAFailureThatAHandlerTraps) {
#if defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "the sanitizer ends the program itself";
#endif
  now([this] {
    try {
      note(unthinkablyLong());
    } catch (const RuntimeFailure& failure) {
      note(std::to_string(failure.number()) + " " + failure.description());
    }
  });
  EXPECT_FALSE(ended());
  EXPECT_EQ(takeNotes(), Notes({"7 Out of memory"}));
}

TEST_F(HandlerStackTest, WantOfMemoryThatNobodyTrapsIsShownAndEndsTheProgram) {
  // By way of the run-time, and by a library's own.
  const std::function<void()> wants[] = {[] { throw failure::outOfMemory(); },
                                         [] { throw std::bad_alloc(); }};
  for (const auto& want : wants) {
    HeadlessPlatform machine(folder().path(), {2026, 3, 1, 10, 0, 0});
    machine.time.post([&] { machine.handlers().run(want); });
    machine.time.run(fromSeconds(0));
    EXPECT_TRUE(machine.time.hasEnded());
    const auto boxes = machine.boxes.takeShown();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Out of memory");
  }
}

TEST_F(HandlerStackTest, IsFullAtTwoHundred) {
  atDepth(199, [this] { EXPECT_FALSE(handlers().isFull()); });
  atDepth(200, [this] {
    EXPECT_TRUE(handlers().isFull());
    EXPECT_EQ(handlers().depth(), 200);
  });
  EXPECT_FALSE(handlers().isFull());
}

TEST_F(HandlerStackTest, IsStuckOnceSixteenHaveBeenOnItForTenSeconds) {
  inProgram([this] {
    atDepth(16, [this] {
      EXPECT_FALSE(handlers().isStuck());
      wait(9.9);
      EXPECT_FALSE(handlers().isStuck());
      wait(0.1);
      EXPECT_TRUE(handlers().isStuck());
      atDepth(20, [this] { EXPECT_TRUE(handlers().isStuck()); });
      EXPECT_TRUE(handlers().isStuck());
    });
    EXPECT_FALSE(handlers().isStuck());
    EXPECT_EQ(at(), 10);
  });
  settle();
  EXPECT_FALSE(handlers().isStuck());
}

TEST_F(HandlerStackTest, FifteenHandlersMayWaitForAsLongAsTheyLike) {
  inProgram([this] {
    atDepth(15, [this] {
      wait(3600);
      EXPECT_FALSE(handlers().isStuck());
    });
  });
  settle(7200);
}

TEST_F(HandlerStackTest, TheTenSecondsBeginAnewEachTimeThatTheStackGrowsToSixteen) {
  inProgram([this] {
    atDepth(15, [this] {
      for (int round = 0; round < 3; ++round) {
        atDepth(16, [this] {
          wait(6);
          EXPECT_FALSE(handlers().isStuck());
        });
      }
    });
  });
  settle();
  EXPECT_EQ(at(), 18);
}

TEST_F(HandlerStackTest, ReliefComesWhenTheStackShrinksBelowSixteenAfterTenSeconds) {
  handlers().onRelief([this] { note("relief at " + std::to_string(depth())); });
  inProgram([this] { atDepth(18, [this] { wait(9); }); });
  settle();
  EXPECT_EQ(takeNotes(), Notes());
  inProgram([this] { atDepth(18, [this] { wait(10); }); });
  settle();
  EXPECT_EQ(takeNotes(), Notes({"relief at 15"}));
}

TEST_F(HandlerStackTest, AFullStackStillTakesHandlers) {
  atDepth(203, [this] { note(std::to_string(depth())); });
  EXPECT_EQ(takeNotes(), Notes({"203"}));
}

TEST_F(HandlerStackTest, ReliefComesOnceWhenTheStackShrinksFromFull) {
  handlers().onRelief([this] { note("relief at " + std::to_string(depth())); });
  atDepth(199, [] {});
  EXPECT_EQ(takeNotes(), Notes());
  atDepth(203, [] {});
  EXPECT_EQ(takeNotes(), Notes({"relief at 199"}));
  atDepth(200, [] {});
  EXPECT_EQ(takeNotes(), Notes({"relief at 199"}));
}

}  // namespace
}  // namespace gsm
