#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "simulator/card/phone_book.h"
#include "simulator/host/entry_file.h"

namespace gsm::pty {

// The SIM's phone book as a plain text file: one entry on a line, as its location, its number and
// its name with a tab between them.
class FilePhoneBook {
 public:
  explicit FilePhoneBook(std::string path) : file_("phone book", std::move(path)) {}

  // The file's entries; those of a fresh card when there is no file. A line that can't be an entry
  // is told on standard error and passed over, and lost with the first `save`. Throws
  // std::runtime_error when the file can't be read at all, for then a change would overwrite it.
  simulator::PhoneBookEntries load(std::size_t nameRoom) const;

  // Replaces the file as a whole. False, with a message on standard error, when it can't.
  bool save(std::string_view text) const { return file_.save(text); }

 private:
  EntryFile file_;
};

}  // namespace gsm::pty
