#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/sqlite/connection.h"

namespace gsm {

/// A table's rows, by the keys that they had when the set was opened and those added since. A row's
/// columns are read when they are asked for, so they are as the file holds them then.
class SqliteRecordSet : public RecordSet {
 public:
  SqliteRecordSet(std::shared_ptr<Connection> connection, const std::string& table);

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

  sqlite3_int64 currentKey() const;
  /// The table's own name of the column. A failure when there is none.
  const std::string& ownName(const std::string& column) const;
  void forgetChange();
  void insertRow();
  void addKey(sqlite3_int64 key);
  void updateRow();

  /// The statement that reads the column, by the table's own name, of the row with a given key.
  Statement& reader(const std::string& column);

  std::shared_ptr<Connection> connection_;
  const std::string table_;
  std::vector<std::string> columns_;
  std::map<std::string, Statement> readers_;  // kept, since a walk asks for each column of each row
  std::vector<sqlite3_int64> keys_;           // ascending
  std::size_t current_ = 0;                   // into keys_; its size is the end
  bool noMatch_ = false;
  Change change_ = Change::none;
  std::map<std::string, std::string> values_;  // of the change, by the table's own names, in UTF-8
};

}  // namespace gsm
