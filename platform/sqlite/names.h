#pragma once

#include <string>
#include <string_view>

namespace gsm {

/// `name` as SQL wants it for a table or a column, whatever it holds.
std::string quotedName(const std::string& name);

/// Whether two names of tables, columns or files are the same but for case.
bool sameName(std::string_view a, std::string_view b);

}  // namespace gsm
