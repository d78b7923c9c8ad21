#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/line/transmission.h"

namespace gsm::simulator {

// How a transmission falls into the pieces that the host reads.
class Cutter {
 public:
  // In one piece.
  static Cutter whole() { return Cutter(Mode::kWhole, 0); }

  // As a modem at a serial port does it: the carriage return and the line feed before a text come
  // on their own, the text with its carriage return follows once the modem has put it together.
  static Cutter real() { return Cutter(Mode::kReal, 0); }

  // In pieces of `size` bytes, at least 1, whatever they hold.
  static Cutter every(std::size_t size) { return Cutter(Mode::kEvery, size); }

  // "whole", "real" or a number of bytes above zero; nothing for any other text.
  static std::optional<Cutter> parse(std::string_view text);

  std::vector<Chunk> cut(const std::string& bytes) const;

  // The text that `parse` reads.
  std::string name() const;

 private:
  enum class Mode { kWhole, kReal, kEvery };
  Cutter(Mode mode, std::size_t size) : mode_(mode), size_(size) {}

  Mode mode_;
  std::size_t size_;
};

}  // namespace gsm::simulator
