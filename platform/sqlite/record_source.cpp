#include "platform/sqlite/record_source.h"

#include "platform/sqlite/query_reader.h"

namespace gsm {

std::optional<Selection> parseSelection(std::string_view query) {
  QueryReader reader(query);
  Selection parsed;
  if (!reader.takeWord("select")) return std::nullopt;
  if (!reader.take('*')) {
    do {
      parsed.columns.emplace_back(reader.takeName());
      if (parsed.columns.back().empty()) return std::nullopt;
    } while (reader.take(','));
  }
  if (!reader.takeWord("from")) return std::nullopt;
  parsed.table = reader.takeName();
  if (parsed.table.empty() || !reader.atEnd()) return std::nullopt;
  return parsed;
}

}  // namespace gsm
