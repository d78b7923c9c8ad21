#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/sqlite/connection.h"

namespace gsm {

/// A table's rows as the file holds them now, by their keys.
///
/// Each look at the file locks it and lets it go, and a walk looks for each column of each row. So
/// a walk's next rows are read with one lock, the more of them the longer it goes on, and are given
/// for as long as the file's own count of its changes stands still.
class RowsAhead {
 public:
  /// `table` and `key` as SQL wants them, the columns by the table's own names.
  RowsAhead(std::shared_ptr<Connection> connection, const std::string& table,
            const std::string& key, const std::vector<std::string>& columns);

  /// The columns of the row with this key, as texts in Windows-1252; null when the row is gone.
  /// Good until the next call.
  const std::vector<std::string>* row(sqlite3_int64 key);

  /// A walk begins: it may give as much text as a phone book is worth.
  void rewind() { given_ = 0; }

 private:
  struct Row {
    sqlite3_int64 key;
    std::vector<std::string> columns;
  };

  const Row* find(sqlite3_int64 key) const;
  bool covers(sqlite3_int64 key) const;
  void readFrom(sqlite3_int64 key);

  std::shared_ptr<Connection> connection_;
  Statement query_;
  const std::size_t width_;
  std::vector<Row> rows_;                   // that follow each other in the table
  std::optional<Connection::State> state_;  // of the file when they were read
  std::size_t count_ = 1;                   // to read next
  std::size_t given_ = 0;                   // bytes of the walk
};

}  // namespace gsm
