#include "platform/sqlite/phone_book_file.h"

#include <fstream>

#include "platform/sqlite/connection.h"
#include "platform/sqlite/database_failure.h"
#include "platform/sqlite/names.h"

namespace gsm {

const std::vector<PhoneBookTable>& phoneBookTables() {
  static const std::vector<PhoneBookTable> tables = {
      {"DATA", {"Index", "Number", "Name"}},
      {"Details", {"TotalIndex", "UsedIndex"}},
  };
  return tables;
}

namespace {

void createTables(const std::filesystem::path& file) {
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

}  // namespace

void createPhoneBook(const std::filesystem::path& file) {
  std::error_code error;
  if (std::filesystem::exists(file, error)) {
    throw databaseFailure(DatabaseFault::fileIsThere, file.string());
  }
  if (!std::ofstream(file)) {
    throw databaseFailureSaying(DatabaseFault::cannotOpen,
                                "Couldn't make the file '" + file.string() + "'.");
  }
  try {
    createTables(file);
  } catch (const RuntimeFailure&) {
    std::filesystem::remove(file, error);  // or it would be in the way of the next try
    throw;
  }
}

}  // namespace gsm
