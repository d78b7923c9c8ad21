#include "simulator/character_set.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace gsm::simulator {

namespace {

// A byte of the factory's character set that has another code in the GSM alphabet, or two.
struct Letter {
  char byte;
  std::string_view codes;
};

constexpr std::array kLetters = {
    Letter{'@', {"\x00", 1}}, Letter{'$', "\x02"},    Letter{'_', "\x11"},
    Letter{'[', "\x1B<"},     Letter{'\\', "\x1B/"},  Letter{']', "\x1B>"},
    Letter{'^', "\x1B\x14"},  Letter{'{', "\x1B("},   Letter{'|', "\x1B@"},
    Letter{'}', "\x1B)"},     Letter{'~', "\x1B="},   Letter{'\x82', "\x05"},
    Letter{'\x8A', "\x04"},   Letter{'\x85', "\x7F"}, Letter{'\x84', "\x7B"},
    Letter{'\x94', "\x7C"},   Letter{'\x81', "\x7E"}, Letter{'\x8E', "\x5B"},
    Letter{'\x99', "\x5C"},   Letter{'\x9A', "\x5E"}, Letter{'\xE1', "\x1E"},
};

std::string codesOf(char byte) {
  for (const Letter& letter : kLetters) {
    if (letter.byte == byte) return std::string(letter.codes);
  }
  return {byte};
}

// The byte that stands first in `codes`, which loses what it took.
char takeByte(std::string_view& codes) {
  for (const Letter& letter : kLetters) {
    if (!codes.starts_with(letter.codes)) continue;
    codes.remove_prefix(letter.codes.size());
    return letter.byte;
  }
  const char byte = codes.front();
  codes.remove_prefix(1);
  return byte;
}

std::optional<std::string> fromHexadecimal(std::string_view digits) {
  std::string bytes;
  for (; digits.size() >= 2; digits.remove_prefix(2)) {
    unsigned char byte = 0;
    const auto [stop, failure] = std::from_chars(digits.data(), digits.data() + 2, byte, 16);
    if (failure != std::errc() || stop != digits.data() + 2) return std::nullopt;
    bytes += static_cast<char>(byte);
  }
  return digits.empty() ? std::optional(bytes) : std::nullopt;
}

}  // namespace

std::string encoded(std::string_view text, int set) {
  if (set != kHexadecimalSet) return std::string(text);
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string digits;
  for (const char byte : text) {
    for (const char code : codesOf(byte)) {
      digits += kDigits[static_cast<unsigned char>(code) / 16];
      digits += kDigits[static_cast<unsigned char>(code) % 16];
    }
  }
  return digits;
}

std::optional<std::string> decoded(std::string_view text, int set) {
  if (set != kHexadecimalSet) return std::string(text);
  const auto bytes = fromHexadecimal(text);
  if (!bytes) return std::nullopt;
  std::string meant;
  for (std::string_view codes = *bytes; !codes.empty();) meant += takeByte(codes);
  return meant;
}

}  // namespace gsm::simulator
