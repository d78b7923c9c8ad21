#include "platform/sqlite/connection.h"

#include <array>
#include <new>
#include <string_view>

#include "platform/code_page.h"
#include "platform/sqlite/database_failure.h"

namespace gsm {
namespace {

// What a sound phone book is far from.
constexpr int kLongestText = 1 << 20;          // bytes, of a row's columns together too
constexpr std::size_t kMostText = 64 << 20;    // bytes that one walk gives
constexpr int kMostThousandsOfSteps = 20'000;  // of the library's machine, for a statement

DatabaseFault faultOf(int result) {
  switch (result & 0xFF) {
    case SQLITE_NOMEM: return DatabaseFault::outOfMemory;
    case SQLITE_NOTADB:
    case SQLITE_INTERRUPT:  // by the count of steps: nothing else interrupts
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
  const int result = handle == nullptr ? SQLITE_NOMEM : sqlite3_errcode(handle);
  const char* const words =
      (result & 0xFF) == SQLITE_INTERRUPT ? "it leads in circles" : sqlite3_errmsg(handle);
  return databaseFailure(faultOf(result), fromUtf8(words));
}

// The schema of a file is somebody's program: nothing in it may run when a row is read or stored,
// nor may what runs spoil the file itself.
void distrust(sqlite3* handle) {
  struct Option {
    int name;
    int value;
  };
  constexpr Option kOptions[] = {{.name = SQLITE_DBCONFIG_DEFENSIVE, .value = 1},
                                 {.name = SQLITE_DBCONFIG_TRUSTED_SCHEMA, .value = 0},
                                 {.name = SQLITE_DBCONFIG_ENABLE_TRIGGER, .value = 0},
                                 {.name = SQLITE_DBCONFIG_ENABLE_VIEW, .value = 0}};
  for (const Option& option : kOptions) {
    sqlite3_db_config(handle, option.name, option.value, nullptr);
  }
  sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, kLongestText);
  sqlite3_limit(handle, SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 100);
  sqlite3_limit(handle, SQLITE_LIMIT_ATTACHED, 0);
  sqlite3_limit(handle, SQLITE_LIMIT_WORKER_THREADS, 0);
}

// Phone books of old machines are files of another engine, with this text at their beginning.
constexpr std::string_view kJetMark = "Standard Jet DB";
constexpr std::size_t kJetHead = 4 + kJetMark.size();

bool isJetFile(const std::array<char, kJetHead>& head) {
  return std::string_view(head.data() + 4, kJetMark.size()) == kJetMark;
}

}  // namespace

Connection::Connection(const std::filesystem::path& file, std::chrono::milliseconds patience)
    : handle_(nullptr, &sqlite3_close) {
  // The full name, since a name that begins with "file:" or is ":memory:" means something else to
  // the library.
  const std::string name = std::filesystem::absolute(file).string();
  sqlite3* handle = nullptr;
  const int result =
      sqlite3_open_v2(name.c_str(), &handle, SQLITE_OPEN_READWRITE, /*zVfs=*/nullptr);
  handle_.reset(handle);
  if (result != SQLITE_OK) throw failureOf(handle);
  sqlite3_extended_result_codes(handle, 1);
  sqlite3_busy_timeout(handle, static_cast<int>(patience.count()));
  distrust(handle);
  sqlite3_progress_handler(handle, 1000, &countSteps, this);
  try {
    // What has been stored outlives a loss of power: that the journal is gone must be on the disk
    // too, or the change would be rolled back with the next opening.
    Statement(*this, "PRAGMA synchronous=EXTRA").step();
    Statement(*this, "PRAGMA cell_size_check=ON").step();
    // The library looks into a file only when it must: see here whether it is a database at all.
    Statement(*this, "PRAGMA schema_version").step();
  } catch (const RuntimeFailure&) {
    if (sqlite3_errcode(handle) == SQLITE_NOTADB && isJetFile(bytesAt<kJetHead>(0))) {
      throw databaseFailureSaying(DatabaseFault::badFormat,
                                  "Unrecognized database format '" + name +
                                      "': it comes from an old machine. Bring it over with "
                                      "phonebook-import OLD NEW.");
    }
    throw;
  }
}

void Connection::read(std::span<char> bytes, std::size_t offset) const {
  sqlite3_file* file = nullptr;
  sqlite3_file_control(handle_.get(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
  if (file == nullptr || file->pMethods == nullptr) return;
  file->pMethods->xRead(file, bytes.data(), static_cast<int>(bytes.size()),
                        static_cast<sqlite3_int64>(offset));
}

std::optional<Connection::State> Connection::state() const {
  // Where it begins there are two bytes for how the journal is kept, and six further on, four that
  // count the changes.
  const State state{bytesAt<10>(18), sqlite3_total_changes64(handle_.get())};
  constexpr char kWriteAheadLog = 2;
  const bool waitsElsewhere = state.file[0] == kWriteAheadLog || state.file[1] == kWriteAheadLog ||
                              sqlite3_get_autocommit(handle_.get()) == 0;
  return waitsElsewhere ? std::nullopt : std::optional(state);
}

int Connection::countSteps(void* connection) {
  return ++static_cast<Connection*>(connection)->thousandsOfSteps_ > kMostThousandsOfSteps ? 1 : 0;
}

std::vector<std::string> Connection::columnsOf(const std::string& table) const {
  // A view has no page of its own, nor has a table that a program's module makes up.
  Statement named(*this,
                  "SELECT name FROM sqlite_master WHERE type='table' AND rootpage>0 AND "
                  "name=?1 COLLATE NOCASE");
  named.bind(1, table);
  if (!named.step()) return {};
  Statement query(*this, "SELECT name FROM pragma_table_info(?1)");
  query.bind(1, table);
  std::vector<std::string> columns;
  while (query.step()) columns.push_back(query.text(0));
  return columns;
}

Statement::Statement(const Connection& connection, const std::string& sql)
    : connection_(connection), statement_(nullptr, &sqlite3_finalize) {
  connection_.thousandsOfSteps_ = 0;  // preparing reads the schema
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
  const int result = sqlite3_bind_text64(statement_.get(), parameter, text.data(), text.size(),
                                         SQLITE_TRANSIENT, SQLITE_UTF8);
  if (result != SQLITE_OK) throw failureOf(connection_.handle());
}

void Statement::bind(int parameter, sqlite3_int64 number) {
  sqlite3_bind_int64(statement_.get(), parameter, number);
}

bool Statement::step() {
  checkText(textGiven_);
  connection_.thousandsOfSteps_ = thousandsOfSteps_;
  const int result = sqlite3_step(statement_.get());
  thousandsOfSteps_ = connection_.thousandsOfSteps_;
  switch (result) {
    case SQLITE_ROW: return true;
    case SQLITE_DONE: return false;
    default: break;
  }
  const RuntimeFailure failure = failureOf(connection_.handle());
  reset();
  throw failure;
}

void Statement::reset() {
  sqlite3_reset(statement_.get());
  thousandsOfSteps_ = 0;
  textGiven_ = 0;
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
  if (text == nullptr) {
    if ((sqlite3_errcode(connection_.handle()) & 0xFF) == SQLITE_NOMEM) throw std::bad_alloc();
    return {};
  }
  textGiven_ += static_cast<std::size_t>(size);
  return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(size)};
}

void checkText(std::size_t bytes) {
  if (bytes > kMostText) {
    throw databaseFailure(DatabaseFault::badFormat, "its texts have no end");
  }
}

void checkOrder(sqlite3_int64 before, sqlite3_int64 key) {
  if (key <= before) throw databaseFailure(DatabaseFault::badFormat, "it leads in circles");
}

}  // namespace gsm
