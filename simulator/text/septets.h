#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gsm::simulator {

// How many octets so many codes of seven bits fill, the last one perhaps in part.
constexpr std::size_t octetsFor(std::size_t septets) { return (septets * 7 + 7) / 8; }

// Codes of seven bits, one in each byte of `codes`, as octets: the first code in the lowest bits,
// none left unused but at the end, where they are 0. An eighth bit is cut off.
std::string packed(std::string_view codes);

// The first `count` codes in the octets; those that they have no bits for are left out.
std::string unpacked(std::string_view octets, std::size_t count);

}  // namespace gsm::simulator
