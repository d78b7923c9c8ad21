#include "platform/sqlite/unfinished_file.h"

#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "platform/sqlite/database_failure.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

constexpr const char* kMark = ".unfinished-";
constexpr const char* kName = "phonebook.mdb";

RuntimeFailure cannotMake(const fs::path& file, int error) {
  return databaseFailureSaying(
      DatabaseFault::cannotOpen,
      "Couldn't make the file '" + file.string() + "': " + std::strerror(error) + ".");
}

fs::path folderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

// The folder's descriptor with the lock on it; -1 when there is none to be had, above all because
// the program that has made the folder lives.
int lockedFolder(const fs::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (descriptor < 0 || flock(descriptor, LOCK_EX | LOCK_NB) == 0) return descriptor;
  close(descriptor);
  return -1;
}

// Only what was made in it: in a folder that somebody has put something into, that stays.
void removeFolder(const fs::path& folder) {
  std::error_code ignored;
  for (const char* each : {"", "-journal", "-wal", "-shm"}) {
    fs::remove(folder / (std::string(kName) + each), ignored);
  }
  fs::remove(folder, ignored);
}

// Not every disk knows how to move a file only where there is none; a second name is never given to
// a file that is there either.
bool moveWithoutReplacing(const fs::path& from, const fs::path& to) {
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
  return (errno == EINVAL || errno == ENOSYS) && link(from.c_str(), to.c_str()) == 0;
}

void syncFolder(const fs::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

}  // namespace

UnfinishedFile::UnfinishedFile(const fs::path& file) : file_(file) {
  removeLeftovers(file);
  std::string name = file.string() + kMark + "XXXXXX";
  if (mkdtemp(name.data()) == nullptr) throw cannotMake(file, errno);
  folder_ = name;
  lock_ = lockedFolder(folder_);
}

UnfinishedFile::~UnfinishedFile() {
  removeFolder(folder_);
  if (lock_ >= 0) close(lock_);
}

fs::path UnfinishedFile::path() const { return folder_ / kName; }

void UnfinishedFile::finish() {
  if (!moveWithoutReplacing(path(), file_)) {
    if (errno == EEXIST) throw databaseFailure(DatabaseFault::fileIsThere, file_.string());
    throw cannotMake(file_, errno);
  }
  syncFolder(folderOf(file_));
}

void UnfinishedFile::removeLeftovers(const fs::path& file) {
  const std::string beginning = file.filename().string() + kMark;
  std::error_code error;
  fs::directory_iterator each(folderOf(file), error);
  for (; !error && each != fs::directory_iterator(); each.increment(error)) {
    if (!each->path().filename().string().starts_with(beginning)) continue;
    const int lock = lockedFolder(each->path());
    if (lock < 0) continue;
    removeFolder(each->path());
    close(lock);
  }
}

}  // namespace gsm
