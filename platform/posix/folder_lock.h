#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>

namespace gsm {

/// Keeps a folder of files for this process, for as long as the object lives: two copies of the
/// program in one folder would write over each other's files. The machine takes the lock off a
/// process that has ended in whichever way; the file `gsm-application.lock` stays.
class FolderLock {
 public:
  /// Takes the folder, unless another process has it. One that can't be written to is nobody's, and
  /// needs no lock.
  explicit FolderLock(const std::filesystem::path& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  bool isTaken() const { return isTaken_; }
  /// The other process that has the folder; nothing when this one has it, or when that process is
  /// out of this one's sight.
  std::optional<pid_t> holder() const { return holder_; }

 private:
  int file_ = -1;
  bool isTaken_ = false;
  std::optional<pid_t> holder_;
};

}  // namespace gsm
