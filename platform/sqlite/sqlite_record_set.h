#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/sqlite/connection.h"
#include "platform/sqlite/criterion.h"
#include "platform/sqlite/rows_ahead.h"

namespace gsm {

/// A table's rows, by the keys that they had when the set was opened and those added since. A row's
/// columns are as the file holds them when they are asked for. Of a query's rows, the columns that
/// it names.
class SqliteRecordSet : public RecordSet {
 public:
  /// `source` is a table's name or a query that `parseSelection` reads.
  SqliteRecordSet(const std::shared_ptr<Connection>& connection, const std::string& source);

  bool isBof() const override { return keys_.empty(); }
  bool isEof() const override { return current_ >= keys_.size(); }
  void MoveFirst() override;
  void MoveNext() override;
  void FindFirst(const std::string& criterion) override;
  bool NoMatch() const override { return noMatch_; }
  std::string field(const std::string& column) override;
  void AddNew() override;
  void Edit() override;
  void setField(const std::string& column, const std::string& value) override;
  void Update() override;
  void Delete() override;

 private:
  enum class Change { none, add, edit };

  struct Source {
    std::string table;  // these three as SQL wants them or by the table's own names
    std::string key;
    std::vector<std::string> columns;
  };

  SqliteRecordSet(std::shared_ptr<Connection> connection, Source source);
  static Source sourceOf(const Connection& connection, const std::string& text);

  sqlite3_int64 currentKey() const;
  /// The table's own name of the column. A failure when there is none.
  const std::string& ownName(const std::string& column) const { return columns_[place(column)]; }
  std::size_t place(const std::string& column) const;
  void findFirst(const Criterion& criterion, const std::string& column);
  void forgetChange();
  void insertRow();
  void addKey(sqlite3_int64 key);
  void updateRow();

  std::shared_ptr<Connection> connection_;
  const std::string table_;
  const std::string key_;
  const std::vector<std::string> columns_;
  RowsAhead rows_;
  std::vector<sqlite3_int64> keys_;  // ascending
  std::size_t current_ = 0;          // into keys_; its size is the end
  bool noMatch_ = false;
  Change change_ = Change::none;
  std::map<std::string, std::string> values_;  // of the change, by the table's own names, in UTF-8
};

}  // namespace gsm
