// A user, a modem and a machine that do anything at all, for a week on the panel's clock.

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

#include "fuzz/player/panel_player.h"
#include "tests/support/seed.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;

// The phone book waits for the disk at every change. In memory there is nothing to wait for.
void keepFoldersInMemory() {
  constexpr const char* kMemory = "/dev/shm";
  if (access(kMemory, W_OK) == 0) setenv("TMPDIR", kMemory, /*replace=*/0);
}

void soak(std::uint32_t seed, Duration time) {
  keepFoldersInMemory();
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

}  // namespace
}  // namespace gsm
