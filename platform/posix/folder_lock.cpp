#include "platform/posix/folder_lock.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace gsm {
namespace {

struct flock wholeFile() {
  struct flock whole {};
  whole.l_type = F_WRLCK;
  whole.l_whence = SEEK_SET;
  return whole;
}

}  // namespace

FolderLock::FolderLock(const std::filesystem::path& folder)
    : file_(::open((folder / "gsm-application.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644)) {
  isTaken_ = file_ < 0;
  // The holder may end between the two questions.
  for (int attempt = 0; attempt < 3 && !isTaken_ && !holder_; ++attempt) {
    struct flock mine = wholeFile();
    const bool refused = ::fcntl(file_, F_SETLK, &mine) != 0;
    isTaken_ = !refused || (errno != EAGAIN && errno != EACCES);  // or there are no locks here
    struct flock other = wholeFile();
    const bool known = !isTaken_ && ::fcntl(file_, F_GETLK, &other) == 0;
    if (known && other.l_type != F_UNLCK && other.l_pid > 0) holder_ = other.l_pid;
  }
}

FolderLock::~FolderLock() {
  if (file_ >= 0) ::close(file_);
}

}  // namespace gsm
