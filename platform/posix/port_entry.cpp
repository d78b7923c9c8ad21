#include "platform/posix/port_entry.h"

#include <fstream>
#include <system_error>

namespace gsm {
namespace {

namespace fs = std::filesystem;

// The adapters that are plugged in, under the names that stay with them where there are such.
std::string adapters() {
  std::string names;
  std::error_code none;
  for (const auto& entry : fs::directory_iterator("/dev/serial/by-id", none)) {
    names += " " + entry.path().string();
  }
  if (!names.empty()) return names;
  for (const auto& entry : fs::directory_iterator("/dev", none)) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with("ttyUSB") || name.starts_with("ttyACM")) names += " /dev/" + name;
  }
  return names;
}

}  // namespace

std::string tiePort(const fs::path& programFolder, int number, const fs::path& device) {
  std::error_code failed;
  if (!fs::exists(device, failed)) {
    const std::string there = adapters();
    return "there is no device " + device.string() +
           "; plugged in:" + (there.empty() ? " none" : there);
  }
  if (!fs::is_character_file(device, failed)) return device.string() + " is no serial device";

  const fs::path entry = programFolder / "ports" / ("COM" + std::to_string(number));
  if (fs::exists(fs::symlink_status(entry, failed)) && !fs::is_symlink(entry, failed)) {
    return entry.string() + " is no link: move it away";
  }
  const fs::path fresh = entry.string() + ".new";
  fs::create_directories(entry.parent_path(), failed);
  fs::remove(fresh, failed);
  fs::create_symlink(fs::absolute(device), fresh, failed);
  if (!failed) fs::rename(fresh, entry, failed);
  return failed ? entry.string() + " can't be made: " + failed.message() : "";
}

void layPortFile(const fs::path& programFolder, int number) {
  std::error_code unknown;
  for (const char* name : {"COM.txt", "com.txt"}) {
    if (fs::exists(programFolder / name, unknown)) return;
  }
  std::ofstream(programFolder / "COM.txt", std::ios::binary) << "9600,N,8,1 " << number << "\r\n";
}

}  // namespace gsm
