#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "simulator/host/entry_file.h"
#include "simulator/messages/message.h"

namespace gsm::pty {

// The SIM's messages as a plain text file: one on a line, as its location, status, number, time and
// text with a tab between them.
class FileMessages {
 public:
  explicit FileMessages(std::string path) : file_("messages", std::move(path)) {}

  // The file's messages; those of a fresh card when there is no file. A line that can't be a
  // message is told on standard error and passed over, and lost with the first `save`. Throws
  // std::runtime_error when the file can't be read at all, for then a change would overwrite it.
  simulator::MessageEntries load() const;

  // Replaces the file as a whole. False, with a message on standard error, when it can't.
  bool save(std::string_view text) const { return file_.save(text); }

 private:
  EntryFile file_;
};

}  // namespace gsm::pty
