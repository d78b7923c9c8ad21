#include "simulator/text/character_set.h"

#include <array>

#include "simulator/text/hexadecimal.h"

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
    Letter{'}', "\x1B)"},     Letter{'~', "\x1B="},   Letter{'\x9C', "\x01"},
    Letter{'\x9D', "\x03"},   Letter{'\x8A', "\x04"}, Letter{'\x82', "\x05"},
    Letter{'\x97', "\x06"},   Letter{'\x8D', "\x07"}, Letter{'\x95', "\x08"},
    Letter{'\x80', "\x09"},   Letter{'\x8F', "\x0E"}, Letter{'\x86', "\x0F"},
    Letter{'\xE8', "\x12"},   Letter{'\xE2', "\x13"}, Letter{'\xEA', "\x15"},
    Letter{'\xE4', "\x18"},   Letter{'\xE9', "\x19"}, Letter{'\x92', "\x1C"},
    Letter{'\x91', "\x1D"},   Letter{'\xE1', "\x1E"}, Letter{'\x90', "\x1F"},
    Letter{'\x8E', "\x5B"},   Letter{'\x99', "\x5C"}, Letter{'\xA5', "\x5D"},
    Letter{'\x9A', "\x5E"},   Letter{'\x84', "\x7B"}, Letter{'\x94', "\x7C"},
    Letter{'\xA4', "\x7D"},   Letter{'\x81', "\x7E"}, Letter{'\x85', "\x7F"},
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

}  // namespace

std::string toGsmAlphabet(std::string_view text) {
  std::string codes;
  for (const char byte : text) codes += codesOf(byte);
  return codes;
}

std::string fromGsmAlphabet(std::string_view codes) {
  std::string text;
  while (!codes.empty()) text += takeByte(codes);
  return text;
}

std::string encoded(std::string_view text, int set) {
  return set == kHexadecimalSet ? toHexadecimal(toGsmAlphabet(text)) : std::string(text);
}

std::optional<std::string> decoded(std::string_view text, int set) {
  if (set != kHexadecimalSet) return std::string(text);
  const auto codes = fromHexadecimal(text);
  return codes ? std::optional(fromGsmAlphabet(*codes)) : std::nullopt;
}

}  // namespace gsm::simulator
