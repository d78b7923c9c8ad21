// A week of all windows, against the rules of the phone book's book-keeping, what the modem has
// been told before and what its console reports.

#include <gtest/gtest.h>

#include "tests/support/days.h"
#include "tests/support/seed.h"
#include "tests/together/simulated_week.h"

namespace gsm {
namespace {

class Week : public SimulatedWeek {
 protected:
  struct Life {
    int days = 7;
    int deedsAtLeast = 200;
    int entriesOnCard = 0;  // none: those of a new card
  };
  void live(std::uint32_t seed, const Life& life) {
    begin(seed, life.entriesOnCard);
    compareBook();
    int deeds = 0;
    std::string deed = "opens the calls";
    while (days() < life.days && !HasFailure()) {
      letTimePass();
      deed = doSomething();
      compareBook();
      compareWindows();
      ++deeds;
      ASSERT_FALSE(ended());
    }
    ASSERT_FALSE(HasFailure()) << "deed " << deeds << ", the user " << deed << ", " << now()
                               << " s from the start; GSM_TEST_SEED=" << seed;
    EXPECT_GT(deeds, life.deedsAtLeast);
    reload();
    compareBook();
    reopenCalls();
    compareBook();
    comeToRest();
    compareBook();
  }
};

class SeededWeek : public Week, public ::testing::WithParamInterface<std::uint32_t> {};

TEST_P(SeededWeek, KeepsTheBookAsToldAndTakesThePromptDown) { live(GetParam(), {}); }

INSTANTIATE_TEST_SUITE_P(Of, SeededWeek, ::testing::Range(1u, 7u));

// A card that has room for one more; its downloads are long.
TEST_F(Week, BeginningWithACardThatGetsFullKeepsTheBookAsTold) {
  live(1, {.days = 2, .deedsAtLeast = 50, .entriesOnCard = 249});
}

// Each run another one. The seed is printed; GSM_TEST_SEED takes it back. GSM_TEST_DAYS lets it
// last longer.
TEST_F(Week, AtRandomKeepsTheBookAsToldAndTakesThePromptDown) {
  const int days = daysToSimulate();
  live(newSeed(), {.days = days, .deedsAtLeast = 28 * days});
}

}  // namespace
}  // namespace gsm
