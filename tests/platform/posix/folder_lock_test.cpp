#include "platform/posix/folder_lock.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <optional>

#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

// Another copy of the program, which takes the folder and keeps it until it is killed.
class OtherCopy {
 public:
  explicit OtherCopy(const std::filesystem::path& folder) {
    int taken[2] = {-1, -1};
    EXPECT_EQ(::pipe(taken), 0);
    id_ = ::fork();
    if (id_ == 0) {
      const FolderLock lock(folder);
      const char answer = lock.isTaken() ? 'y' : 'n';
      if (::write(taken[1], &answer, 1) == 1) ::pause();
      ::_exit(0);
    }
    char answer = 0;
    EXPECT_EQ(::read(taken[0], &answer, 1), 1);
    hasTaken_ = answer == 'y';
    ::close(taken[0]);
    ::close(taken[1]);
  }
  ~OtherCopy() { end(); }
  OtherCopy(const OtherCopy&) = delete;
  OtherCopy& operator=(const OtherCopy&) = delete;

  void end() {
    if (id_ < 0) return;
    ::kill(id_, SIGKILL);
    ::waitpid(id_, nullptr, 0);
    id_ = -1;
  }
  pid_t id() const { return id_; }
  bool hasTaken() const { return hasTaken_; }

 private:
  pid_t id_ = -1;
  bool hasTaken_ = false;
};

class FolderLockTest : public ::testing::Test {
 protected:
  TemporaryFolder folder_;
};

TEST_F(FolderLockTest, TakesAFolderThatNobodyHas) {
  const FolderLock lock(folder_.path());
  EXPECT_TRUE(lock.isTaken());
  EXPECT_EQ(lock.holder(), std::nullopt);
}

TEST_F(FolderLockTest, TellsWhichProcessHasTheFolder) {
  const OtherCopy other(folder_.path());
  EXPECT_TRUE(other.hasTaken());
  const FolderLock lock(folder_.path());
  EXPECT_FALSE(lock.isTaken());
  EXPECT_EQ(lock.holder(), other.id());
}

TEST_F(FolderLockTest, KeepsAnotherCopyOut) {
  const FolderLock lock(folder_.path());
  const OtherCopy other(folder_.path());
  EXPECT_FALSE(other.hasTaken());
}

TEST_F(FolderLockTest, AnotherFolderIsAnotherMatter) {
  const TemporaryFolder elsewhere;
  const OtherCopy other(elsewhere.path());
  EXPECT_TRUE(FolderLock(folder_.path()).isTaken());
}

TEST_F(FolderLockTest, AProcessThatWasKilledHasNothing) {
  OtherCopy other(folder_.path());
  other.end();
  EXPECT_TRUE(FolderLock(folder_.path()).isTaken());
  EXPECT_NE(folder_.read("gsm-application.lock"), std::nullopt) << "the file stays";
}

TEST_F(FolderLockTest, GivesTheFolderBack) {
  { const FolderLock lock(folder_.path()); }
  EXPECT_TRUE(OtherCopy(folder_.path()).hasTaken());
}

TEST_F(FolderLockTest, WhatCanNotBeWrittenToNeedsNoLock) {
  EXPECT_TRUE(FolderLock(folder_.path() / "missing").isTaken());
}

}  // namespace
}  // namespace gsm
