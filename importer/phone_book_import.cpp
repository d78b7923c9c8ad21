#include "importer/phone_book_import.h"

#include <stdlib.h>

#include "platform/code_page.h"
#include "platform/sqlite/database_failure.h"
#include "platform/sqlite/phone_book_file.h"
#include "platform/sqlite/sqlite_engine.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

void checkFree(const fs::path& file) {
  std::error_code error;
  // A link into nowhere is in the way too.
  if (fs::symlink_status(file, error).type() != fs::file_type::not_found) {
    throw databaseFailure(DatabaseFault::fileIsThere, file.string());
  }
}

// A folder beside a file, on the same disk, that goes with all that is left in it: the database and
// the engine's own files.
class FolderBeside {
 public:
  explicit FolderBeside(const fs::path& file) {
    std::string name = file.string() + ".XXXXXX";
    if (mkdtemp(name.data()) == nullptr) {
      throw databaseFailureSaying(DatabaseFault::cannotOpen,
                                  "Couldn't make the file '" + file.string() + "'.");
    }
    path_ = name;
  }
  ~FolderBeside() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  FolderBeside(const FolderBeside&) = delete;
  FolderBeside& operator=(const FolderBeside&) = delete;

  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

std::vector<JetTable> wantedTables() {
  std::vector<JetTable> tables;
  for (const PhoneBookTable& table : phoneBookTables()) {
    tables.push_back({table.name, table.columns});
  }
  return tables;
}

std::size_t store(Database& book, const JetTable& table, const std::vector<JetRow>& rows) {
  std::size_t unknown = 0;
  const auto set = book.openRecordSet(table.name);
  for (const JetRow& row : rows) {
    set->AddNew();
    for (std::size_t column = 0; column < row.size(); ++column) {
      const std::string text = fromUtf8(row[column]);
      if (toUtf8(text) != row[column]) ++unknown;
      set->setField(table.columns[column], text);
    }
    set->Update();
  }
  return unknown;
}

}  // namespace

PhoneBookImport importPhoneBook(const fs::path& oldFile, const fs::path& newFile,
                                const JetBounds& bounds) {
  checkFree(newFile);
  const std::vector<JetTable> tables = wantedTables();
  const auto rows = readJetFile(oldFile, tables, bounds);

  const FolderBeside folder(newFile);
  const fs::path unfinished = folder.path() / "phonebook.mdb";
  createPhoneBook(unfinished);
  PhoneBookImport result;
  {
    const auto book = SqliteEngine().OpenDatabase(unfinished);
    book->Execute("begin");  // one write to the disk instead of one for each row
    for (std::size_t index = 0; index < tables.size(); ++index) {
      result.unknownLetters += store(*book, tables[index], rows[index]);
      result.tables.push_back({tables[index].name, rows[index].size()});
    }
    book->Execute("commit");
  }
  checkFree(newFile);  // it has been a while
  std::error_code error;
  fs::rename(unfinished, newFile, error);
  if (error) {
    throw RuntimeFailure(
        3051, "Couldn't make the file '" + newFile.string() + "': " + error.message() + ".");
  }
  return result;
}

}  // namespace gsm
