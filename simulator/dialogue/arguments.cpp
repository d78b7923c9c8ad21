#include "simulator/dialogue/arguments.h"

#include "simulator/text/text.h"

namespace gsm::simulator {

Arguments::Arguments(std::string_view text) {
  if (text.empty()) return;
  values_.emplace_back();
  bool quoted = false;
  for (const char c : text) {
    if (c == '"') quoted = !quoted;
    if (c == ',' && !quoted) {
      values_.emplace_back();
    } else {
      values_.back() += c;
    }
  }
}

std::string_view Arguments::text(std::size_t index) const {
  if (index >= values_.size()) return {};
  const std::string_view value = values_[index];
  const bool quoted = value.size() >= 2 && value.front() == '"' && value.back() == '"';
  return quoted ? value.substr(1, value.size() - 2) : value;
}

std::optional<int> Arguments::number(std::size_t index) const {
  if (index >= values_.size()) return std::nullopt;
  return parseNumber<int>(values_[index]);
}

}  // namespace gsm::simulator
