#include "platform/sqlite/query_reader.h"

#include <charconv>

#include "platform/sqlite/names.h"

namespace gsm {
namespace {

bool isBlank(char character) { return character == ' ' || character == '\t'; }

bool isLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
         character == '_';
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

}  // namespace

bool QueryReader::take(char character) {
  skipBlanks();
  if (rest_.empty() || rest_.front() != character) return false;
  rest_.remove_prefix(1);
  return true;
}

bool QueryReader::takeWord(std::string_view word) {
  const std::string_view before = rest_;
  if (sameName(takeName(), word)) return true;
  rest_ = before;
  return false;
}

std::string_view QueryReader::takeName() {
  skipBlanks();
  std::size_t length = 0;
  while (length < rest_.size() &&
         (isLetter(rest_[length]) || (length > 0 && isDigit(rest_[length])))) {
    ++length;
  }
  return takeLength(length);
}

std::optional<int> QueryReader::takeCount() {
  skipBlanks();
  int count = 0;
  const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), count);
  if (error != std::errc{} || count < 0) return std::nullopt;
  rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
  return count;
}

std::optional<std::string> QueryReader::takeQuoted() {
  if (!take('\'')) return std::nullopt;
  const auto end = rest_.find('\'');
  if (end == std::string_view::npos) return std::nullopt;
  const std::string text(takeLength(end));
  rest_.remove_prefix(1);
  return text;
}

bool QueryReader::atEnd() {
  skipBlanks();
  return rest_.empty();
}

void QueryReader::skipBlanks() {
  while (!rest_.empty() && isBlank(rest_.front())) rest_.remove_prefix(1);
}

std::string_view QueryReader::takeLength(std::size_t length) {
  const std::string_view taken = rest_.substr(0, length);
  rest_.remove_prefix(length);
  return taken;
}

}  // namespace gsm
