#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace gsm::simulator {

struct PhoneBookEntry {
  std::string number;  // with its plus; may be empty when there is a name
  std::string name;

  friend bool operator==(const PhoneBookEntry&, const PhoneBookEntry&) = default;
};

// The entries by their locations, with holes where there is none.
using PhoneBookEntries = std::map<int, PhoneBookEntry>;

inline constexpr int kPhoneBookLocations = 250;  // the first is 1
inline constexpr std::size_t kLongestNumber = 20;

// Cards differ in the room for a name; these are its limits.
inline constexpr std::size_t kShortestNameRoom = 10;
inline constexpr std::size_t kLongestNameRoom = 14;

constexpr bool isPhoneBookLocation(int location) {
  return location >= 1 && location <= kPhoneBookLocations;
}

// What keeps an entry out of a phone book.
enum class EntryFlaw {
  kEmpty,
  kNumberTooLong,
  kNumberMalformed,
  kNameTooLong,
  kNameMalformed,  // a quote or a control character, which no reply could carry
};

// The first flaw of `entry` on a card with room for names of `nameRoom` bytes; nothing for a good
// one.
std::optional<EntryFlaw> flawOf(const PhoneBookEntry& entry, std::size_t nameRoom);

// What a card has that nobody wrote to.
PhoneBookEntries factoryPhoneBook();

// The card's phone book.
class PhoneBook {
 public:
  // Takes all the entries as text after a change, and says whether they could be kept.
  using Keep = std::function<bool(std::string_view text)>;

  PhoneBook(PhoneBookEntries entries, std::size_t nameRoom, Keep keep)
      : entries_(std::move(entries)), nameRoom_(nameRoom), keep_(std::move(keep)) {}

  const PhoneBookEntries& entries() const { return entries_; }
  std::size_t nameRoom() const { return nameRoom_; }

  // Nothing when the book is full.
  std::optional<int> firstFree() const;

  // Writes an entry without a flaw to a location of the book. False, with nothing changed, when the
  // change can't be kept; so is `erase`.
  bool store(int location, PhoneBookEntry entry);

  // Empties a location, which may be empty already.
  bool erase(int location);

 private:
  bool change(PhoneBookEntries entries);

  PhoneBookEntries entries_;
  std::size_t nameRoom_;
  Keep keep_;
};

}  // namespace gsm::simulator
