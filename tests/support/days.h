#pragma once

#include <cstdlib>

namespace gsm {

/// How many days a long random run lasts: those of GSM_TEST_DAYS, or a week.
inline int daysToSimulate() {
  const char* const given = std::getenv("GSM_TEST_DAYS");
  return given != nullptr ? std::atoi(given) : 7;
}

}  // namespace gsm
