#include "tests/support/temporary_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace gsm {
namespace {

std::filesystem::path placeForFolders() {
  constexpr const char* kMemory = "/dev/shm";
  const bool isChosen = std::getenv("TMPDIR") != nullptr;
  return isChosen || access(kMemory, W_OK) != 0 ? std::filesystem::temp_directory_path() : kMemory;
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  std::string name = (placeForFolders() / "gsm-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder: " + name);
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

void TemporaryFolder::write(const std::string& name, const std::string& bytes) const {
  std::ofstream(path_ / name, std::ios::binary) << bytes;
}

std::optional<std::string> TemporaryFolder::read(const std::string& name) const {
  std::ifstream file(path_ / name, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

}  // namespace gsm
