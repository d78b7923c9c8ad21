#include "link/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <system_error>

#include "platform/code_page.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

constexpr bool isDigit(char character) { return character >= '0' && character <= '9'; }

}  // namespace

Position position(std::string_view key, std::string_view text) {
  const auto found = text.find(key);
  return found < text.size() ? static_cast<Position>(found) + 1 : 0;
}

std::string slice(std::string_view text, Position start, Position length) {
  if (start < 1 || length < 0) throw failure::invalidArgument();
  const auto offset = static_cast<std::size_t>(start) - 1;
  if (offset >= text.size()) return {};
  return std::string(text.substr(offset, static_cast<std::size_t>(length)));
}

std::string before(std::string_view end, std::string_view text) {
  return slice(text, 1, position(end, text) - 1);
}

std::string behind(std::string_view end, std::string_view text) {
  const Position found = position(end, text);
  return found == 0 ? std::string(text)
                    : std::string(text.substr(static_cast<std::size_t>(found) - 1 + end.size()));
}

std::string takeReplyField(std::string& reply) {
  std::string field = before(",", reply);
  reply = slice(reply, position(",", reply) + 1, position("OK", reply));
  return field;
}

std::string trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string upperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), capital);
  return upper;
}

double number(std::string_view text) {
  constexpr std::string_view kWhiteSpace = " \t\r\n";
  const auto first = text.find_first_not_of(kWhiteSpace);
  if (first == std::string_view::npos) throw failure::typeMismatch();
  text = text.substr(first, text.find_last_not_of(kWhiteSpace) - first + 1);

  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') text.remove_prefix(1);
  // from_chars knows a sign of its own, "inf" and "nan"; none of them is a number here.
  const bool begins = !text.empty() && (text.front() == '.' || isDigit(text.front()));
  if (!begins) throw failure::typeMismatch();

  double value = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, value);
  if (error == std::errc::result_out_of_range) throw failure::overflow();
  if (error != std::errc{} || rest != end) throw failure::typeMismatch();
  return negative ? -value : value;
}

int wholeNumber(std::string_view text) {
  const std::int64_t whole = wholeCount(text);
  using Limits = std::numeric_limits<std::int16_t>;
  if (whole < Limits::min() || whole > Limits::max()) throw failure::overflow();
  return static_cast<int>(whole);
}

std::int64_t wholeCount(std::string_view text) {
  constexpr double kTooLarge = 1e15;
  const double rounded = std::nearbyint(number(text));  // to even, the default rounding mode
  if (std::abs(rounded) >= kTooLarge) throw failure::overflow();
  return static_cast<std::int64_t>(rounded);
}

int getCountOf(std::string_view text, std::string_view find) {
  int count = 0;
  for (auto found = text.find(find); found < text.size(); found = text.find(find, found + 1)) {
    if (count == std::numeric_limits<int>::max()) throw failure::overflow();
    ++count;
  }
  return count;
}

std::string StrDel(std::string& text, std::string_view find) {
  const auto found = text.find(find);
  if (found == std::string::npos) return {};
  text.erase(found, find.size());
  return text;
}

}  // namespace gsm
