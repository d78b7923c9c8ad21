#include "platform/sqlite/criterion.h"

#include <algorithm>
#include <charconv>

#include "platform/code_page.h"

namespace gsm {
namespace {

bool isBlank(char character) { return character == ' ' || character == '\t'; }

bool isLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
         character == '_';
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool isRight(std::string_view word) {
  constexpr std::string_view kRight = "right";
  if (word.size() != kRight.size()) return false;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if ((word[i] | 0x20) != kRight[i]) return false;
  }
  return true;
}

std::string_view withoutTrailingBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool sameText(std::string_view a, std::string_view b) {
  a = withoutTrailingBlanks(a);
  b = withoutTrailingBlanks(b);
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return capital(x) == capital(y); });
}

// Reads the criterion from left to right; a part that isn't there leaves it where it stands.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  bool take(char character) {
    skipBlanks();
    if (rest_.empty() || rest_.front() != character) return false;
    rest_.remove_prefix(1);
    return true;
  }

  std::string_view takeName() {
    skipBlanks();
    std::size_t length = 0;
    while (length < rest_.size() &&
           (isLetter(rest_[length]) || (length > 0 && isDigit(rest_[length])))) {
      ++length;
    }
    return takeLength(length);
  }

  std::optional<int> takeCount() {
    skipBlanks();
    int count = 0;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), count);
    if (error != std::errc{} || count < 0) return std::nullopt;
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return count;
  }

  std::optional<std::string> takeQuoted() {
    if (!take('\'')) return std::nullopt;
    const auto end = rest_.find('\'');
    if (end == std::string_view::npos) return std::nullopt;
    const std::string text(takeLength(end));
    rest_.remove_prefix(1);
    return text;
  }

  bool atEnd() {
    skipBlanks();
    return rest_.empty();
  }

 private:
  void skipBlanks() {
    while (!rest_.empty() && isBlank(rest_.front())) rest_.remove_prefix(1);
  }
  std::string_view takeLength(std::size_t length) {
    const std::string_view taken = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return taken;
  }

  std::string_view rest_;
};

}  // namespace

bool Criterion::isMetBy(std::string_view value) const {
  const auto kept = last ? std::min(value.size(), static_cast<std::size_t>(*last)) : value.size();
  return sameText(value.substr(value.size() - kept), text);
}

std::optional<Criterion> parseCriterion(std::string_view criterion) {
  Reader reader(criterion);
  Criterion parsed;
  parsed.column = reader.takeName();
  if (isRight(parsed.column) && reader.take('(')) {
    parsed.column = reader.takeName();
    if (!reader.take(',')) return std::nullopt;
    parsed.last = reader.takeCount();
    if (!parsed.last || !reader.take(')')) return std::nullopt;
  }
  if (parsed.column.empty() || !reader.take('=')) return std::nullopt;
  const auto text = reader.takeQuoted();
  if (!text || !reader.atEnd()) return std::nullopt;
  parsed.text = *text;
  return parsed;
}

}  // namespace gsm
