#include <gtest/gtest.h>

#include <random>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(CallConsole, RefusesWhatHasNoCallToItAndChangesNothing) {
  Bench bench;
  const std::pair<const char*, const char*> kRefusals[] = {
      {"wait 0123", "error: a caller waits only while there is one call, answered"},
      {"giveup", "error: nobody is calling"},
      {"giveup silent", "error: nobody is calling"},
      {"answer", "error: the modem isn't calling anybody"},
      {"busy", "error: the modem isn't calling anybody"},
      {"hangup", "error: there is no call to end"},
  };
  for (const auto& [line, answer] : kRefusals) EXPECT_EQ(bench.modem.console(line), answer) << line;
  EXPECT_EQ(bench.listen(seconds(20)), "");
}

TEST(CallConsole, RefusesWhatIsNoCaller) {
  Bench bench;
  for (const char* bad :
       {"ring", "ring 12x", "ring +", "ring 1 2", "ring 123456789012345678901", "ring Hidden",
        "wait", "wait x", "giveup now", "hangup now", "answer now", "busy now"}) {
    EXPECT_TRUE(bench.modem.console(bad).starts_with("error: ")) << bad;
  }
  EXPECT_EQ(bench.modem.console("ring"), "error: usage: ring NUMBER|hidden");
  EXPECT_EQ(bench.listen(seconds(20)), "");
}

TEST(CallConsole, NobodyReachesAModemWithoutANetwork) {
  Bench bench({.sim = SimStatus::kAbsent});
  EXPECT_EQ(bench.modem.console("ring 0123"), "error: the modem has no network");
}

TEST(CallConsole, OneCallerRings) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("ring 0123"), "");
  EXPECT_EQ(bench.modem.console("ring 0124"),
            "error: there is a call already; 'wait' adds one to it");
  EXPECT_EQ(bench.modem.console("wait 0124"),
            "error: a caller waits only while there is one call, answered");
  EXPECT_EQ(bench.modem.console("hangup"), "error: there is no call to end");
}

TEST(CallConsole, NobodyWaitsWhileTheNetworkTurnsCallersAway) {
  Bench bench;
  bench.askNetwork("AT+CCWA=1,0");
  bench.modem.console("ring 0123");
  bench.ask("ATA");
  EXPECT_EQ(bench.modem.console("wait 0124"), "error: call waiting is switched off");
  bench.askNetwork("AT+CCWA=1,1");
  EXPECT_EQ(bench.modem.console("wait 0124"), "");
}

TEST(CallConsole, StateShowsTheCallsAndTheBook) {
  Bench bench;
  bench.modem.console("ring hidden");
  bench.ask("ATA;+CPBW=1");
  bench.modem.console("wait +33612345678");
  EXPECT_TRUE(bench.modem.console("state").ends_with(
      "\nphone book: 7 of 250\ncalls: 1 active hidden, 2 waiting +33612345678"));
}

// Every mixture of what the host and the console can do leaves a modem that answers.
TEST(CallConsole, BearsAnyOrderOfEvents) {
  constexpr const char* kEvents[] = {
      "ring 0123",  "ring hidden", "wait 0124",   "giveup",     "giveup silent", "answer",
      "busy",       "hangup",      "sim out",     "sim in",     "register 1",    "register 0",
      "silent on",  "silent off",  "ATD1;\r",     "ATD7;\r",    "ATD8;\r",       "ATDL\r",
      "ATA\r",      "ATH\r",       "AT+CLCC\r",   "AT+VTS=1\r", "ATS0=1\r",      "ATS0=0\r",
      "AT+CIND?\r", "AT+CCWA=1\r", "ATD8;\rATH\r"};
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    std::mt19937_64 generator(seed);
    Bench bench;
    for (int step = 0; step < 300; ++step) {
      const std::string event = kEvents[generator() % std::size(kEvents)];
      if (event.ends_with('\r')) {
        bench.modem.hostWrites(event, Bench::kSpeed);
      } else {
        bench.modem.console(event);
      }
      bench.timeline.advance(milliseconds(generator() % 4000));
    }
    bench.modem.console("silent off");
    bench.modem.hostWrites("\rATH\r", Bench::kSpeed);
    bench.timeline.advance(seconds(60));
    EXPECT_EQ(bench.ask("AT+CLCC"), kOk) << "seed " << seed;
    EXPECT_TRUE(bench.modem.console("state").ends_with("\ncalls: none")) << "seed " << seed;
  }
}

}  // namespace
}  // namespace gsm::simulator
