#include "fuzz/player/player_book.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "platform/headless/headless_platform.h"
#include "platform/runtime_failure.h"
#include "platform/sqlite/phone_book_file.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

std::string bytesOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// The bytes with which a database begins: among them it counts its changes.
std::string headOf(const fs::path& file) {
  std::string head(100, '\0');
  std::ifstream(file, std::ios::binary)
      .read(head.data(), static_cast<std::streamsize>(head.size()));
  return head;
}

void addEntry(Database& book, const std::string& index, const std::string& number,
              const std::string& name) {
  const auto set = book.openRecordSet("DATA");
  set->AddNew();
  set->setField("Index", index);
  set->setField("Number", number);
  set->setField("Name", name);
  set->Update();
}

void fill(Database& book) {
  addEntry(book, "1", "0146290800", "Alice");
  addEntry(book, "2", "+33612345678", "Bob");
  addEntry(book, "3", "112", "OK RING");
  const auto counts = book.openRecordSet("Details");
  counts->AddNew();
  counts->setField("TotalIndex", "10");
  counts->setField("UsedIndex", "3");
  counts->Update();
}

// The bytes of sound books. They are made once and laid often, since making one waits for the disk.
struct SoundBooks {
  explicit SoundBooks(const fs::path& file) {
    fs::remove(file);
    createPhoneBook(file);
    empty = bytesOf(file);
    fill(*SqliteEngine().OpenDatabase(file));
    filled = bytesOf(file);
  }
  std::string empty;
  std::string filled;
};

bool isWholeNumber(const std::string& text) {
  const auto digits = text.begin() + (text.starts_with('-') ? 1 : 0);
  return digits != text.end() &&
         std::all_of(digits, text.end(), [](char each) { return each >= '0' && each <= '9'; });
}

}  // namespace

void PlayerBook::write(const std::string& bytes) const {
  std::ofstream(file_, std::ios::binary) << bytes;
}

void PlayerBook::lay(Decisions& decisions) {
  static const SoundBooks sound(file_);
  const int what = decisions.next() % 8;
  if (what < 2 && isSound_) return;
  isSound_ = what < 5;
  lookedAt_.clear();
  switch (what) {
    case 5: fs::remove(file_); break;
    case 6: write(decisions.text(40)); break;
    case 7:
      write(sound.filled);
      SqliteEngine().OpenDatabase(file_)->Execute(decisions.next() % 2 == 0 ? "drop table data"
                                                                            : "drop table details");
      break;
    default: write(what % 2 == 0 ? sound.empty : sound.filled);
  }
}

void PlayerBook::change(Decisions& decisions) {
  if (!isSound_) return;
  const auto book = SqliteEngine().OpenDatabase(file_);
  if (decisions.next() % 2 == 0) {
    book->Execute("delete from data");
  } else {
    addEntry(*book, "7", "0146290800", decisions.text(14));
  }
}

std::string PlayerBook::problem() {
  if (!isSound_) return {};
  const std::string head = headOf(file_);
  if (head == lookedAt_) return {};
  lookedAt_ = head;
  try {
    const auto book = SqliteEngine().OpenDatabase(file_);
    const auto entries = book->openRecordSet("DATA");
    for (; !entries->isEof(); entries->MoveNext()) {
      if (!isWholeNumber(entries->field("Index")) || entries->field("Number").empty()) {
        return "half an entry in the phone book: '" + entries->field("Index") + "', '" +
               entries->field("Number") + "', '" + entries->field("Name") + "'";
      }
    }
    const auto counts = book->openRecordSet("Details");
    for (; !counts->isEof(); counts->MoveNext()) counts->field("UsedIndex");
  } catch (const RuntimeFailure& failure) {
    return "the phone book is broken: " + failure.description();
  }
  return {};
}

}  // namespace gsm
