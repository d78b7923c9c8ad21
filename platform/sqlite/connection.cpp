#include "platform/sqlite/connection.h"

#include <string_view>

#include "platform/code_page.h"
#include "platform/sqlite/database_failure.h"

namespace gsm {
namespace {

DatabaseFault faultOf(int result) {
  switch (result & 0xFF) {
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT: return DatabaseFault::badFormat;
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return DatabaseFault::locked;
    case SQLITE_READONLY: return DatabaseFault::readOnly;
    case SQLITE_FULL: return DatabaseFault::diskFull;
    case SQLITE_CANTOPEN: return DatabaseFault::cannotOpen;
    default: return DatabaseFault::other;
  }
}

RuntimeFailure failureOf(sqlite3* handle) {
  return databaseFailure(faultOf(sqlite3_errcode(handle)), fromUtf8(sqlite3_errmsg(handle)));
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
  if (statement == nullptr) throw databaseFailure(DatabaseFault::noStatement);
  if (std::string_view(rest).find_first_not_of("; \t\r\n") != std::string_view::npos) {
    throw databaseFailure(DatabaseFault::severalStatements);
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
    throw databaseFailure(DatabaseFault::recordDeleted);
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
