#include <algorithm>

#include "driver/session.h"
#include "link/text.h"
#include "platform/code_page.h"
#include "platform/runtime_failure.h"
#include "platform/sqlite/phone_book_file.h"

namespace gsm::driver {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFileName = "phonebook.mdb";

bool sameName(const std::string& a, const std::string& b) { return upperCase(a) == upperCase(b); }

const PhoneBookTable& tableOf(const Request& request) {
  const std::string name = request.text("table");
  const auto& tables = phoneBookTables();
  const auto table = std::find_if(tables.begin(), tables.end(),
                                  [&name](const auto& each) { return sameName(each.name, name); });
  if (table == tables.end()) throw BadRequest("there is no table '" + name + "'");
  return *table;
}

using Row = std::vector<std::pair<std::string, std::string>>;  // column, value

std::vector<Row> rowsOf(const Request& request, const PhoneBookTable& table) {
  const Json& list = request.raw("rows");
  if (!list.is_array()) throw BadRequest("field 'rows' must be a list");
  std::vector<Row> rows;
  for (const Json& each : list) {
    if (!each.is_object()) throw BadRequest("a row is an object of columns");
    Row row;
    for (const auto& [column, value] : each.items()) {
      const auto isThis = [&name = column](const std::string& own) { return sameName(own, name); };
      if (std::none_of(table.columns.begin(), table.columns.end(), isThis)) {
        throw BadRequest("table " + table.name + " has no column '" + column + "'");
      }
      row.emplace_back(column, textOf(value, column.c_str()));
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

// A failure of the database is the answer to a request that asked for it.
template <class Work>
auto asked(Work&& work) {
  try {
    return work();
  } catch (const RuntimeFailure& failure) {
    throw BadRequest(failure.description());
  }
}

}  // namespace

fs::path Session::bookFolder(const Request& request) const {
  if (!request.has("folder")) {
    if (world_ == nullptr) throw BadRequest("before the start 'folder' must be given");
    return folder_;
  }
  const Json& folder = request.raw("folder");
  if (!folder.is_string()) throw BadRequest("field 'folder' must be a text");
  fs::path path(folder.get<std::string>());
  std::error_code ignored;
  if (!fs::is_directory(path, ignored)) {
    throw BadRequest("there is no folder '" + path.string() + "'");
  }
  return path;
}

Json Session::rows(const Request& request) {
  const PhoneBookTable& table = tableOf(request);
  const fs::path file = bookFolder(request) / kFileName;
  Json rows = Json::array();
  asked([&] {
    const auto set = SqliteEngine().OpenDatabase(file)->openRecordSet(table.name);
    for (; !set->isEof(); set->MoveNext()) {
      Json row = Json::object();
      for (const std::string& column : table.columns) row[column] = toUtf8(set->field(column));
      rows.push_back(row);
    }
  });
  return {{"rows", rows}};
}

Json Session::store(const Request& request) {
  const PhoneBookTable& table = tableOf(request);
  const std::vector<Row> rows = rowsOf(request, table);
  const fs::path file = ignoringCase(bookFolder(request) / kFileName);
  asked([&] {
    std::error_code ignored;
    if (world_ == nullptr && !fs::exists(file, ignored)) createPhoneBook(file);
    const auto database = SqliteEngine().OpenDatabase(file);
    database->Execute("begin immediate");  // all rows or, when one can't be stored, none
    database->Execute("delete from " + table.name);
    const auto set = database->openRecordSet(table.name);
    for (const Row& row : rows) {
      set->AddNew();
      for (const auto& [column, value] : row) set->setField(column, value);
      set->Update();
    }
    database->Execute("commit");
  });
  return Json::object();
}

}  // namespace gsm::driver
