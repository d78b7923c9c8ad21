#include "simulator/text/text.h"

#include <algorithm>

namespace gsm::simulator {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

// The byte of one escape, with `text` standing after the backslash; takes what it reads.
std::optional<char> takeEscape(std::string_view& text) {
  if (text.empty()) return std::nullopt;
  const char kind = text.front();
  text.remove_prefix(1);
  switch (kind) {
    case 'r': return '\r';
    case 'n': return '\n';
    case 't': return '\t';
    case '\\':
    case '"': return kind;
    case 'x': break;
    default: return std::nullopt;
  }
  unsigned char byte = 0;
  if (text.size() < 2) return std::nullopt;
  const auto [stop, failure] = std::from_chars(text.data(), text.data() + 2, byte, 16);
  if (failure != std::errc() || stop != text.data() + 2) return std::nullopt;
  text.remove_prefix(2);
  return static_cast<char>(byte);
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view takeWord(std::string_view& text) {
  text = trimmed(text);
  const std::string_view word = text.substr(0, text.find_first_of(kBlanks));
  text = trimmed(text.substr(word.size()));
  return word;
}

std::string_view takeUpTo(char separator, std::string_view& text) {
  const std::size_t end = std::min(text.find(separator), text.size());
  const std::string_view taken = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return taken;
}

std::vector<std::string_view> words(std::string_view text) {
  std::vector<std::string_view> found;
  for (auto word = takeWord(text); !word.empty(); word = takeWord(text)) found.push_back(word);
  return found;
}

std::optional<std::string> unescaped(std::string_view text) {
  const bool quoted = text.starts_with('"');
  if (quoted) text.remove_prefix(1);
  std::string bytes;
  while (!text.empty()) {
    const char c = text.front();
    text.remove_prefix(1);
    if (c == '"') return quoted && text.empty() ? std::optional(bytes) : std::nullopt;
    if (c != '\\') {
      bytes += c;
      continue;
    }
    const auto escape = takeEscape(text);
    if (!escape) return std::nullopt;
    bytes += *escape;
  }
  return quoted ? std::nullopt : std::optional(bytes);
}

std::string escaped(std::string_view bytes) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  constexpr std::string_view kNamed = "\r\n\t\\\"";
  constexpr std::string_view kNames = "rnt\\\"";
  std::string text;
  for (const char c : bytes) {
    if (const auto at = kNamed.find(c); at != std::string_view::npos) {
      text.append("\\").push_back(kNames[at]);
    } else if (isControl(c)) {
      const auto byte = static_cast<unsigned char>(c);
      text.append("\\x").append({kHex[byte / 16], kHex[byte % 16]});
    } else {
      text += c;
    }
  }
  return text;
}

}  // namespace gsm::simulator
