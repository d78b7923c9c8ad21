#include "platform/sqlite/rows_ahead.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/sqlite/names.h"

namespace gsm {
namespace {

constexpr std::size_t kMostRows = 256;
constexpr std::size_t kMostBytes = 256 << 10;  // the last row may go beyond them

std::string queryFor(const std::string& table, const std::string& key,
                     const std::vector<std::string>& columns) {
  std::string list = key;
  for (const std::string& each : columns) list += ",CAST(" + quotedName(each) + " AS TEXT)";
  return "SELECT " + list + " FROM " + table + " WHERE " + key + ">=?1 ORDER BY " + key;
}

}  // namespace

RowsAhead::RowsAhead(std::shared_ptr<Connection> connection, const std::string& table,
                     const std::string& key, const std::vector<std::string>& columns)
    : connection_(std::move(connection)),
      query_(*connection_, queryFor(table, key, columns)),
      width_(columns.size()) {}

const std::vector<std::string>* RowsAhead::row(sqlite3_int64 key) {
  const bool isFresh = state_ && state_ == connection_->state();
  if (!isFresh || !covers(key)) {
    const bool walksOn = isFresh && key > rows_.back().key;
    count_ = walksOn ? std::min(2 * count_, kMostRows) : 1;
    readFrom(key);
  }
  const Row* const found = find(key);
  return found == nullptr ? nullptr : &found->columns;
}

const RowsAhead::Row* RowsAhead::find(sqlite3_int64 key) const {
  const auto found = std::lower_bound(rows_.begin(), rows_.end(), key,
                                      [](const Row& row, sqlite3_int64 k) { return row.key < k; });
  return found == rows_.end() || found->key != key ? nullptr : &*found;
}

bool RowsAhead::covers(sqlite3_int64 key) const {
  return !rows_.empty() && key >= rows_.front().key && key <= rows_.back().key;
}

void RowsAhead::readFrom(sqlite3_int64 key) {
  rows_.clear();
  state_.reset();
  const ResetAtEnd letGo(query_);
  query_.bind(1, key);
  std::optional<Connection::State> state;
  std::size_t bytes = 0;
  while (rows_.size() < count_ && bytes < kMostBytes && query_.step()) {
    // Nobody can change the file while the query holds its lock on it.
    if (rows_.empty()) state = connection_->state();
    Row row{query_.number(0), {}};
    if (!rows_.empty()) checkOrder(rows_.back().key, row.key);
    row.columns.reserve(width_);
    for (std::size_t column = 1; column <= width_; ++column) {
      row.columns.push_back(fromUtf8(query_.text(static_cast<int>(column))));
      bytes += sizeof(std::string) + row.columns.back().size();
    }
    rows_.push_back(std::move(row));
  }
  given_ += bytes;
  checkText(given_);
  state_ = state;
}

}  // namespace gsm
