#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/card/phone_book.h"

namespace gsm::simulator {

// The phone book as text: one entry on a line, as its location, its number and its name with a tab
// between them.
std::string toText(const PhoneBookEntries& entries);

// What a text holds, with a sentence on every line that can't be an entry.
struct PhoneBookReading {
  PhoneBookEntries entries;
  std::vector<std::string> complaints;
};

// Reads the entries of a card with room for names of `nameRoom` bytes. Empty lines are passed over,
// and the name with its tab may be left out. Of two entries for a location the first one stays.
PhoneBookReading readPhoneBook(std::string_view text, std::size_t nameRoom);

}  // namespace gsm::simulator
