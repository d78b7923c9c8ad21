#include "platform/sqlite/sqlite_engine.h"

#include "platform/code_page.h"
#include "platform/sqlite/connection.h"
#include "platform/sqlite/database_failure.h"
#include "platform/sqlite/sqlite_record_set.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

class SqliteDatabase : public Database {
 public:
  SqliteDatabase(const fs::path& file, std::chrono::milliseconds patience)
      : connection_(std::make_shared<Connection>(file, patience)) {}

  void Execute(const std::string& statement) override {
    withinMemory([&] {
      Statement run(*connection_, toUtf8(statement));
      while (run.step()) {}
    });
  }

  std::unique_ptr<RecordSet> openRecordSet(const std::string& source) override {
    return withinMemory([&] { return std::make_unique<SqliteRecordSet>(connection_, source); });
  }

 private:
  std::shared_ptr<Connection> connection_;
};

}  // namespace

std::shared_ptr<Database> SqliteEngine::OpenDatabase(const fs::path& name) {
  const fs::path file = ignoringCase(name);
  std::error_code error;
  if (!fs::is_regular_file(file, error)) {
    throw databaseFailure(DatabaseFault::noFile, file.string());
  }
  return withinMemory([&] { return std::make_shared<SqliteDatabase>(file, patience_); });
}

}  // namespace gsm
