// Brings the phone book of an old machine over: a Jet database becomes the program's own file.

#include <exception>
#include <iostream>
#include <string>

#include "importer/phone_book_import.h"

namespace {

constexpr int kFailed = 1;
constexpr int kBadUsage = 2;

constexpr const char* kUsage =
    "usage: phonebook-import OLD NEW\n"
    "Makes the phone book NEW of OLD, a Jet 3 or Jet 4 database with the tables DATA (Index,\n"
    "Number, Name) and Details (TotalIndex, UsedIndex). OLD stays as it is; there must be no "
    "NEW,\n"
    "in small letters or capitals.\n";

void tell(const gsm::PhoneBookImport& done) {
  for (const auto& table : done.tables) {
    std::cout << table.name << ": " << table.rows << (table.rows == 1 ? " row\n" : " rows\n");
  }
  if (done.unknownLetters > 0) {
    std::cout << "Texts with letters that the program doesn't know, now \"?\": "
              << done.unknownLetters << "\n";
  }
  if (done.controlCharacters > 0) {
    std::cout << "Numbers and locations with control characters, which are left out: "
              << done.controlCharacters << "\n";
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count == 2 && std::string(arguments[1]) == "--help") {
    std::cout << kUsage;
    return 0;
  }
  // A name that begins with a dash is rather an option that there is not.
  if (count != 3 || arguments[1][0] == '-' || arguments[2][0] == '-') {
    std::cerr << kUsage;
    return kBadUsage;
  }
  try {
    tell(gsm::importPhoneBook(arguments[1], arguments[2]));
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "phonebook-import: " << failure.what() << "\n";
    return kFailed;
  }
}
