#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "importer/jet_file.h"

namespace gsm {

/// What came over.
struct PhoneBookImport {
  struct Table {
    std::string name;
    std::size_t rows = 0;
  };
  std::vector<Table> tables;
  /// Texts with letters that Windows-1252 lacks. Each such letter has become "?".
  std::size_t unknownLetters = 0;
  /// Numbers, locations and counts from which control characters were left out.
  std::size_t controlCharacters = 0;
};

/// Makes the phone book `newFile` of the Jet database `oldFile`, which stays as it is.
///
/// A `RuntimeFailure` with a text for the user when the old file can't be read as a phone book,
/// when there is a `newFile` already, whatever the case of its name, or it can't be made. There is
/// then no new file.
PhoneBookImport importPhoneBook(const std::filesystem::path& oldFile,
                                const std::filesystem::path& newFile, const JetBounds& bounds = {});

}  // namespace gsm
