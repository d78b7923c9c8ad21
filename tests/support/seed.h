#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>

namespace gsm {

/// The seed of a random run, printed: that of GSM_TEST_SEED, or a new one each time.
inline std::uint32_t newSeed() {
  const char* const given = std::getenv("GSM_TEST_SEED");
  const auto seed = given != nullptr ? static_cast<std::uint32_t>(std::strtoul(given, nullptr, 10))
                                     : std::random_device{}();
  std::cout << "GSM_TEST_SEED=" << seed << std::endl;
  return seed;
}

}  // namespace gsm
