// Makes an empty phone book. The build lays one beside the programs with it.

#include <exception>
#include <iostream>
#include <string>

#include "platform/sqlite/phone_book_file.h"

namespace {

constexpr int kFailed = 1;
constexpr int kBadUsage = 2;

constexpr const char* kUsage =
    "usage: phonebook-create [--unless-there] FILE\n"
    "Makes an empty phone book. There must be no such file yet, in small letters or capitals; "
    "with\n"
    "--unless-there one that is there stays, and nothing is made.\n";

}  // namespace

int main(int count, char** arguments) {
  if (count == 2 && std::string(arguments[1]) == "--help") {
    std::cout << kUsage;
    return 0;
  }
  const bool unlessThere = count == 3 && std::string(arguments[1]) == "--unless-there";
  const char* const file = arguments[count - 1];
  // A name that begins with a dash is rather an option that there is not.
  if ((count != 2 && !unlessThere) || file[0] == '-') {
    std::cerr << kUsage;
    return kBadUsage;
  }
  try {
    unlessThere ? gsm::createPhoneBookUnlessThere(file) : gsm::createPhoneBook(file);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "phonebook-create: " << failure.what() << "\n";
    return kFailed;
  }
}
