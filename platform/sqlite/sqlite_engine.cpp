#include "platform/sqlite/sqlite_engine.h"

#include <strings.h>

#include <array>
#include <fstream>
#include <string_view>

#include "platform/code_page.h"
#include "platform/sqlite/connection.h"
#include "platform/sqlite/database_failure.h"
#include "platform/sqlite/sqlite_record_set.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

class SqliteDatabase : public Database {
 public:
  explicit SqliteDatabase(const fs::path& file) : connection_(std::make_shared<Connection>(file)) {
    // The library looks into a file only when it must: see here whether it is a database at all.
    Statement(*connection_, "PRAGMA schema_version").step();
  }

  void Execute(const std::string& statement) override {
    Statement run(*connection_, toUtf8(statement));
    while (run.step()) {}
  }

  std::unique_ptr<RecordSet> openRecordSet(const std::string& table) override {
    return std::make_unique<SqliteRecordSet>(connection_, table);
  }

 private:
  std::shared_ptr<Connection> connection_;
};

// Phone books of old machines are files of another engine, with this text at their beginning.
bool isJetFile(const fs::path& file) {
  constexpr std::string_view kMark = "Standard Jet DB";
  std::array<char, 4 + kMark.size()> head{};
  std::ifstream stream(file, std::ios::binary);
  stream.read(head.data(), static_cast<std::streamsize>(head.size()));
  return stream && std::string_view(head.data() + 4, kMark.size()) == kMark;
}

}  // namespace

fs::path ignoringCase(const fs::path& file) {
  std::error_code error;
  if (fs::exists(file, error)) return file;
  const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
  fs::directory_iterator each(folder, error);
  for (; !error && each != fs::directory_iterator(); each.increment(error)) {
    if (strcasecmp(each->path().filename().c_str(), file.filename().c_str()) == 0) {
      return each->path();
    }
  }
  return file;
}

std::shared_ptr<Database> SqliteEngine::OpenDatabase(const fs::path& name) {
  const fs::path file = ignoringCase(name);
  std::error_code error;
  if (!fs::is_regular_file(file, error)) {
    throw databaseFailure(DatabaseFault::noFile, file.string());
  }
  if (isJetFile(file)) {
    throw databaseFailureSaying(DatabaseFault::badFormat,
                                "Unrecognized database format '" + file.string() +
                                    "': it comes from an old machine. Bring it over with "
                                    "phonebook-import OLD NEW.");
  }
  return std::make_shared<SqliteDatabase>(file);
}

}  // namespace gsm
