#include "platform/sqlite/connection.h"

#include <algorithm>
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

char foldCase(char character) {
  const auto byte = static_cast<unsigned char>(character);
  if (byte >= 'A' && byte <= 'Z') return static_cast<char>(byte + 0x20);
  if (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7) return static_cast<char>(byte + 0x20);
  switch (byte) {
    case 0x8A: return static_cast<char>(0x9A);
    case 0x8C: return static_cast<char>(0x9C);
    case 0x8E: return static_cast<char>(0x9E);
    case 0x9F: return static_cast<char>(0xFF);
    default: return character;
  }
}

std::string_view withoutTrailingBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char each) { return static_cast<unsigned char>(each) < 0x80; });
}

int compareFolded(std::string_view a, std::string_view b) {
  const auto [inA, inB] =
      std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                    [](char one, char other) { return foldCase(one) == foldCase(other); });
  if (inA == a.end() || inB == b.end()) return (inA != a.end()) - (inB != b.end());
  const auto order = [](char each) { return static_cast<unsigned char>(foldCase(each)); };
  return order(*inA) - order(*inB);
}

// Texts are equal without regard to case and to trailing blanks. Most are numbers, and needn't be
// converted for it.
int collate(void*, int sizeA, const void* bytesA, int sizeB, const void* bytesB) {
  const std::string_view a =
      withoutTrailingBlanks({static_cast<const char*>(bytesA), static_cast<std::size_t>(sizeA)});
  const std::string_view b =
      withoutTrailingBlanks({static_cast<const char*>(bytesB), static_cast<std::size_t>(sizeB)});
  if (isAscii(a) && isAscii(b)) return compareFolded(a, b);
  return compareFolded(fromUtf8(a), fromUtf8(b));
}

}  // namespace

Connection::Connection(const std::filesystem::path& file) : handle_(nullptr, &sqlite3_close) {
  sqlite3* handle = nullptr;
  const int result =
      sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE, /*zVfs=*/nullptr);
  handle_.reset(handle);
  if (result != SQLITE_OK) throw failureOf(handle);
  sqlite3_extended_result_codes(handle, 1);
  sqlite3_create_collation(handle, "PHONEBOOK", SQLITE_UTF8, nullptr, collate);
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
