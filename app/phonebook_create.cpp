// Makes an empty phone book. The build lays one beside the programs with it.

#include <exception>
#include <iostream>
#include <string>

#include "platform/sqlite/phone_book_file.h"

namespace {

constexpr int kFailed = 1;
constexpr int kBadUsage = 2;

constexpr const char* kUsage =
    "usage: phonebook-create FILE\n"
    "Makes an empty phone book. There must be no such file yet.\n";

}  // namespace

int main(int count, char** arguments) {
  if (count == 2 && std::string(arguments[1]) == "--help") {
    std::cout << kUsage;
    return 0;
  }
  // A name that begins with a dash is rather an option that there is not.
  if (count != 2 || arguments[1][0] == '-') {
    std::cerr << kUsage;
    return kBadUsage;
  }
  try {
    gsm::createPhoneBook(arguments[1]);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "phonebook-create: " << failure.what() << "\n";
    return kFailed;
  }
}
