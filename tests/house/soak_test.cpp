// A user, a modem and a machine that do anything at all, for a week on the panel's clock.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <string>

#include "fuzz/player/panel_player.h"
#include "tests/support/seed.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;

void soak(std::uint32_t seed, Duration time) {
  const TemporaryFolder folder;
  RandomDecisions decisions(seed);
  PanelPlayer player(folder.path(), decisions);
  int steps = 0;
  while (player.played() < time && player.problem().empty()) {
    player.step(decisions);
    if (++steps % 500 == 0) player.rest();
  }
  if (player.problem().empty()) player.rest();
  EXPECT_EQ(player.problem(), "") << "after " << steps << " steps, " << player.starts()
                                  << " starts and " << toSeconds(player.played())
                                  << " seconds of the panel; GSM_TEST_SEED=" << seed;
  EXPECT_GT(steps, 100);
}

class Soak : public ::testing::TestWithParam<std::uint32_t> {};

TEST_P(Soak, OfAWeekHoldsWhatMustHold) { soak(GetParam(), 7 * 24h); }

INSTANTIATE_TEST_SUITE_P(Of, Soak, ::testing::Range(1u, 9u));

// Each run another one. The seed is printed; GSM_TEST_SEED takes it back.
TEST(SoakAtRandom, OfAWeekHoldsWhatMustHold) { soak(newSeed(), 7 * 24h); }

// What the user never gets to isn't tried out.
TEST(SoakOfShortRuns, GetsSomethingDoneInEveryWindow) {
  std::map<std::string, int> deeds;
  const auto isMissing = [&deeds](const char* window) { return deeds[window] < 10; };
  constexpr std::array kWindows = {"Form1",  "Form2",  "Form3",  "Form4",  "Form6",      "Form7",
                                   "Form8",  "Form9",  "Form10", "Form12", "Form14",     "Form15",
                                   "Form16", "Form17", "Form18", "Form19", "frmSettings"};
  constexpr std::uint32_t kMostSeeds = 100;
  for (std::uint32_t seed = 1; seed <= kMostSeeds; ++seed) {
    const TemporaryFolder folder;
    RandomDecisions decisions(seed);
    PanelPlayer player(folder.path(), decisions);
    for (int steps = 0; steps < 2000; ++steps) player.step(decisions);
    for (const auto& [window, count] : player.deeds()) deeds[window] += count;
    if (std::none_of(kWindows.begin(), kWindows.end(), isMissing)) return;
  }
  for (const char* window : kWindows) EXPECT_FALSE(isMissing(window)) << window;
}

}  // namespace
}  // namespace gsm
