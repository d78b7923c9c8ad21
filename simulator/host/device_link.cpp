#include "simulator/host/device_link.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace gsm::pty {

namespace fs = std::filesystem;

namespace {

constexpr const char* kPseudoTerminals = "/dev/pts";

bool isLeftBehind(const fs::path& path) {
  if (!fs::is_symlink(fs::symlink_status(path))) return false;
  return !fs::exists(path) || fs::read_symlink(path).parent_path() == kPseudoTerminals;
}

}  // namespace

DeviceLink::DeviceLink(std::string path, std::string device)
    : path_(std::move(path)), device_(std::move(device)) {
  if (fs::exists(fs::symlink_status(path_))) {
    if (!isLeftBehind(path_)) {
      throw std::runtime_error(path_ + " is there and isn't a modem's link; it stays as it is");
    }
    fs::remove(path_);
  }
  fs::create_symlink(device_, path_);
}

DeviceLink::~DeviceLink() {
  std::error_code ignored;
  if (fs::read_symlink(path_, ignored) == device_) fs::remove(path_, ignored);
}

}  // namespace gsm::pty
