#include "platform/posix/uucp_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

#include "platform/posix/process.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolders[] = {"var/lock", "etc/locks", "var/spool/locks", "var/spool/uucp",
                                    "tmp",      "var/tmp",   "var/lock/lockdev"};

// "LCK..ttyS0" for /dev/ttyS0, "LCK..pts_3" for /dev/pts/3.
std::string lockName(const fs::path& device) {
  std::string name = device.string();
  if (const std::string folder = "/dev/"; name.starts_with(folder)) name.erase(0, folder.size());
  std::replace(name.begin(), name.end(), '/', '_');
  return "LCK.." + name;
}

// What a lock file says. Most programs write nothing but the process's number, some after it the
// program's name, the machine's and its start's, each on a line of its own.
struct Content {
  pid_t holder = 0;
  std::string host;
  std::string boot;
};

pid_t numberIn(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  pid_t number = 0;
  const char* const end = line.data() + line.size();
  const auto [rest, error] = std::from_chars(line.data(), end, number);
  const bool ends = rest == end || *rest == ' ' || *rest == '\t' || *rest == '\r';
  return error == std::errc{} && ends && number > 0 ? number : 0;
}

// Old programs write the number as the machine has it.
pid_t bareNumberIn(const std::string& bytes) {
  pid_t number = 0;
  if (bytes.size() != sizeof number) return 0;
  std::memcpy(&number, bytes.data(), sizeof number);
  return number > 0 ? number : 0;
}

Content contentOf(const fs::path& file) {
  std::ifstream stream(file);
  std::string bytes(512, '\0');
  stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(stream.gcount()));

  std::array<std::string, 5> lines;  // number, program, machine's name, its number, its start
  std::size_t begin = 0;
  for (std::string& line : lines) {
    const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
    line = bytes.substr(begin, end - begin);
    begin = std::min(end + 1, bytes.size());
  }
  const pid_t written = numberIn(lines[0]);
  return {written != 0 ? written : bareNumberIn(bytes), lines[2], lines[4]};
}

bool isYoung(const fs::path& file) {
  std::error_code gone;
  const auto written = fs::last_write_time(file, gone);
  return !gone && fs::file_time_type::clock::now() - written < UucpLocks::kYoung;
}

// Whether somebody keeps the lock file itself locked, as this program does with its own.
bool isKept(const fs::path& file) {
  const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) return false;
  const bool kept = ::flock(descriptor, LOCK_SH | LOCK_NB) != 0;
  ::close(descriptor);
  return kept;
}

bool isBelievable(const fs::path& file, const Content& content, const fs::path& device) {
  if (content.holder == 0) return isYoung(file);
  if (content.holder == ::getpid()) return isKept(file);
  if (!isAlive(content.holder)) return false;
  if (!content.host.empty() && content.host != thisHost()) return false;
  if (const std::string boot = thisBoot();
      !content.boot.empty() && !boot.empty() && content.boot != boot) {
    return false;
  }
  struct stat status {};
  if (::stat(device.c_str(), &status) != 0) return true;
  return hasOpen(content.holder, status.st_rdev).value_or(true);
}

}  // namespace

UucpLocks::UucpLocks(fs::path root) : root_(std::move(root)) {}

std::vector<UucpLock> UucpLocks::all(const fs::path& device) const {
  std::vector<UucpLock> locks;
  for (const char* folder : kFolders) {
    const fs::path file = root_ / folder / lockName(device);
    std::error_code ignored;
    if (!fs::is_regular_file(file, ignored)) continue;
    const Content content = contentOf(file);
    locks.push_back({file, content.holder, isBelievable(file, content, device)});
  }
  return locks;
}

std::optional<UucpLock> UucpLocks::find(const fs::path& device) const {
  const std::vector<UucpLock> locks = all(device);
  if (locks.empty()) return std::nullopt;
  const auto held =
      std::find_if(locks.begin(), locks.end(), [](const UucpLock& lock) { return lock.isHeld; });
  return held != locks.end() ? *held : locks.front();
}

void UucpLocks::removeLeftOver(const fs::path& device) const {
  for (const UucpLock& lock : all(device)) {
    std::error_code ignored;
    if (!lock.isHeld) fs::remove(lock.file, ignored);
  }
}

}  // namespace gsm
