#include "simulator/host/text_file.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace gsm::pty {

namespace {

constexpr std::size_t kMostBytes = 65536;

}  // namespace

std::optional<std::string> readTextFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text(kMostBytes + 1, '\0');
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(file.gcount()));
  if (!file.eof() || text.size() > kMostBytes) return std::nullopt;
  return text;
}

bool replaceTextFile(const std::string& path, std::string_view text) {
  const std::string fresh = path + ".new";
  std::ofstream file(fresh, std::ios::binary | std::ios::trunc);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  std::error_code failure;
  if (file) std::filesystem::rename(fresh, path, failure);
  if (file && !failure) return true;
  std::filesystem::remove(fresh, failure);
  return false;
}

}  // namespace gsm::pty
