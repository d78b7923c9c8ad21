#include "platform/sqlite/criterion.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/sqlite/names.h"
#include "platform/sqlite/query_reader.h"

namespace gsm {
namespace {

std::string_view withoutTrailingBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool sameText(std::string_view a, std::string_view b) {
  a = withoutTrailingBlanks(a);
  b = withoutTrailingBlanks(b);
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return capital(x) == capital(y); });
}

}  // namespace

bool Criterion::isMetBy(std::string_view value) const {
  if (withoutTrailingBlanks(text).empty()) return false;
  const auto kept = last ? std::min(value.size(), static_cast<std::size_t>(*last)) : value.size();
  return sameText(value.substr(value.size() - kept), text);
}

std::optional<Criterion> parseCriterion(std::string_view criterion) {
  QueryReader reader(criterion);
  Criterion parsed;
  parsed.column = reader.takeName();
  if (sameName(parsed.column, "right") && reader.take('(')) {
    parsed.column = reader.takeName();
    if (!reader.take(',')) return std::nullopt;
    parsed.last = reader.takeCount();
    if (!parsed.last || !reader.take(')')) return std::nullopt;
  }
  if (parsed.column.empty() || !reader.take('=')) return std::nullopt;
  const auto text = reader.takeQuoted();
  if (!text || !reader.atEnd()) return std::nullopt;
  parsed.text = *text;
  return parsed;
}

}  // namespace gsm
