#pragma once

#include <filesystem>
#include <functional>
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

/// A failure when there can't be a new phone book of that name: there is one already, whatever the
/// case of its name, or an engine's journal is left of one that is gone.
void checkPlaceForPhoneBook(const std::filesystem::path& file);

/// Makes a phone book: an empty one, or one with the rows that `fill` stores into the file whose
/// name it is given. For builds, importers and tests: the panel never does. A failure that says why
/// when there is no place for it, it can't be made, or `fill` fails; there is then no new file.
void createPhoneBook(const std::filesystem::path& file,
                     const std::function<void(const std::filesystem::path&)>& fill = nullptr);

/// Makes an empty phone book unless there is one, whatever the case of its name. A failure like
/// those above, and when there are several, since only one of them would ever be used.
void createPhoneBookUnlessThere(const std::filesystem::path& file);

}  // namespace gsm
