#pragma once

#include <string>

namespace gsm {

/// The row of an entry in the call window's list: the index, two blanks, the number padded with
/// blanks to 20 characters, the name. `invalidArgument` when the number is longer.
std::string bookRow(const std::string& index, const std::string& number, const std::string& name);

/// The index at the beginning of a row; empty when there is no row.
std::string rowIndex(const std::string& row);

/// The number in a row; empty when nothing stands after it (an entry without a name), and when the
/// location or the number holds a control character, with which it would become a second command.
std::string rowNumber(const std::string& row);

/// What of `text` may stand in a command: it ends at the first line break, and other control
/// characters are left out.
std::string oneLine(const std::string& text);

}  // namespace gsm
