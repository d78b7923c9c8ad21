#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gsm {

/// What a row must meet: a column's text, or its last characters, equal to a text.
struct Criterion {
  std::string column;
  std::optional<int> last;  // compare only so many of the column's last characters
  std::string text;

  /// Whether a row with this text in the column meets it. Texts are Windows-1252, and compared
  /// without regard to case and to trailing blanks. One with a blank text, as a caller makes it who
  /// hides the number, is met by none: a row without a number isn't that caller.
  bool isMetBy(std::string_view value) const;
};

/// Reads `column = 'text'` or `right(column, n) = 'text'`, with blanks wherever they do no harm.
/// Nothing when it is of another form: above all when the text holds an apostrophe.
std::optional<Criterion> parseCriterion(std::string_view criterion);

}  // namespace gsm
