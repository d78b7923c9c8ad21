#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace gsm {

/// A table of a phone book file, with its columns in their order.
struct PhoneBookTable {
  std::string name;
  std::vector<std::string> columns;
};

/// The tables that a phone book has: `DATA`, one row an entry, and `Details`, the counts.
const std::vector<PhoneBookTable>& phoneBookTables();

/// Makes an empty phone book. For builds, importers and tests: the program never does. A failure
/// when the file is there already or can't be made.
void createPhoneBook(const std::filesystem::path& file);

}  // namespace gsm
