#pragma once

#include <sqlite3.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace gsm {

/// A connection to an SQLite file. Every failure of the library becomes a `RuntimeFailure` with its
/// text.
///
/// The file may come from anywhere and be damaged: nothing that its schema holds is run, its texts
/// are bounded, and so is the work of each statement.
class Connection {
 public:
  /// Opens a file that is there already. Where another program holds it, each statement waits for
  /// it as long as `patience`, and then fails.
  explicit Connection(const std::filesystem::path& file,
                      std::chrono::milliseconds patience = std::chrono::seconds(1));
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  sqlite3* handle() const { return handle_.get(); }

  /// What tells one state of the file from another.
  struct State {
    std::array<char, 10> file;  // how it keeps its journal, and how often it was changed
    sqlite3_int64 ownChanges = 0;
    bool operator==(const State&) const = default;
  };
  /// The state of the file; nothing when it can't be told from the file alone, since changes wait
  /// elsewhere. It costs one look at the file without a lock.
  std::optional<State> state() const;

  /// The columns of `table`, whatever the case of its name, by their own names; empty when there is
  /// no such table. What only looks like a table, as a view does, is none.
  std::vector<std::string> columnsOf(const std::string& table) const;

  /// Bytes of the file as they lie there, zeros after its end. They are read through the library's
  /// own descriptor: opening and closing the file beside it would let go of its locks.
  template <std::size_t count>
  std::array<char, count> bytesAt(std::size_t offset) const {
    std::array<char, count> bytes{};
    read(bytes, offset);
    return bytes;
  }

 private:
  friend class Statement;

  void read(std::span<char> bytes, std::size_t offset) const;

  static int countSteps(void* connection);

  std::unique_ptr<sqlite3, decltype(&sqlite3_close)> handle_;
  mutable int thousandsOfSteps_ = 0;  // of the statement that runs
};

/// A prepared statement with its parameters, which are UTF-8 texts or whole numbers counted from 1.
class Statement {
 public:
  Statement(const Connection& connection, const std::string& sql);

  void bind(int parameter, const std::string& text);
  void bind(int parameter, sqlite3_int64 number);

  /// Runs to the next row; false when there is none left. A failure when the statement takes more
  /// steps, or has given more text, than any phone book is worth.
  bool step();
  /// Lets go of the row and of the lock on the file; the statement can be run anew.
  void reset();
  /// Runs a statement that changes a row by its key. A failure when the row is gone.
  void mustChangeARow();
  sqlite3_int64 number(int column) const;
  std::string text(int column) const;

 private:
  const Connection& connection_;
  std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement_;
  int thousandsOfSteps_ = 0;
  mutable std::size_t textGiven_ = 0;  // bytes since it was last reset
};

/// Lets go of the statement's row and lock, however the work with it ends.
class ResetAtEnd {
 public:
  explicit ResetAtEnd(Statement& statement) : statement_(statement) {}
  ~ResetAtEnd() { statement_.reset(); }
  ResetAtEnd(const ResetAtEnd&) = delete;
  ResetAtEnd& operator=(const ResetAtEnd&) = delete;

 private:
  Statement& statement_;
};

// A damaged file may lead a walk in circles: these are failures.

/// When a walk has given more bytes of text than any phone book is worth.
void checkText(std::size_t bytes);
/// When a row's key isn't above that of the row before.
void checkOrder(sqlite3_int64 before, sqlite3_int64 key);

}  // namespace gsm
