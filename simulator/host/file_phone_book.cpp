#include "simulator/host/file_phone_book.h"

#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <system_error>

#include "simulator/host/text_file.h"
#include "simulator/phone_book_text.h"

namespace gsm::pty {

simulator::PhoneBookEntries FilePhoneBook::load(std::size_t nameRoom) const {
  std::error_code ignored;
  if (!std::filesystem::exists(path_, ignored)) return simulator::factoryPhoneBook();
  const auto text = readTextFile(path_);
  if (!text) throw std::runtime_error("phone book " + path_ + " can't be read");
  auto reading = simulator::readPhoneBook(*text, nameRoom);
  for (const std::string& complaint : reading.complaints) {
    std::cerr << "phone book " << path_ << ", " << complaint << "\n";
  }
  return std::move(reading.entries);
}

bool FilePhoneBook::save(std::string_view text) const {
  if (replaceTextFile(path_, text)) return true;
  std::cerr << "phone book " << path_ << " can't be written\n";
  return false;
}

}  // namespace gsm::pty
