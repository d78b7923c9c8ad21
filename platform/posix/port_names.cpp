#include "platform/posix/port_names.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <array>
#include <fstream>
#include <utility>

namespace gsm {
namespace {

namespace fs = std::filesystem;

// `count` ports from COM`first` on are the devices `stem` with the numbers from `device` on.
struct Row {
  int first;
  int count;
  const char* stem;
  int device;
};

// Start-up reads one digit of a saved port back, so the usual adapters lie below 10.
constexpr std::array<Row, 6> kTable{{{1, 4, "ttyS", 0},
                                     {5, 4, "ttyUSB", 0},
                                     {9, 1, "ttyACM", 0},
                                     {10, 3, "ttyACM", 1},
                                     {13, 4, "ttyUSB", 4},
                                     {17, 16, "rfcomm", 0}}};

bool isThere(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(path, ignored));
}

}  // namespace

PortNames::PortNames(fs::path programFolder, fs::path root)
    : programFolder_(std::move(programFolder)), root_(std::move(root)) {}

std::optional<fs::path> PortNames::path(int number) const {
  const std::string name = "COM" + std::to_string(number);
  for (const fs::path& own : {programFolder_ / "ports" / name, root_ / "dev" / name}) {
    if (isThere(own)) return own;
  }
  for (const Row& row : kTable) {
    const int offset = number - row.first;
    if (offset < 0 || offset >= row.count) continue;
    return root_ / "dev" / (row.stem + std::to_string(row.device + offset));
  }
  return std::nullopt;
}

std::optional<fs::path> PortNames::device(int number) const {
  const auto named = path(number);
  if (!named) return std::nullopt;
  std::error_code missing;
  fs::path real = fs::canonical(*named, missing);
  struct stat status {};
  if (missing || ::stat(real.c_str(), &status) != 0 || !S_ISCHR(status.st_mode) ||
      isPlaceholder(status.st_rdev)) {
    return std::nullopt;
  }
  return real;
}

// The kernel makes a fixed number of ttyS devices; those without a chip have type 0. Devices of
// other drivers name no type.
bool PortNames::isPlaceholder(dev_t device) const {
  const std::string number = std::to_string(major(device)) + ":" + std::to_string(minor(device));
  std::ifstream file(root_ / "sys/dev/char" / number / "type");
  int type = -1;
  return file >> type && type == 0;
}

}  // namespace gsm
