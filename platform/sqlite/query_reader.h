#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gsm {

/// Reads a criterion or a query from left to right, over the blanks in front of each part; a part
/// that isn't there leaves it where it stands.
class QueryReader {
 public:
  explicit QueryReader(std::string_view text) : rest_(text) {}

  bool take(char character);
  /// A word, whatever its case.
  bool takeWord(std::string_view word);
  /// Letters, digits and underscores, of which the first is no digit; empty when there are none.
  std::string_view takeName();
  std::optional<int> takeCount();
  /// What stands between apostrophes.
  std::optional<std::string> takeQuoted();
  bool atEnd();

 private:
  void skipBlanks();
  std::string_view takeLength(std::size_t length);

  std::string_view rest_;
};

}  // namespace gsm
