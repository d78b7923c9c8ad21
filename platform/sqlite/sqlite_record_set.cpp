#include "platform/sqlite/sqlite_record_set.h"

#include <algorithm>
#include <tuple>

#include "platform/code_page.h"
#include "platform/sqlite/criterion.h"
#include "platform/sqlite/database_failure.h"

namespace gsm {
namespace {

RuntimeFailure noCurrentRecord() { return databaseFailure(DatabaseFault::noCurrentRecord); }

bool sameName(const std::string& a, const std::string& b) {
  return sqlite3_stricmp(a.c_str(), b.c_str()) == 0;
}

}  // namespace

SqliteRecordSet::SqliteRecordSet(std::shared_ptr<Connection> connection, const std::string& table)
    : connection_(std::move(connection)),
      table_(quotedName(table)),
      columns_(connection_->columnsOf(table)) {
  if (columns_.empty()) {
    throw databaseFailure(DatabaseFault::noTable, table);
  }
  Statement query(*connection_, "SELECT rowid FROM " + table_ + " ORDER BY rowid");
  while (query.step()) keys_.push_back(query.number(0));
}

void SqliteRecordSet::MoveFirst() {
  if (keys_.empty()) throw noCurrentRecord();
  forgetChange();
  current_ = 0;
}

void SqliteRecordSet::MoveNext() {
  if (isEof()) throw noCurrentRecord();
  forgetChange();
  ++current_;
}

sqlite3_int64 SqliteRecordSet::currentKey() const {
  if (isEof()) throw noCurrentRecord();
  return keys_[current_];
}

const std::string& SqliteRecordSet::ownName(const std::string& column) const {
  const auto found =
      std::find_if(columns_.begin(), columns_.end(),
                   [&column](const std::string& each) { return sameName(each, column); });
  if (found == columns_.end()) throw databaseFailure(DatabaseFault::noColumn);
  return *found;
}

void SqliteRecordSet::FindFirst(const std::string& text) {
  const auto criterion = parseCriterion(text);
  if (!criterion) throw databaseFailure(DatabaseFault::badExpression, text);
  const std::string& column = ownName(criterion->column);
  forgetChange();
  noMatch_ = true;
  Statement query(*connection_, "SELECT rowid, CAST(" + quotedName(column) + " AS TEXT) FROM " +
                                    table_ + " ORDER BY rowid");
  while (noMatch_ && query.step()) {
    if (!criterion->isMetBy(fromUtf8(query.text(1)))) continue;
    // A row that another set has added meanwhile is not of this set before its next opening.
    const auto key = std::lower_bound(keys_.begin(), keys_.end(), query.number(0));
    if (key == keys_.end() || *key != query.number(0)) continue;
    current_ = static_cast<std::size_t>(key - keys_.begin());
    noMatch_ = false;
  }
}

std::string SqliteRecordSet::field(const std::string& column) {
  const std::string& name = ownName(column);
  if (change_ != Change::none) {
    const auto set = values_.find(name);
    if (set != values_.end()) return fromUtf8(set->second);
    if (change_ == Change::add) return {};
  }
  Statement& query = reader(name);
  query.bind(1, currentKey());
  const bool isThere = query.step();
  std::string text = isThere ? fromUtf8(query.text(0)) : std::string();
  query.reset();
  if (!isThere) throw databaseFailure(DatabaseFault::recordDeleted);
  return text;
}

Statement& SqliteRecordSet::reader(const std::string& column) {
  const auto known = readers_.find(column);
  if (known != readers_.end()) return known->second;
  const std::string sql =
      "SELECT CAST(" + quotedName(column) + " AS TEXT) FROM " + table_ + " WHERE rowid=?1";
  return readers_
      .emplace(std::piecewise_construct, std::forward_as_tuple(column),
               std::forward_as_tuple(*connection_, sql))
      .first->second;
}

void SqliteRecordSet::AddNew() {
  change_ = Change::add;
  values_.clear();
}

void SqliteRecordSet::Edit() {
  currentKey();  // there must be one
  change_ = Change::edit;
  values_.clear();
}

void SqliteRecordSet::setField(const std::string& column, const std::string& value) {
  if (change_ == Change::none) {
    throw databaseFailure(DatabaseFault::noEdit);
  }
  values_[ownName(column)] = toUtf8(value);
}

void SqliteRecordSet::Update() {
  switch (change_) {
    case Change::none: throw databaseFailure(DatabaseFault::noEdit);
    case Change::add: insertRow(); break;
    case Change::edit: updateRow(); break;
  }
  forgetChange();
}

void SqliteRecordSet::forgetChange() {
  change_ = Change::none;
  values_.clear();
}

void SqliteRecordSet::insertRow() {
  std::string names;
  std::string parameters;
  for (const auto& [name, value] : values_) {
    names += (names.empty() ? "" : ",") + quotedName(name);
    parameters += parameters.empty() ? "?" : ",?";
  }
  Statement insertion(*connection_, names.empty() ? "INSERT INTO " + table_ + " DEFAULT VALUES"
                                                  : "INSERT INTO " + table_ + "(" + names +
                                                        ") VALUES(" + parameters + ")");
  int parameter = 0;
  for (const auto& [name, value] : values_) insertion.bind(++parameter, value);
  insertion.step();
  addKey(sqlite3_last_insert_rowid(connection_->handle()));
}

// The key is mostly above all others. But when rows were deleted behind the set's back, theirs are
// given to new rows, and the set may still hold them.
void SqliteRecordSet::addKey(sqlite3_int64 key) {
  const auto place = std::lower_bound(keys_.begin(), keys_.end(), key);
  if (place != keys_.end() && *place == key) return;
  const auto index = static_cast<std::size_t>(place - keys_.begin());
  if (index < keys_.size() && index <= current_) ++current_;
  keys_.insert(place, key);
}

void SqliteRecordSet::updateRow() {
  if (values_.empty()) return;
  std::string assignments;
  for (const auto& [name, value] : values_) {
    assignments += (assignments.empty() ? "" : ",") + quotedName(name) + "=?";
  }
  Statement change(*connection_, "UPDATE " + table_ + " SET " + assignments + " WHERE rowid=?");
  int parameter = 0;
  for (const auto& [name, value] : values_) change.bind(++parameter, value);
  change.bind(++parameter, currentKey());
  change.mustChangeARow();
}

void SqliteRecordSet::Delete() {
  Statement deletion(*connection_, "DELETE FROM " + table_ + " WHERE rowid=?1");
  deletion.bind(1, currentKey());
  deletion.mustChangeARow();
  forgetChange();  // or it would be stored into the row behind
  keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(current_));
}

}  // namespace gsm
