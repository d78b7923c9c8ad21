// A user, a modem and a machine that do anything at all, day after day, with several starts of the
// program on each: a week, or as many days as GSM_TEST_DAYS says.

#include <gtest/gtest.h>

#include <iostream>

#include "fuzz/player/panel_player.h"
#include "tests/support/days.h"
#include "tests/support/seed.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;

constexpr Duration kDay = 24h;

void tell(const PanelPlayer& player, int steps) {
  std::cout << steps << " steps, " << player.starts() << " starts, the longest transcript "
            << player.longestTranscript() << " characters; done in the windows:";
  for (const auto& [window, count] : player.deeds()) std::cout << " " << window << " " << count;
  std::cout << std::endl;
}

// The program is at rest each night, or has ended.
TEST(ManyDays, WithSeveralStartsEachHoldWhatMustHold) {
  const std::uint32_t seed = newSeed();
  const int days = daysToSimulate();
  const TemporaryFolder folder;
  RandomDecisions decisions(seed);
  PanelPlayer player(folder.path(), decisions);
  int steps = 0;
  for (int day = 0; day < days && player.problem().empty(); ++day) {
    const int starts = 2 + static_cast<int>(decisions.below(3));
    for (int start = 1; start <= starts; ++start) {
      if (start > 1) player.startAnew(decisions);
      const Duration end = day * kDay + start * kDay / starts;
      for (; player.played() < end && player.problem().empty(); ++steps) player.step(decisions);
    }
    if (player.problem().empty()) player.rest();
  }
  tell(player, steps);
  EXPECT_EQ(player.problem(), "") << "after " << toSeconds(player.played())
                                  << " seconds of the panel; GSM_TEST_SEED=" << seed;
  EXPECT_GE(player.played(), days * kDay);
  EXPECT_GE(player.starts(), 2 * days);
}

}  // namespace
}  // namespace gsm
