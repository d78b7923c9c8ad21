#include "simulator/host/file_phone_book.h"

#include "simulator/card/phone_book_text.h"

namespace gsm::pty {

simulator::PhoneBookEntries FilePhoneBook::load(std::size_t nameRoom) const {
  const auto text = file_.read();
  if (!text) return simulator::factoryPhoneBook();
  auto reading = simulator::readPhoneBook(*text, nameRoom);
  file_.complain(reading.complaints);
  return std::move(reading.entries);
}

}  // namespace gsm::pty
