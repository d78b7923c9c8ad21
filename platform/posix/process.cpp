#include "platform/posix/process.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <filesystem>
#include <fstream>

namespace gsm {
namespace {

namespace fs = std::filesystem;

fs::path folderOf(pid_t id) { return fs::path("/proc") / std::to_string(id); }

std::string firstLineOf(const fs::path& file) {
  std::string line;
  std::ifstream stream(file);
  std::getline(stream, line);
  return line;
}

// "1234 (any name) S 1 ...": the letter after the last parenthesis.
char stateOf(pid_t id) {
  const std::string line = firstLineOf(folderOf(id) / "stat");
  const auto end = line.rfind(") ");
  return end == std::string::npos || end + 2 >= line.size() ? '?' : line[end + 2];
}

}  // namespace

bool isAlive(pid_t id) {
  // A process of another user's refuses the signal, and lives.
  if (id <= 0 || (::kill(id, 0) != 0 && errno != EPERM)) return false;
  const char state = stateOf(id);
  return state != 'Z' && state != 'X';
}

std::string programOf(pid_t id) { return firstLineOf(folderOf(id) / "comm"); }

std::optional<bool> hasOpen(pid_t id, dev_t device) {
  std::error_code hidden;
  fs::directory_iterator file(folderOf(id) / "fd", hidden);
  for (; !hidden && file != fs::directory_iterator(); file.increment(hidden)) {
    struct stat status {};
    const bool open = ::stat(file->path().c_str(), &status) == 0;
    if (open && S_ISCHR(status.st_mode) && status.st_rdev == device) return true;
  }
  if (hidden) return std::nullopt;
  return false;
}

std::optional<pid_t> holderOf(dev_t device) {
  std::error_code hidden;
  fs::directory_iterator process("/proc", hidden);
  for (; !hidden && process != fs::directory_iterator(); process.increment(hidden)) {
    const std::string name = process->path().filename();
    pid_t id = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), id);
    if (error != std::errc{} || end != name.data() + name.size() || id == ::getpid()) continue;
    if (hasOpen(id, device).value_or(false)) return id;
  }
  return std::nullopt;
}

std::string thisBoot() { return firstLineOf("/proc/sys/kernel/random/boot_id"); }

std::string thisHost() {
  std::array<char, 256> name{};
  return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : std::string();
}

}  // namespace gsm
