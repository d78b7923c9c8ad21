#include "platform/posix/port_trouble.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/posix/process.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

std::string heldBy(const fs::path& device, const UucpLocks& locks) {
  pid_t holder = 0;
  const auto lock = locks.find(device);
  if (lock && lock->isHeld) holder = lock->holder;
  struct stat status {};
  if (holder == 0 && ::stat(device.c_str(), &status) == 0) {
    holder = holderOf(status.st_rdev).value_or(0);
  }
  if (holder != 0) {
    const std::string program = programOf(holder);
    return "held by " + std::to_string(holder) + (program.empty() ? "" : " (" + program + ")");
  }
  if (lock && lock->isHeld)
    return "held by another program (lock file " + lock->file.string() + ")";
  return "held by another program";
}

std::string userName() {
  const passwd* user = ::getpwuid(::geteuid());
  return user != nullptr ? user->pw_name : "";
}

// Whether the user is a member already, and only this session began before it.
bool isMember(const std::string& user, gid_t group) {
  const passwd* entry = ::getpwnam(user.c_str());
  if (entry == nullptr) return false;
  std::array<gid_t, 256> groups{};
  int count = static_cast<int>(groups.size());
  if (::getgrouplist(user.c_str(), entry->pw_gid, groups.data(), &count) < 0) return false;
  for (int each = 0; each < count; ++each) {
    if (groups.at(static_cast<std::size_t>(each)) == group) return true;
  }
  return false;
}

std::string missingRight(const fs::path& device) {
  const auto group = helpfulGroup(device);
  if (!group) return "this user may not use it";
  const std::string user = userName();
  const ::group* entry = ::getgrnam(group->c_str());
  const bool member = entry != nullptr && isMember(user, entry->gr_gid);
  const std::string join =
      member ? "" : "sudo adduser " + (user.empty() ? "USER" : user) + " " + *group + ", then ";
  return "needs the group " + *group + ": " + join + "log in again";
}

}  // namespace

std::optional<std::string> helpfulGroup(const fs::path& device) {
  struct stat status {};
  constexpr mode_t kBoth = S_IRGRP | S_IWGRP;
  if (::stat(device.c_str(), &status) != 0 || (status.st_mode & kBoth) != kBoth) {
    return std::nullopt;
  }
  const ::group* entry = ::getgrgid(status.st_gid);
  return entry != nullptr ? entry->gr_name : std::to_string(status.st_gid);
}

std::string troubleOf(const fs::path& device, const PortAccess& found, const UucpLocks& locks) {
  switch (found.error) {
    case 0: return {};
    case EBUSY: return heldBy(device, locks);
    case EACCES:
    case EPERM: return missingRight(device);
    case ENOTTY: return "no serial line";
    default: return std::generic_category().message(found.error);
  }
}

}  // namespace gsm
