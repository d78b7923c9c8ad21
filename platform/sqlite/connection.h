#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace gsm {

/// A connection to an SQLite file. Every failure of the library becomes a `RuntimeFailure` with its
/// text.
class Connection {
 public:
  /// Opens a file that is there already.
  explicit Connection(const std::filesystem::path& file);

  sqlite3* handle() const { return handle_.get(); }

  /// The columns of `table` by their own names; empty when there is no such table.
  std::vector<std::string> columnsOf(const std::string& table) const;

 private:
  std::unique_ptr<sqlite3, decltype(&sqlite3_close)> handle_;
};

/// A prepared statement with its parameters, which are UTF-8 texts or whole numbers counted from 1.
class Statement {
 public:
  Statement(const Connection& connection, const std::string& sql);

  void bind(int parameter, const std::string& text);
  void bind(int parameter, sqlite3_int64 number);

  /// Runs to the next row; false when there is none left.
  bool step();
  /// Lets go of the row and of the lock on the file; the statement can be run anew.
  void reset() { sqlite3_reset(statement_.get()); }
  /// Runs a statement that changes a row by its key. A failure when the row is gone.
  void mustChangeARow();
  sqlite3_int64 number(int column) const;
  std::string text(int column) const;

 private:
  const Connection& connection_;
  std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement_;
};

/// `name` as SQL wants it for a table or a column, whatever it holds.
std::string quotedName(const std::string& name);

}  // namespace gsm
