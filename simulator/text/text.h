#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace gsm::simulator {

// The number that the whole of `text` spells, in decimal; nothing when it spells none or one that
// `Number` can't hold.
template <typename Number>
std::optional<Number> parseNumber(std::string_view text) {
  Number value{};
  const char* end = text.data() + text.size();
  const auto [stop, failure] = std::from_chars(text.data(), end, value);
  if (failure != std::errc() || stop != end) return std::nullopt;
  return value;
}

// True for a character below the blank, and for DEL: nothing that a command is written with.
constexpr bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

inline std::string quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

// Upper case of the unaccented letters alone, whatever the locale.
constexpr char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// `text` without the blanks, tabs and line ends around it.
std::string_view trimmed(std::string_view text);

// Takes the first word off `text`, together with the blanks around it.
std::string_view takeWord(std::string_view& text);

// Takes what stands before the first `separator` off `text`, and the separator with it.
std::string_view takeUpTo(char separator, std::string_view& text);

// Gives `read` each line of `text` that isn't empty, and returns what it complains of, with the
// number of the line before it.
template <typename Read>
std::vector<std::string> eachLine(std::string_view text, Read read) {
  std::vector<std::string> complaints;
  for (int number = 1; !text.empty(); ++number) {
    std::string_view line = takeUpTo('\n', text);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty()) continue;
    const std::string complaint = read(line);
    if (!complaint.empty()) {
      complaints.push_back("line " + std::to_string(number) + ": " + complaint);
    }
  }
  return complaints;
}

// The words of `text`, separated by any number of blanks.
std::vector<std::string_view> words(std::string_view text);

// The bytes that a quoted text stands for: \r, \n, \t, \\, \" and \xHH are read as in C++. Quotes
// around the whole are optional. Nothing when an escape or the quotes are malformed.
std::optional<std::string> unescaped(std::string_view text);

// The text, without quotes around it, that `unescaped` reads as `bytes`.
std::string escaped(std::string_view bytes);

}  // namespace gsm::simulator
