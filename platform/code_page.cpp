#include "platform/code_page.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <optional>

namespace gsm {
namespace {

// Bytes 80 to 9F are what sets the code page apart from Latin-1.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::array<char16_t, 256> makeTable() {
  std::array<char16_t, 256> table{};
  std::iota(table.begin(), table.end(), char16_t{0});
  std::copy(kUpperControls.begin(), kUpperControls.end(), table.begin() + 0x80);
  return table;
}

// Takes one character off `rest`, which isn't empty; nothing, and one byte taken, when it doesn't
// begin with a well-formed one.
std::optional<char32_t> takeCharacter(std::string_view& rest) {
  const auto byte = [&rest](std::size_t i) { return static_cast<std::uint8_t>(rest[i]); };
  const std::uint8_t lead = byte(0);
  std::size_t length = 0;
  char32_t character = 0;
  char32_t least = 0;
  if (lead < 0x80) {
    length = 1, character = lead;
  } else if (lead >= 0xC0 && lead < 0xE0) {
    length = 2, character = lead & 0x1Fu, least = 0x80;
  } else if (lead >= 0xE0 && lead < 0xF0) {
    length = 3, character = lead & 0x0Fu, least = 0x800;
  } else if (lead >= 0xF0 && lead < 0xF8) {
    length = 4, character = lead & 0x07u, least = 0x10000;
  }
  bool wellFormed = length > 0 && length <= rest.size();
  for (std::size_t i = 1; wellFormed && i < length; ++i) {
    wellFormed = (byte(i) & 0xC0u) == 0x80;
    character = character << 6 | (byte(i) & 0x3Fu);
  }
  const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
  wellFormed = wellFormed && character >= least && character <= 0x10FFFF && !isSurrogate;
  rest.remove_prefix(wellFormed ? length : 1);
  return wellFormed ? std::optional(character) : std::nullopt;
}

}  // namespace

const std::array<char16_t, 256>& windows1252() {
  static const std::array<char16_t, 256> table = makeTable();
  return table;
}

char toWindows1252(char32_t character) {
  if (character < 0x80) return static_cast<char>(character);
  const auto& table = windows1252();
  const auto found = std::find(table.begin(), table.end(), character);
  return found == table.end() ? '?' : static_cast<char>(found - table.begin());
}

char capital(char character) {
  const auto byte = static_cast<unsigned char>(character);
  const bool isPlain = byte >= 'a' && byte <= 'z';
  const bool isAccented = byte >= 0xE0 && byte <= 0xFE && byte != 0xF7;
  if (isPlain || isAccented) return static_cast<char>(byte - 0x20);
  switch (byte) {
    case 0x9A: return static_cast<char>(0x8A);
    case 0x9C: return static_cast<char>(0x8C);
    case 0x9E: return static_cast<char>(0x8E);
    case 0xFF: return static_cast<char>(0x9F);
    default: return character;
  }
}

std::string toUtf8(std::string_view windows1252Text) {
  std::string utf8;
  for (const char byte : windows1252Text) {
    const unsigned character = windows1252()[static_cast<std::uint8_t>(byte)];
    if (character < 0x80) {
      utf8 += static_cast<char>(character);
    } else if (character < 0x800) {
      utf8 += static_cast<char>(0xC0u | character >> 6);
      utf8 += static_cast<char>(0x80u | (character & 0x3Fu));
    } else {
      utf8 += static_cast<char>(0xE0u | character >> 12);
      utf8 += static_cast<char>(0x80u | (character >> 6 & 0x3Fu));
      utf8 += static_cast<char>(0x80u | (character & 0x3Fu));
    }
  }
  return utf8;
}

std::string fromUtf8(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) {
    const auto character = takeCharacter(utf8);
    text += character ? toWindows1252(*character) : '?';
  }
  return text;
}

}  // namespace gsm
