#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gsm {

/// Which columns of which table a query gives.
struct Selection {
  std::string table;
  std::vector<std::string> columns;  // all of them when there are none
};

/// Reads `select COLUMNS from TABLE`, where the columns are an asterisk or names with commas
/// between them, in any case and with blanks wherever they do no harm. Nothing when it is of
/// another form.
std::optional<Selection> parseSelection(std::string_view query);

}  // namespace gsm
