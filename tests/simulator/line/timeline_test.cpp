#include "simulator/line/timeline.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(GuardedTimeline, RunsItsActionsWhileItLives) {
  VirtualTimeline time;
  GuardedTimeline guarded(time);
  int runs = 0;
  guarded.after(milliseconds(5), [&] { ++runs; });
  time.advance(milliseconds(4));
  EXPECT_EQ(runs, 0);
  time.advance(milliseconds(1));
  EXPECT_EQ(runs, 1);
}

TEST(GuardedTimeline, DropsThemWhenItGoes) {
  VirtualTimeline time;
  auto guarded = std::make_unique<GuardedTimeline>(time);
  int runs = 0;
  guarded->after(milliseconds(5), [&] { ++runs; });
  guarded.reset();
  time.advance(seconds(1));
  EXPECT_EQ(runs, 0);
}

TEST(GuardedTimeline, DropsOnlyWhatWasPendingWhenCancelled) {
  VirtualTimeline time;
  GuardedTimeline guarded(time);
  std::string runs;
  guarded.after(milliseconds(5), [&] { runs += 'a'; });
  guarded.cancelAll();
  guarded.after(milliseconds(5), [&] { runs += 'b'; });
  time.advance(seconds(1));
  EXPECT_EQ(runs, "b");
}

TEST(Modem, MayGoWhileItsReplyIsPending) {
  VirtualTimeline time;
  MemoryProfileStore store;
  std::string received;
  std::optional<Modem> modem;
  modem.emplace(time, store,
                Surroundings{.toHost = [&](std::string_view chunk) { received += chunk; }},
                ModemOptions{.speed = 9600, .sim = SimStatus::kPinWanted});
  modem->hostWrites("AT+CPIN=1234\r", 9600);
  time.advance(milliseconds(20));
  modem.reset();
  time.advance(seconds(10));
  EXPECT_EQ(received, "AT+CPIN=1234\r");
}

}  // namespace
}  // namespace gsm::simulator
