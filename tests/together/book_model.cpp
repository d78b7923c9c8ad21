#include "tests/together/book_model.h"

#include <algorithm>
#include <cctype>

namespace gsm {
namespace {

constexpr int kLocations = 250;
constexpr std::size_t kLongestNumber = 20;  // on the card, without a plus, and in the list, with it
constexpr std::size_t kCardsNameRoom = 14;

std::string listRow(const std::string& index, const std::string& number, const std::string& name) {
  return index + "  " + number + std::string(kLongestNumber - number.size(), ' ') + name;
}

std::string lastTen(const std::string& number) {
  return number.size() < 10 ? number : number.substr(number.size() - 10);
}

std::string upper(std::string text) {
  for (char& each : text) each = static_cast<char>(std::toupper(static_cast<unsigned char>(each)));
  return text;
}

std::string trimmed(const std::string& text) {
  const auto begin = text.find_first_not_of(' ');
  return begin == std::string::npos ? ""
                                    : text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

std::string upToBlank(const std::string& text) {
  const auto blank = text.find(' ');
  return blank == std::string::npos ? "" : text.substr(0, blank);
}

}  // namespace

bool BookModel::endsDownload(const CardEntry& entry) {
  const auto& [number, name] = entry;
  return number.size() < 3 || number.size() > kLongestNumber || name.size() > 13 ||
         number.size() + name.size() > 26;
}

std::optional<std::string> BookModel::nameOfCaller(const std::string& number) const {
  for (const Row& entry : entries_) {
    if (lastTen(entry[1]) == lastTen(number)) return entry[2];
  }
  return std::nullopt;
}

void BookModel::open() {
  if (!window_ && !silent_) load();
}

void BookModel::load() {
  window_.emplace();
  if (entries_.empty()) {
    if (!silent_) download();
  } else {
    for (const Row& entry : entries_) {
      window_->list.push_back(listRow(entry[0], entry[1], entry[2]));
    }
  }
  if (counts_.empty()) return;
  window_->total = counts_.front()[0];
  window_->used = counts_.front()[1];
}

void BookModel::reload() {
  window_->list.clear();
  if (!silent_) download();
}

// As many locations as there are entries, from the first one on.
void BookModel::download() {
  const int used = static_cast<int>(card_.size());
  window_->used = std::to_string(used);
  window_->total = std::to_string(kLocations);
  entries_.clear();
  counts_ = {{window_->total, window_->used}};
  for (int location = 1; location <= used; ++location) {
    const auto found = card_.find(location);
    if (found == card_.end() || found->second.number.empty()) continue;
    if (endsDownload(found->second)) return;
    const auto& [number, name] = found->second;
    const std::string index = std::to_string(location);
    entries_.push_back({index, number, name});
    window_->list.push_back(listRow(index, number, name));
  }
}

std::string BookModel::add(const NewEntry& entry) {
  if (entry.number.empty() || entry.name.empty()) return "Please Enter Valid Number/Name";
  const int used = std::stoi(window_->used);
  if (used >= std::stoi(window_->total)) return "Address Book full";
  const int location = used + 1;
  const std::string phone = entry.countryCode + entry.areaCode + entry.number;
  write(location, phone, " " + entry.name);

  // Whatever the modem has said. The list has no place for a longer number.
  if (phone.size() > kLongestNumber) return {};
  const std::string index = std::to_string(location);
  window_->list.push_back(listRow(index, phone, upper(entry.name)));
  window_->used = index;
  entries_.push_back({index, phone, upper(entry.name)});
  keepCounts(std::to_string(used));
  return {};
}

std::string BookModel::remove(std::size_t row) {
  pick(row);
  const std::string index = upToBlank(window_->list[row]);
  const int location = std::stoi(index);
  if (silent_ || location < 1 || location > kLocations) return "Error Occurred.Try Again";
  card_.erase(location);
  window_->list.erase(window_->list.begin() + static_cast<std::ptrdiff_t>(row));
  window_->used = std::to_string(std::stoi(window_->used) - 1);
  window_->dialBox.clear();
  // The first entry with that index, which need not be the one of the row.
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&index](const Row& entry) { return entry[0] == index; });
  if (found != entries_.end()) entries_.erase(found);
  keepCounts(index);
  return {};
}

std::string BookModel::removeUnheard(std::size_t row) {
  pick(row);
  card_.erase(std::stoi(upToBlank(window_->list[row])));
  return "Error Occurred.Try Again";
}

// The stored counts follow those of the window where the stored used count is the one given.
void BookModel::keepCounts(const std::string& storedUsed) {
  for (Row& row : counts_) {
    if (row[1] != storedUsed) continue;
    row = {window_->total, window_->used};
    return;
  }
}

// What the card doesn't take, the modem refuses, which nobody notices.
void BookModel::write(int location, const std::string& number, const std::string& name) {
  const bool plus = number.starts_with('+');
  const bool fits =
      number.size() - (plus ? 1 : 0) <= kLongestNumber && name.size() <= kCardsNameRoom;
  if (!silent_ && fits && location >= 1 && location <= kLocations) {
    card_[location] = {number, name};
  }
}

// After the index and its blanks, the text up to the next blank: with a number that fills its
// column, the name's first word too.
void BookModel::pick(std::size_t row) {
  const std::string& text = window_->list[row];
  window_->dialBox = upToBlank(trimmed(text.substr(upToBlank(text).size())));
}

}  // namespace gsm
