#include "simulator/card/phone_book_text.h"

#include <utility>

#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

std::string describe(EntryFlaw flaw, std::size_t nameRoom) {
  switch (flaw) {
    case EntryFlaw::kEmpty: return "there is neither a number nor a name";
    case EntryFlaw::kNumberTooLong:
      return "the number is longer than " + std::to_string(kLongestNumber) + " digits";
    case EntryFlaw::kNumberMalformed: return "the number isn't one";
    case EntryFlaw::kNameTooLong:
      return "the name is longer than " + std::to_string(nameRoom) + " characters";
    case EntryFlaw::kNameMalformed: break;
  }
  return "the name has a character that can't be in one";
}

// Adds the entry of a line; otherwise says why there is none.
std::string readLine(std::string_view line, std::size_t nameRoom, PhoneBookEntries& entries) {
  const auto location = parseNumber<int>(takeUpTo('\t', line));
  if (!location || !isPhoneBookLocation(*location)) {
    return "the location isn't a number from 1 to " + std::to_string(kPhoneBookLocations);
  }
  PhoneBookEntry entry;
  entry.number = takeUpTo('\t', line);
  entry.name = line;
  if (const auto flaw = flawOf(entry, nameRoom)) return describe(*flaw, nameRoom);
  if (entries.try_emplace(*location, std::move(entry)).second) return {};
  return "location " + std::to_string(*location) + " has an entry already";
}

}  // namespace

std::string toText(const PhoneBookEntries& entries) {
  std::string text;
  for (const auto& [location, entry] : entries) {
    text += std::to_string(location) + "\t" + entry.number + "\t" + entry.name + "\n";
  }
  return text;
}

PhoneBookReading readPhoneBook(std::string_view text, std::size_t nameRoom) {
  PhoneBookReading reading;
  reading.complaints = eachLine(
      text, [&](std::string_view line) { return readLine(line, nameRoom, reading.entries); });
  return reading;
}

}  // namespace gsm::simulator
