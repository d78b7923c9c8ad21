#include "platform/sqlite/connection.h"

#include <string_view>

#include "platform/code_page.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

// Numbers of the run-time's failures of a database, by what the library says.
RuntimeFailure failureOf(sqlite3* handle) {
  const std::string description = fromUtf8(sqlite3_errmsg(handle));
  switch (sqlite3_errcode(handle) & 0xFF) {
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT: return {3343, "Unrecognized database format: " + description};
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return {3218, "Couldn't update; currently locked: " + description};
    case SQLITE_READONLY: return {3027, "Can't update. Database or object is read-only."};
    case SQLITE_FULL: return {3049, "Disk full: " + description};
    case SQLITE_CANTOPEN: return {3051, "Couldn't open the database: " + description};
    default: return {3146, "Database failure: " + description};
  }
}

}  // namespace

Connection::Connection(const std::filesystem::path& file) : handle_(nullptr, &sqlite3_close) {
  sqlite3* handle = nullptr;
  const int result =
      sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE, /*zVfs=*/nullptr);
  handle_.reset(handle);
  if (result != SQLITE_OK) throw failureOf(handle);
  sqlite3_extended_result_codes(handle, 1);
  // What has been stored outlives a loss of power: that the journal is gone must be on the disk
  // too, or the change would be rolled back with the next opening.
  Statement(*this, "PRAGMA synchronous=EXTRA").step();
}

std::vector<std::string> Connection::columnsOf(const std::string& table) const {
  Statement query(*this, "SELECT name FROM pragma_table_info(?1)");
  query.bind(1, table);
  std::vector<std::string> columns;
  while (query.step()) columns.push_back(query.text(0));
  return columns;
}

Statement::Statement(const Connection& connection, const std::string& sql)
    : connection_(connection), statement_(nullptr, &sqlite3_finalize) {
  sqlite3_stmt* statement = nullptr;
  const char* rest = nullptr;
  const int result = sqlite3_prepare_v2(connection.handle(), sql.c_str(),
                                        static_cast<int>(sql.size()), &statement, &rest);
  statement_.reset(statement);
  if (result != SQLITE_OK) throw failureOf(connection.handle());
  if (statement == nullptr) throw RuntimeFailure(3129, "Invalid SQL statement");
  if (std::string_view(rest).find_first_not_of("; \t\r\n") != std::string_view::npos) {
    throw RuntimeFailure(3142, "Characters found after end of SQL statement.");
  }
}

void Statement::bind(int parameter, const std::string& text) {
  sqlite3_bind_text(statement_.get(), parameter, text.data(), static_cast<int>(text.size()),
                    SQLITE_TRANSIENT);
}

void Statement::bind(int parameter, sqlite3_int64 number) {
  sqlite3_bind_int64(statement_.get(), parameter, number);
}

bool Statement::step() {
  switch (sqlite3_step(statement_.get())) {
    case SQLITE_ROW: return true;
    case SQLITE_DONE: return false;
    default: break;
  }
  const RuntimeFailure failure = failureOf(connection_.handle());
  reset();
  throw failure;
}

void Statement::mustChangeARow() {
  step();
  if (sqlite3_changes(connection_.handle()) == 0) {
    throw RuntimeFailure(3167, "Record is deleted.");
  }
}

sqlite3_int64 Statement::number(int column) const {
  return sqlite3_column_int64(statement_.get(), column);
}

std::string Statement::text(int column) const {
  const unsigned char* text = sqlite3_column_text(statement_.get(), column);
  const int size = sqlite3_column_bytes(statement_.get(), column);
  if (text == nullptr) return {};
  return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(size)};
}

std::string quotedName(const std::string& name) {
  std::string quoted = "\"";
  for (const char character : name) {
    if (character == '"') quoted += '"';
    quoted += character;
  }
  return quoted + "\"";
}

}  // namespace gsm
