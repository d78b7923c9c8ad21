#pragma once

#include <cstdint>
#include <random>

namespace gsm::simulator {

// The one source of chance. It draws from the generator by itself, for the distributions of the
// standard library differ between libraries and a seed must repeat a run everywhere.
class Random {
 public:
  explicit Random(std::uint64_t seed) : generator_(seed) {}

  // True in `probability` of all draws, 0 to 1.
  bool happens(double probability) {
    constexpr double kUnit = 0x1p-53;
    return static_cast<double>(generator_() >> 11) * kUnit < probability;
  }

  // A whole number from 0 up to, not including, `bound`.
  unsigned below(unsigned bound) { return static_cast<unsigned>(generator_() % bound); }

 private:
  std::mt19937_64 generator_;
};

}  // namespace gsm::simulator
