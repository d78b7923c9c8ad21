#include "platform/replaced_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <utility>

#include "platform/code_page.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kNewFile = 0666;  // less what the user keeps from others

RuntimeFailure diskFull(const fs::path& file) {
  const RuntimeFailure plain = failure::diskFull();
  return {plain.number(), plain.description() + ": " + fromUtf8(file.string())};
}

// Where the file really lies: a link stays a link.
fs::path resolved(const fs::path& file) {
  std::error_code none;
  const fs::path real = fs::canonical(file, none);
  return none ? file : real;
}

bool writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

// A name is on the disk once its folder is.
void syncFolder(const fs::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

}  // namespace

RuntimeFailure openingFailure(const fs::path& file, int error) {
  std::error_code ignored;
  if (fs::is_directory(file, ignored)) return failure::fileAccessError();
  if (error == ENOENT || error == ENOTDIR) return failure::fileNotFound();
  if (error == EACCES || error == EPERM || error == EROFS) return failure::permissionDenied();
  if (error == ENOSPC || error == EDQUOT) return diskFull(file);
  return failure::fileAccessError();
}

ReplacedFile::ReplacedFile(const fs::path& file, int mark) : file_(resolved(file)) {
  struct stat status {};
  const bool there = ::stat(file_.c_str(), &status) == 0;
  if (there && !S_ISREG(status.st_mode)) {
    openInPlace();
    return;
  }
  if (there && ::faccessat(AT_FDCWD, file_.c_str(), W_OK, AT_EACCESS) != 0) {
    throw openingFailure(file_, errno);
  }
  aside_ = file_.string() + "." + std::to_string(mark) + ".new";
  descriptor_ =
      ::open(aside_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, kNewFile);
  if (descriptor_ >= 0) {
    if (there) ::fchmod(descriptor_, status.st_mode);
    return;
  }
  if (!there || errno != EACCES) throw openingFailure(file_, errno);
  aside_.clear();
  openInPlace();
}

ReplacedFile::~ReplacedFile() { giveUp(); }

void ReplacedFile::openInPlace() {
  descriptor_ = ::open(file_.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
  if (descriptor_ < 0) throw openingFailure(file_, errno);
}

void ReplacedFile::giveUp() {
  if (descriptor_ < 0) return;
  ::close(std::exchange(descriptor_, -1));
  if (!aside_.empty()) ::unlink(aside_.c_str());
}

void ReplacedFile::write(std::string_view bytes) {
  // Whether there is room shows only when the bytes are on the disk. What can't be synced, as a
  // device, has them by then.
  const bool kept = descriptor_ >= 0 && writeAll(descriptor_, bytes) &&
                    (::fsync(descriptor_) == 0 || errno == EINVAL || errno == EROFS);
  if (kept) return;
  giveUp();
  throw diskFull(file_);
}

void ReplacedFile::keep() {
  if (descriptor_ < 0) return;
  ::fsync(descriptor_);  // nothing need have been written
  if (!aside_.empty() && ::rename(aside_.c_str(), file_.c_str()) != 0) {
    const int error = errno;
    giveUp();
    throw openingFailure(file_, error);
  }
  ::close(std::exchange(descriptor_, -1));
  if (!aside_.empty()) syncFolder(file_.has_parent_path() ? file_.parent_path() : ".");
}

}  // namespace gsm
