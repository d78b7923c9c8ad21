#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gsm::simulator {

// The values after a command's name, as the host wrote them.
class Arguments {
 public:
  Arguments() = default;

  // Splits `text` at the commas outside quotes. An empty text holds no value.
  explicit Arguments(std::string_view text);

  std::size_t size() const { return values_.size(); }

  // True when value `index`, from 0, is there and not left empty.
  bool has(std::size_t index) const { return !text(index).empty(); }

  // Value `index` without its quotes; empty when it isn't there.
  std::string_view text(std::size_t index) const;

  // Value `index` as a number; nothing when it is missing, no number, or written in quotes.
  std::optional<int> number(std::size_t index) const;

 private:
  std::vector<std::string> values_;
};

}  // namespace gsm::simulator
