#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace gsm {

/// What the user types into the window for a new entry.
struct NewEntry {
  std::string countryCode;
  std::string areaCode;
  std::string number;
  std::string name;
};

/// The book-keeping of the phone book as its rules tell it: what must stand on the card, in the
/// file and in the call window after what the user has done, and which message he must have seen.
///
/// It has a used count and no table of free locations, so its ways are odd, and each of them is
/// meant: an entry added after a deletion in the middle takes the last one's location on the card
/// and stands beside it in the file, the stored count follows only the entry at that location, and
/// what lies above the count is never downloaded.
class BookModel {
 public:
  struct CardEntry {
    std::string number;
    std::string name;
    friend bool operator==(const CardEntry&, const CardEntry&) = default;
  };
  using Card = std::map<int, CardEntry>;
  using Row = std::vector<std::string>;

  /// What the call window shows as long as it is loaded.
  struct CallWindow {
    std::vector<std::string> list;
    std::string used;
    std::string total;
    std::string dialBox;
  };

  /// A download reads 35 characters after the location, in which it wants the number, three
  /// characters of type and the name with its closing quote, the name in no more than 14 of them.
  /// An entry that doesn't fit ends it.
  static bool endsDownload(const CardEntry& entry);

  explicit BookModel(Card card) : card_(std::move(card)) {}

  const Card& card() const { return card_; }
  const std::vector<Row>& entries() const { return entries_; }  // index, number, name
  const std::vector<Row>& counts() const { return counts_; }    // total, used
  const std::optional<CallWindow>& window() const { return window_; }

  /// The name of the first entry with the caller's number; nothing when none has it.
  std::optional<std::string> nameOfCaller(const std::string& number) const;

  // The machine.
  /// A silent modem neither does nor says anything.
  void silence(bool silent) { silent_ = silent; }
  /// Somebody has emptied a location with the card in another phone.
  void eraseElsewhere(int location) { card_.erase(location); }

  // The user, on a panel at rest. A message is returned by its text, empty when there is none.
  /// Opens the call window from the main window.
  void open();
  /// The call window has come into being, on view or not.
  void load();
  void close() { window_.reset(); }
  void reload();
  std::string add(const NewEntry& entry);
  std::string remove(std::size_t row);
  /// The modem has done a deletion of which the window has missed the reply.
  std::string removeUnheard(std::size_t row);
  void pick(std::size_t row);
  void press(char digit) { window_->dialBox += digit; }
  void redial(const std::string& number) { window_->dialBox = number; }
  void hangUp() { window_->dialBox.clear(); }

 private:
  void download();
  void write(int location, const std::string& number, const std::string& name);
  void keepCounts(const std::string& storedUsed);

  Card card_;
  std::vector<Row> entries_;
  std::vector<Row> counts_;
  std::optional<CallWindow> window_;
  bool silent_ = false;
};

}  // namespace gsm
