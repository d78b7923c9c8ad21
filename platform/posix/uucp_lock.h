#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <vector>

namespace gsm {

/// A lock file by which programs tell one another that they use a serial port.
struct UucpLock {
  std::filesystem::path file;
  pid_t holder;  // the process that says it holds the port; 0 when the file doesn't tell
  bool isHeld;   // whether the file is to be believed
};

/// The lock files `LCK..<name>` of serial ports, in the folders where programs put them.
///
/// Many are left over from programs that were killed, and by now their process's number may be
/// another's. So a file is believed only when its process lives, is of this machine and of this
/// start of it where the file says of which, and doesn't show that it has the device not open. A
/// file that names no process may just be being written: it is believed while it is young. One
/// that names this very program is believed only while this program really keeps it.
class UucpLocks {
 public:
  /// How long a file that names no process is believed.
  static constexpr std::chrono::seconds kYoung{30};

  /// `root` is what the paths of the lock folders begin with.
  explicit UucpLocks(std::filesystem::path root = "/");

  /// The lock of the device at `device` (a path with all links resolved): a held one before any
  /// that is merely left over; nothing when there is none.
  std::optional<UucpLock> find(const std::filesystem::path& device) const;

  /// Removes the device's locks that are left over, as far as this user may.
  void removeLeftOver(const std::filesystem::path& device) const;

 private:
  std::vector<UucpLock> all(const std::filesystem::path& device) const;

  const std::filesystem::path root_;
};

}  // namespace gsm
