#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "simulator/profile/profile_store.h"

namespace gsm::pty {

// The modem's non-volatile memory as a plain text file, one "key=value" on a line.
class FileProfileStore final : public simulator::ProfileStore {
 public:
  explicit FileProfileStore(std::string path);

  // Nothing when there is no file. Nothing, with a message on standard error, when it can't be read
  // or doesn't hold a profile.
  std::optional<std::string> load() override;

  // Replaces the file as a whole, so that a crash leaves the old one or the new one. False, with a
  // message on standard error, when it can't.
  bool save(std::string_view text) override;

 private:
  std::string path_;
};

}  // namespace gsm::pty
