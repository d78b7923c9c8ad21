#include "simulator/card/phone_book.h"

#include <algorithm>
#include <utility>

#include "simulator/card/phone_book_text.h"
#include "simulator/text/phone_number.h"
#include "simulator/text/text.h"

namespace gsm::simulator {

std::optional<EntryFlaw> flawOf(const PhoneBookEntry& entry, std::size_t nameRoom) {
  const auto& [number, name] = entry;
  if (number.empty() && name.empty()) return EntryFlaw::kEmpty;
  if (!number.empty() && !isPhoneNumber(number)) return EntryFlaw::kNumberMalformed;
  if (lengthOfNumber(number) > kLongestNumber) return EntryFlaw::kNumberTooLong;
  if (std::any_of(name.begin(), name.end(), [](char c) { return c == '"' || isControl(c); })) {
    return EntryFlaw::kNameMalformed;
  }
  if (name.size() > nameRoom) return EntryFlaw::kNameTooLong;
  return std::nullopt;
}

// The numbers, but the first, are from the blocks that are given to nobody but films. Among their
// last digits are those that answer, are busy and don't answer.
PhoneBookEntries factoryPhoneBook() {
  return {
      {1, {"112", "Emergency"}},     {2, {"+33639981201", "Anna"}},  {3, {"+33639984477", "Ben"}},
      {4, {"0199001234", "Carla"}},  {5, {"0261914728", "Dentist"}}, {6, {"+33639980106", "Emil"}},
      {7, {"+33199005500", "Work"}}, {8, {"0536491100", "Taxi"}},
  };
}

std::optional<int> PhoneBook::firstFree() const {
  for (int location = 1; isPhoneBookLocation(location); ++location) {
    if (!entries_.contains(location)) return location;
  }
  return std::nullopt;
}

bool PhoneBook::store(int location, PhoneBookEntry entry) {
  PhoneBookEntries changed = entries_;
  changed[location] = std::move(entry);
  return change(std::move(changed));
}

bool PhoneBook::erase(int location) {
  PhoneBookEntries changed = entries_;
  return changed.erase(location) == 0 || change(std::move(changed));
}

bool PhoneBook::change(PhoneBookEntries entries) {
  if (keep_ && !keep_(toText(entries))) return false;
  entries_ = std::move(entries);
  return true;
}

}  // namespace gsm::simulator
