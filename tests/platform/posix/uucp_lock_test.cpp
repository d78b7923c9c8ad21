#include "platform/posix/uucp_lock.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstring>

#include "platform/posix/process.h"
#include "simulator/host/descriptor.h"
#include "simulator/host/pseudo_terminal.h"
#include "tests/platform/posix/child_process.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

class UucpLockTest : public ::testing::Test {
 protected:
  UucpLockTest() { fs::create_directories(root_.path() / "var/lock"); }

  std::string name() const {
    std::string device = terminal_.device().substr(std::string("/dev/").size());
    std::replace(device.begin(), device.end(), '/', '_');
    return "var/lock/LCK.." + device;
  }
  fs::path file() const { return root_.path() / name(); }

  /// Whether a lock file with that content is believed.
  bool isHeld(const std::string& content) {
    root_.write(name(), content);
    return held();
  }
  bool held() {
    const auto lock = locks_.find(terminal_.device());
    return lock && lock->isHeld;
  }
  void makeOld() {
    fs::last_write_time(file(), fs::file_time_type::clock::now() - std::chrono::minutes(1));
  }

  pty::PseudoTerminal terminal_;
  TemporaryFolder root_;
  UucpLocks locks_{root_.path()};
};

TEST_F(UucpLockTest, ThereIsNoneWhereThereIsNoFile) {
  EXPECT_FALSE(locks_.find(terminal_.device()).has_value());
}

TEST_F(UucpLockTest, BelievesAProcessThatHasTheDeviceOpen) {
  const ChildProcess other(terminal_.device());
  const std::string number = std::to_string(other.id());
  EXPECT_TRUE(isHeld(number));
  EXPECT_TRUE(isHeld("       " + number + "\n"));
  EXPECT_TRUE(isHeld("     " + number + " minicom root\n"));
  EXPECT_TRUE(isHeld(number + "\nminicom\n" + thisHost() + "\nmachine\n" + thisBoot() + "\n"));
  makeOld();
  EXPECT_TRUE(held()) << "a lock doesn't wear out";
  EXPECT_EQ(locks_.find(terminal_.device())->holder, other.id());
}

TEST_F(UucpLockTest, BelievesANumberAsTheMachineHasIt) {
  const ChildProcess other(terminal_.device());
  const pid_t number = other.id();
  std::string bytes(sizeof number, '\0');
  std::memcpy(bytes.data(), &number, sizeof number);
  EXPECT_TRUE(isHeld(bytes));
}

TEST_F(UucpLockTest, ALivingProcessThatHasTheDeviceNotOpenIsNoHolder) {
  const ChildProcess other;
  EXPECT_FALSE(isHeld(std::to_string(other.id()) + "\n"));
}

TEST_F(UucpLockTest, ADeadProcessIsNoHolder) {
  EXPECT_FALSE(isHeld(std::to_string(INT_MAX) + "\n"));
}

TEST_F(UucpLockTest, AProcessThatNobodyHasAskedAfterYetIsDead) {
  ChildProcess other(terminal_.device());
  other.kill();
  EXPECT_FALSE(isHeld(std::to_string(other.id()) + "\n"));
}

TEST_F(UucpLockTest, AProcessOfAnotherMachineOrOfAnEarlierStartIsNoHolder) {
  const ChildProcess other(terminal_.device());
  const std::string number = std::to_string(other.id());
  EXPECT_FALSE(isHeld(number + "\nminicom\nsomewhere-else\nmachine\n" + thisBoot() + "\n"));
  EXPECT_FALSE(isHeld(number + "\nminicom\n" + thisHost() + "\nmachine\nearlier\n"));
}

TEST_F(UucpLockTest, ThisVeryProgramIsNoHolderUnlessItKeepsTheFile) {
  EXPECT_FALSE(isHeld(std::to_string(::getpid()) + "\n"));
  const pty::Descriptor kept(::open(file().c_str(), O_RDONLY | O_CLOEXEC));
  ASSERT_EQ(::flock(kept.number(), LOCK_EX), 0);
  EXPECT_TRUE(held());
}

TEST_F(UucpLockTest, AFileThatNamesNoProcessIsBelievedWhileItIsYoung) {
  for (const char* content : {"", "\n", "nobody", "-1\n", "0\n", "12x4\n"}) {
    EXPECT_TRUE(isHeld(content)) << content;
    makeOld();
    EXPECT_FALSE(held()) << content;
  }
}

TEST_F(UucpLockTest, WhatIsNoFileIsNoLock) {
  ASSERT_EQ(::mkfifo(file().c_str(), 0600), 0);
  EXPECT_FALSE(locks_.find(terminal_.device()).has_value()) << "and reading it would wait";
}

TEST_F(UucpLockTest, AHeldLockIsFoundBeforeOneThatIsLeftOver) {
  root_.write(name(), std::to_string(INT_MAX) + "\n");
  fs::create_directories(root_.path() / "tmp");
  const ChildProcess other(terminal_.device());
  root_.write("tmp/" + file().filename().string(), std::to_string(other.id()) + "\n");
  const auto lock = locks_.find(terminal_.device());
  ASSERT_TRUE(lock.has_value());
  EXPECT_EQ(lock->file, root_.path() / "tmp" / file().filename());
}

TEST_F(UucpLockTest, RemovesWhatIsLeftOverAndNothingElse) {
  root_.write(name(), std::to_string(INT_MAX) + "\n");
  locks_.removeLeftOver(terminal_.device());
  EXPECT_FALSE(fs::exists(file()));
  const ChildProcess other(terminal_.device());
  root_.write(name(), std::to_string(other.id()) + "\n");
  locks_.removeLeftOver(terminal_.device());
  EXPECT_TRUE(fs::exists(file()));
}

}  // namespace
}  // namespace gsm
