#include "simulator/host/entry_file.h"

#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <system_error>

#include "simulator/host/text_file.h"

namespace gsm::pty {

std::optional<std::string> EntryFile::read() const {
  std::error_code ignored;
  if (!std::filesystem::exists(path_, ignored)) return std::nullopt;
  auto text = readTextFile(path_);
  if (!text) throw std::runtime_error(name_ + " can't be read");
  return text;
}

void EntryFile::complain(const std::vector<std::string>& complaints) const {
  for (const std::string& complaint : complaints) std::cerr << name_ << ", " << complaint << "\n";
}

bool EntryFile::save(std::string_view text) const {
  if (replaceTextFile(path_, text)) return true;
  std::cerr << name_ << " can't be written\n";
  return false;
}

}  // namespace gsm::pty
