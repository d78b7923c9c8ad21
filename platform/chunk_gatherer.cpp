#include "platform/chunk_gatherer.h"

#include <algorithm>
#include <utility>

namespace gsm {
namespace {

constexpr double kQuietCharacters = 3.5;
// Adapters hand over what they have each 16 ms or so, however fast the line is.
constexpr Duration kLeastQuiet = std::chrono::milliseconds(20);

double bitsPerCharacter(const LineSettings& line) {
  constexpr int kStartBit = 1;
  const int parityBit = line.parity == Parity::none ? 0 : 1;
  const double stopBits = line.stopBits == StopBits::one   ? 1
                          : line.stopBits == StopBits::two ? 2
                                                           : 1.5;
  return kStartBit + line.dataBits + parityBit + stopBits;
}

}  // namespace

void ChunkGatherer::setLine(const LineSettings& line) {
  quiet_ = std::max(kLeastQuiet, fromSeconds(kQuietCharacters * bitsPerCharacter(line) /
                                             static_cast<double>(line.baud)));
}

void ChunkGatherer::add(std::string_view bytes, Instant now) {
  bytes_ += bytes;
  lastCame_ = now;
}

std::optional<Instant> ChunkGatherer::end() const {
  if (bytes_.empty()) return std::nullopt;
  return bytes_.size() >= kFull ? lastCame_ : lastCame_ + quiet_;
}

std::string ChunkGatherer::take() { return std::exchange(bytes_, {}); }

}  // namespace gsm
