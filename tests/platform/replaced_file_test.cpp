#include "platform/replaced_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <string>

#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

// No file may grow beyond `bytes` for as long as the object lives, as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signal_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*signal_)(int);
  rlimit before_{};
};

class ReplacedFileTest : public ::testing::Test {
 protected:
  fs::path path(const std::string& name = "COM.txt") const { return folder_.path() / name; }
  std::optional<std::string> content() const { return folder_.read("COM.txt"); }
  std::ptrdiff_t filesLeft() const {
    return std::distance(fs::directory_iterator(folder_.path()), fs::directory_iterator());
  }

  TemporaryFolder folder_;
};

TEST_F(ReplacedFileTest, TakesTheOldFilesPlaceAsAWhole) {
  folder_.write("COM.txt", "old");
  ReplacedFile file(path());
  file.write("n");
  file.write("ew");
  EXPECT_EQ(content(), "old");
  file.keep();
  EXPECT_EQ(content(), "new");
  EXPECT_EQ(filesLeft(), 1);
}

TEST_F(ReplacedFileTest, MakesAFileWhereThereIsNone) {
  ReplacedFile file(path());
  file.write("new");
  file.keep();
  EXPECT_EQ(content(), "new");
}

TEST_F(ReplacedFileTest, LeavesTheOldFileWhenItIsNotKept) {
  folder_.write("COM.txt", "old");
  { ReplacedFile(path()).write("new"); }
  EXPECT_EQ(content(), "old");
  EXPECT_EQ(filesLeft(), 1);
}

TEST_F(ReplacedFileTest, AFullDiskLeavesTheOldFileAndIsReportedWithItsName) {
  folder_.write("COM.txt", "old");
  {
    const FullDisk full(4);
    ReplacedFile file(path());
    try {
      file.write("longer than four bytes");
      ADD_FAILURE() << "there is no room";
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(failure.number(), 61);
      EXPECT_EQ(failure.description(), "Disk full: " + fs::canonical(path()).string());
    }
    EXPECT_THROW(file.write("x"), RuntimeFailure) << "it was given up";
    file.keep();
  }
  EXPECT_EQ(content(), "old");
  EXPECT_EQ(filesLeft(), 1);
}

TEST_F(ReplacedFileTest, WhatACrashLeftBehindIsInNobodysWay) {
  folder_.write("COM.txt.0.new", "half of somethi");
  ReplacedFile file(path());
  file.write("new");
  file.keep();
  EXPECT_EQ(content(), "new");
  EXPECT_EQ(filesLeft(), 1);
}

TEST_F(ReplacedFileTest, KeepsTheRightsOfTheOldFile) {
  folder_.write("COM.txt", "old");
  ASSERT_EQ(::chmod(path().c_str(), 0640), 0);
  ReplacedFile file(path());
  file.keep();
  struct stat status {};
  ASSERT_EQ(::stat(path().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777u, 0640u);
}

TEST_F(ReplacedFileTest, ALinkStaysALink) {
  folder_.write("real.txt", "old");
  fs::create_symlink("real.txt", path());
  ReplacedFile file(path());
  file.write("new");
  file.keep();
  EXPECT_TRUE(fs::is_symlink(path()));
  EXPECT_EQ(folder_.read("real.txt"), "new");
}

// Acts as a user without rights for as long as it lives. Only root can.
class AsNobody {
 public:
  AsNobody() { EXPECT_EQ(::seteuid(65534), 0); }
  ~AsNobody() { EXPECT_EQ(::seteuid(0), 0); }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;
};

TEST_F(ReplacedFileTest, AFileThatMayNotBeWrittenIsDeniedThoughItsFolderMay) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs root to take rights away";
  folder_.write("COM.txt", "old");
  fs::permissions(path(), fs::perms::owner_read);
  fs::permissions(folder_.path(), fs::perms::all);
  const AsNobody user;
  try {
    ReplacedFile file(path());
    ADD_FAILURE() << "it may not be written";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.description(), "Permission denied");
  }
}

TEST_F(ReplacedFileTest, AFileInAFolderThatMayNotBeWrittenIsWrittenInPlace) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs root to take rights away";
  folder_.write("COM.txt", "old and longer");
  fs::permissions(path(), fs::perms::all);
  fs::permissions(folder_.path(), fs::perms::owner_all | fs::perms::others_read |
                                      fs::perms::others_exec | fs::perms::group_exec);
  {
    const AsNobody user;
    ReplacedFile file(path());
    file.write("new");
    file.keep();
    EXPECT_THROW(ReplacedFile(path("other.txt")), RuntimeFailure);
  }
  EXPECT_EQ(content(), "new");
}

}  // namespace
}  // namespace gsm
