#include "platform/posix/uucp_lock.h"

#include <signal.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <string>
#include <utility>

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

pid_t holderIn(const fs::path& file) {
  std::ifstream stream(file);
  pid_t holder = 0;
  return stream >> holder && holder > 0 ? holder : 0;
}

}  // namespace

// A process of another user's refuses the signal, and lives.
bool UucpLock::isHeld() const { return holder > 0 && (::kill(holder, 0) == 0 || errno == EPERM); }

UucpLocks::UucpLocks(fs::path root) : root_(std::move(root)) {}

std::optional<UucpLock> UucpLocks::find(const fs::path& device) const {
  std::optional<UucpLock> found;
  for (const char* folder : kFolders) {
    const fs::path file = root_ / folder / lockName(device);
    std::error_code ignored;
    if (!fs::exists(file, ignored)) continue;
    const UucpLock lock{file, holderIn(file)};
    if (lock.isHeld()) return lock;
    if (!found) found = lock;
  }
  return found;
}

}  // namespace gsm
