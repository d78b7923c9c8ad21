#include "simulator/text/septets.h"

namespace gsm::simulator {

namespace {

// Takes the bits of `units`, `from` of each, and gives them out again `to` at a time. Bits that are
// left over at the end are dropped.
std::string regrouped(std::string_view units, unsigned from, unsigned to) {
  std::string result;
  unsigned bits = 0;
  unsigned held = 0;
  for (const char unit : units) {
    bits |= (static_cast<unsigned char>(unit) & ((1u << from) - 1)) << held;
    for (held += from; held >= to; held -= to) {
      result += static_cast<char>(bits & ((1u << to) - 1));
      bits >>= to;
    }
  }
  return result;
}

}  // namespace

std::string packed(std::string_view codes) {
  // One more code of zeros has the bits that fill the last octet.
  std::string octets = regrouped(std::string(codes) + '\0', 7, 8);
  octets.resize(octetsFor(codes.size()));
  return octets;
}

std::string unpacked(std::string_view octets, std::size_t count) {
  return regrouped(octets, 8, 7).substr(0, count);
}

}  // namespace gsm::simulator
