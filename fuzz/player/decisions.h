#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <string>

namespace gsm {

/// Where a player's decisions come from: a row of bytes, each good for one.
class Decisions {
 public:
  virtual ~Decisions() = default;

  /// Whether no byte is left.
  virtual bool usedUp() const = 0;

  /// The next byte; 0 when none is left.
  virtual std::uint8_t next() = 0;

  /// One of the numbers 0 to `count` - 1; `count` is above zero.
  std::size_t below(std::size_t count) {
    const std::size_t high = next();
    return (high << 8 | next()) % count;
  }

  /// Up to `most` bytes, which may be any.
  std::string text(std::size_t most) {
    std::string bytes(below(most + 1), '\0');
    for (char& byte : bytes) byte = static_cast<char>(next());
    return bytes;
  }
};

/// Decisions written down.
class WrittenDecisions : public Decisions {
 public:
  explicit WrittenDecisions(std::span<const std::uint8_t> bytes) : left_(bytes) {}

  bool usedUp() const override { return left_.empty(); }
  std::uint8_t next() override {
    if (left_.empty()) return 0;
    const std::uint8_t byte = left_.front();
    left_ = left_.subspan(1);
    return byte;
  }

 private:
  std::span<const std::uint8_t> left_;
};

/// Decisions at random, the same for the same seed, without an end.
class RandomDecisions : public Decisions {
 public:
  explicit RandomDecisions(std::uint32_t seed) : random_(seed) {}

  bool usedUp() const override { return false; }
  std::uint8_t next() override { return static_cast<std::uint8_t>(random_() >> 24); }

 private:
  std::mt19937 random_;
};

}  // namespace gsm
