#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace gsm::pty {

// What a SIM card holds, as a plain text file with an entry on each line.
class EntryFile {
 public:
  // `kind` names the file's content in what is said of it.
  EntryFile(std::string_view kind, std::string path) : name_(kind), path_(std::move(path)) {
    name_.append(" ").append(path_);
  }

  // The file's text; nothing when there is no file. Throws std::runtime_error when it can't be read
  // at all, for then a change would overwrite it.
  std::optional<std::string> read() const;

  // Reports each complaint about the text on standard error.
  void complain(const std::vector<std::string>& complaints) const;

  // Replaces the file as a whole. False, with a message on standard error, when it can't.
  bool save(std::string_view text) const;

 private:
  std::string name_;
  std::string path_;
};

}  // namespace gsm::pty
