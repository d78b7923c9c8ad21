#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>

namespace gsm {

/// A lock file by which programs tell one another that they use a serial port.
struct UucpLock {
  std::filesystem::path file;
  pid_t holder;  // the process that says it holds the port; 0 when the file doesn't tell

  bool isHeld() const;  // whether that process lives
};

/// The lock files `LCK..<name>` of serial ports, in the folders where programs put them.
class UucpLocks {
 public:
  /// `root` is what the machine's paths begin with.
  explicit UucpLocks(std::filesystem::path root = "/");

  /// The lock of the device at `device` (a path with all links resolved): a held one before any
  /// that is merely left over; nothing when there is none.
  std::optional<UucpLock> find(const std::filesystem::path& device) const;

 private:
  const std::filesystem::path root_;
};

}  // namespace gsm
