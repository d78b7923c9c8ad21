#include "simulator/host/file_profile_store.h"

#include <filesystem>
#include <iostream>
#include <system_error>
#include <utility>

#include "simulator/host/text_file.h"
#include "simulator/profile/profile.h"

namespace gsm::pty {

FileProfileStore::FileProfileStore(std::string path) : path_(std::move(path)) {}

std::optional<std::string> FileProfileStore::load() {
  std::error_code ignored;
  if (!std::filesystem::exists(path_, ignored)) return std::nullopt;
  auto text = readTextFile(path_);
  if (!text || !simulator::parseStoredSettings(*text)) {
    std::cerr << "profile " << path_ << " can't be read as one; the factory values apply\n";
    return std::nullopt;
  }
  return text;
}

bool FileProfileStore::save(std::string_view text) {
  if (replaceTextFile(path_, text)) return true;
  std::cerr << "profile " << path_ << " can't be written\n";
  return false;
}

}  // namespace gsm::pty
