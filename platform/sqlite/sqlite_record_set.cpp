#include "platform/sqlite/sqlite_record_set.h"

#include <algorithm>
#include <optional>

#include "platform/code_page.h"
#include "platform/sqlite/criterion.h"
#include "platform/sqlite/database_failure.h"
#include "platform/sqlite/names.h"
#include "platform/sqlite/record_source.h"

namespace gsm {
namespace {

RuntimeFailure noCurrentRecord() { return databaseFailure(DatabaseFault::noCurrentRecord); }

// Far above what the locations of a card can be.
constexpr std::size_t kMostRows = 100'000;

// By which SQL reaches the rows of a table: a name that isn't one of its columns. Empty when all
// are.
std::string keyOf(const std::vector<std::string>& columns) {
  for (const char* key : {"rowid", "_rowid_", "oid"}) {
    const auto isKey = [key](const std::string& each) { return sameName(each, key); };
    if (std::none_of(columns.begin(), columns.end(), isKey)) return key;
  }
  return {};
}

std::size_t placeIn(const std::vector<std::string>& columns, const std::string& column) {
  const auto found =
      std::find_if(columns.begin(), columns.end(),
                   [&column](const std::string& each) { return sameName(each, column); });
  if (found == columns.end()) throw databaseFailure(DatabaseFault::noColumn);
  return static_cast<std::size_t>(found - columns.begin());
}

}  // namespace

SqliteRecordSet::SqliteRecordSet(const std::shared_ptr<Connection>& connection,
                                 const std::string& source)
    : SqliteRecordSet(connection, sourceOf(*connection, source)) {}

SqliteRecordSet::SqliteRecordSet(std::shared_ptr<Connection> connection, Source source)
    : connection_(std::move(connection)),
      table_(std::move(source.table)),
      key_(std::move(source.key)),
      columns_(std::move(source.columns)),
      rows_(connection_, table_, key_, columns_) {
  Statement query(*connection_, "SELECT " + key_ + " FROM " + table_ + " ORDER BY " + key_);
  while (query.step()) {
    if (!keys_.empty()) checkOrder(keys_.back(), query.number(0));
    if (keys_.size() == kMostRows) {
      throw databaseFailure(DatabaseFault::badFormat, "it has too many rows");
    }
    keys_.push_back(query.number(0));
  }
}

// A table of that name comes first, whatever its name looks like.
SqliteRecordSet::Source SqliteRecordSet::sourceOf(const Connection& connection,
                                                  const std::string& text) {
  Selection selection{text, {}};
  std::vector<std::string> columns = connection.columnsOf(toUtf8(text));
  if (columns.empty()) {
    const auto parsed = parseSelection(text);
    if (parsed) columns = connection.columnsOf(parsed->table);
    if (columns.empty()) throw databaseFailure(DatabaseFault::noTable, text);
    selection = *parsed;
  }
  const std::string key = keyOf(columns);
  if (key.empty()) throw databaseFailure(DatabaseFault::noTable, text);
  if (!selection.columns.empty()) {
    std::vector<std::string> chosen;
    for (const std::string& each : selection.columns) {
      chosen.push_back(columns[placeIn(columns, each)]);
    }
    columns = std::move(chosen);
  }
  return {quotedName(toUtf8(selection.table)), key, std::move(columns)};
}

void SqliteRecordSet::MoveFirst() {
  if (keys_.empty()) throw noCurrentRecord();
  forgetChange();
  rows_.rewind();
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

std::size_t SqliteRecordSet::place(const std::string& column) const {
  return placeIn(columns_, column);
}

void SqliteRecordSet::FindFirst(const std::string& text) {
  const auto criterion = parseCriterion(text);
  if (!criterion) throw databaseFailure(DatabaseFault::badExpression, text);
  const std::string& column = ownName(criterion->column);
  forgetChange();
  rows_.rewind();
  noMatch_ = true;
  withinMemory([&] { findFirst(*criterion, column); });
}

void SqliteRecordSet::findFirst(const Criterion& criterion, const std::string& column) {
  Statement query(*connection_, "SELECT " + key_ + ",CAST(" + quotedName(column) +
                                    " AS TEXT) FROM " + table_ + " ORDER BY " + key_);
  std::optional<sqlite3_int64> before;
  while (noMatch_ && query.step()) {
    const sqlite3_int64 key = query.number(0);
    if (before) checkOrder(*before, key);
    before = key;
    if (!criterion.isMetBy(fromUtf8(query.text(1)))) continue;
    // A row that another set has added meanwhile is not of this set before its next opening.
    const auto found = std::lower_bound(keys_.begin(), keys_.end(), key);
    if (found == keys_.end() || *found != key) continue;
    current_ = static_cast<std::size_t>(found - keys_.begin());
    noMatch_ = false;
  }
}

std::string SqliteRecordSet::field(const std::string& column) {
  const std::size_t wanted = place(column);
  if (change_ != Change::none) {
    const auto set = values_.find(columns_[wanted]);
    if (set != values_.end()) return fromUtf8(set->second);
    if (change_ == Change::add) return {};
  }
  return withinMemory([&] {
    const std::vector<std::string>* const row = rows_.row(currentKey());
    if (row == nullptr) throw databaseFailure(DatabaseFault::recordDeleted);
    return (*row)[wanted];
  });
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
  const std::string& name = ownName(column);
  withinMemory([&] { values_[name] = toUtf8(value); });
}

void SqliteRecordSet::Update() {
  switch (change_) {
    case Change::none: throw databaseFailure(DatabaseFault::noEdit);
    case Change::add: withinMemory([this] { insertRow(); }); break;
    case Change::edit: withinMemory([this] { updateRow(); }); break;
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
  Statement change(*connection_,
                   "UPDATE " + table_ + " SET " + assignments + " WHERE " + key_ + "=?");
  int parameter = 0;
  for (const auto& [name, value] : values_) change.bind(++parameter, value);
  change.bind(++parameter, currentKey());
  change.mustChangeARow();
}

void SqliteRecordSet::Delete() {
  Statement deletion(*connection_, "DELETE FROM " + table_ + " WHERE " + key_ + "=?1");
  deletion.bind(1, currentKey());
  deletion.mustChangeARow();
  forgetChange();  // or it would be stored into the row after
  keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(current_));
}

}  // namespace gsm
