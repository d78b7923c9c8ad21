#include "platform/sqlite/phone_book_file.h"

#include <fstream>

#include "platform/sqlite/connection.h"
#include "platform/sqlite/database_failure.h"
#include "platform/sqlite/file_name.h"
#include "platform/sqlite/names.h"
#include "platform/sqlite/unfinished_file.h"

namespace gsm {

namespace fs = std::filesystem;

const std::vector<PhoneBookTable>& phoneBookTables() {
  static const std::vector<PhoneBookTable> tables = {
      {"DATA", {"Index", "Number", "Name"}},
      {"Details", {"TotalIndex", "UsedIndex"}},
  };
  return tables;
}

namespace {

void createTables(const fs::path& file) {
  const Connection connection(file);  // an empty file is an empty database
  Statement(connection, "BEGIN").step();
  for (const PhoneBookTable& table : phoneBookTables()) {
    std::string columns;
    for (const std::string& column : table.columns) {
      columns += (columns.empty() ? "" : ", ") + quotedName(column) + " TEXT";
    }
    Statement(connection, "CREATE TABLE " + quotedName(table.name) + " (" + columns + ")").step();
  }
  Statement(connection, "COMMIT").step();
}

std::string namesOf(const std::vector<fs::path>& files) {
  std::string names;
  for (const fs::path& each : files) names += (names.empty() ? "'" : ", '") + each.string() + "'";
  return names;
}

}  // namespace

void checkPlaceForPhoneBook(const fs::path& file) {
  const auto namesakes = namesakesOf(file);
  if (!namesakes.empty()) {
    throw databaseFailure(DatabaseFault::fileIsThere, namesakes.front().string());
  }
  // The engine would take such a file for the new one's and play old changes into it.
  for (const char* end : {"-journal", "-wal", "-shm"}) {
    const fs::path journal = file.string() + end;
    std::error_code error;
    if (fs::symlink_status(journal, error).type() == fs::file_type::not_found) continue;
    throw databaseFailureSaying(DatabaseFault::fileIsThere,
                                "There is a file '" + journal.string() +
                                    "', left of a phone book that is gone. Remove it first: what "
                                    "it holds would be stored into the new one.");
  }
}

void createPhoneBook(const fs::path& file, const std::function<void(const fs::path&)>& fill) {
  checkPlaceForPhoneBook(file);
  UnfinishedFile unfinished(file);
  std::ofstream(unfinished.path()).close();
  createTables(unfinished.path());
  if (fill) fill(unfinished.path());
  checkPlaceForPhoneBook(file);  // it may have been a while
  unfinished.finish();
}

void createPhoneBookUnlessThere(const fs::path& file) {
  const auto namesakes = namesakesOf(file);
  if (namesakes.empty()) return createPhoneBook(file);
  if (namesakes.size() == 1) return;
  throw databaseFailureSaying(DatabaseFault::fileIsThere,
                              "There are " + std::to_string(namesakes.size()) +
                                  " files of that name: " + namesOf(namesakes) +
                                  ". Keep one: the first is the only one that is ever used.");
}

}  // namespace gsm
