#include "platform/pty/file_profile_store.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>
#include <utility>

#include "simulator/profile.h"

namespace gsm::pty {

namespace {

// A profile has a few hundred bytes; a file beyond this is something else.
constexpr std::size_t kMostBytes = 64 * 1024;

// Nothing when the file can't be read or is too large.
std::optional<std::string> readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text(kMostBytes + 1, '\0');
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(file.gcount()));
  if (!file.eof() || text.size() > kMostBytes) return std::nullopt;
  return text;
}

}  // namespace

FileProfileStore::FileProfileStore(std::string path) : path_(std::move(path)) {}

std::optional<std::string> FileProfileStore::load() {
  std::error_code ignored;
  if (!std::filesystem::exists(path_, ignored)) return std::nullopt;
  auto text = readFile(path_);
  if (!text || !simulator::parseStoredSettings(*text)) {
    std::cerr << "profile " << path_ << " can't be read as one; the factory values apply\n";
    return std::nullopt;
  }
  return text;
}

bool FileProfileStore::save(std::string_view text) {
  const std::string fresh = path_ + ".new";
  std::ofstream file(fresh, std::ios::binary | std::ios::trunc);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  std::error_code failure;
  if (file) std::filesystem::rename(fresh, path_, failure);
  if (file && !failure) return true;
  std::cerr << "profile " << path_ << " can't be written\n";
  std::filesystem::remove(fresh, failure);
  return false;
}

}  // namespace gsm::pty
