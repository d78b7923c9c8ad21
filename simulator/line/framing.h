#pragma once

#include <array>
#include <cstddef>

namespace gsm::simulator {

// How a character goes over the line: its bits, with start, parity and stop, and how many of them
// are data.
struct Framing {
  int bits = 10;
  int dataBits = 8;
};

// The framings by the codes of AT+ICF. Code 0 follows the host, who is taken to have the usual one.
inline constexpr std::array<Framing, 7> kFramings = {
    {{10, 8}, {11, 8}, {11, 8}, {10, 8}, {10, 7}, {10, 7}, {9, 7}}};

}  // namespace gsm::simulator
