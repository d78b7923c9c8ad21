#include <fcntl.h>
#include <grp.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <fstream>

#include "platform/runtime_failure.h"
#include "simulator/host/descriptor.h"
#include "tests/platform/posix/child_process.h"
#include "tests/platform/qt/serial_fixture.h"

namespace gsm {
namespace {

class SerialRefusalTest : public SerialTest {
 protected:
  /// The description of the failure to open port `number`; empty when it opens.
  std::string failureOf(int number) {
    try {
      device_.open(number, {}, Handshaking::none);
      return {};
    } catch (const RuntimeFailure& failure) {
      return failure.description();
    }
  }

  std::filesystem::path lockFile() const {
    return "/var/lock/LCK..pts_" + std::filesystem::path(terminal_->device()).filename().string();
  }
};

// Acts as a user without rights for as long as it lives. Only root can.
class AsNobody {
 public:
  static constexpr uid_t kNobody = 65534;
  AsNobody() { EXPECT_EQ(::seteuid(kNobody), 0); }
  ~AsNobody() { EXPECT_EQ(::seteuid(0), 0); }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;
};

TEST_F(SerialRefusalTest, APortThatIsntThereHasAnInvalidNumber) {
  EXPECT_EQ(failureOf(77), "Invalid Port Number");
}

TEST_F(SerialRefusalTest, ALinkThatLeadsNowhereHasAnInvalidNumber) {
  plugOut();
  EXPECT_EQ(failureOf(kPort), "Invalid Port Number");
}

TEST_F(SerialRefusalTest, ADeviceThatIsNoLineHasAnInvalidNumber) {
  std::filesystem::create_symlink("/dev/null", folder_.path() / "ports/COM7");
  EXPECT_EQ(failureOf(7), "Invalid Port Number");
}

TEST_F(SerialRefusalTest, ALineThatAnotherProgramHasForItselfAloneIsOpenAlready) {
  const pty::Descriptor other(::open(terminal_->device().c_str(), O_RDWR | O_NOCTTY));
  ASSERT_EQ(::ioctl(other.number(), TIOCEXCL), 0);
  EXPECT_EQ(failureOf(kPort), "Port already open");
  ASSERT_EQ(::ioctl(other.number(), TIOCNXCL), 0);
  EXPECT_EQ(failureOf(kPort), "");
}

TEST_F(SerialRefusalTest, ALineWithALivingProgramsLockFileIsOpenAlready) {
  const ChildProcess other(terminal_->device());
  std::ofstream(lockFile()) << "       " << other.id() << "\n";
  EXPECT_EQ(failureOf(kPort), "Port already open");
  std::filesystem::last_write_time(
      lockFile(), std::filesystem::file_time_type::clock::now() - std::chrono::minutes(10));
  EXPECT_EQ(failureOf(kPort), "Port already open") << "a lock doesn't wear out";
  std::filesystem::remove(lockFile());
}

TEST_F(SerialRefusalTest, ALockFileThatIsLeftOverIsTakenOver) {
  const ChildProcess living;
  for (const pid_t holder : {INT_MAX, living.id(), ::getpid()}) {
    std::ofstream(lockFile()) << holder << "\n";
    EXPECT_EQ(failureOf(kPort), "") << holder;
    device_.close();
  }
}

TEST_F(SerialRefusalTest, TheOpenPortIsLockedAgainstOthersUnderAnyName) {
  open();
  EXPECT_TRUE(std::filesystem::exists(lockFile()));
  std::filesystem::create_symlink(terminal_->device(), folder_.path() / "ports/COM8");
  QtSerialDevice other(clock_, loop_, names_, locks_);
  EXPECT_THROW(other.open(8, {}, Handshaking::none), RuntimeFailure);
  device_.close();
  EXPECT_FALSE(std::filesystem::exists(lockFile()));
  other.open(8, {}, Handshaking::none);
}

TEST_F(SerialRefusalTest, ALockFileThatCantBeRemovedIsNamed) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs root to have another user's lock file";
  std::ofstream(lockFile()) << INT_MAX << "\n";
  ASSERT_EQ(::chmod(terminal_->device().c_str(), 0666), 0);
  std::filesystem::permissions(folder_.path(), std::filesystem::perms::all);
  {
    const AsNobody user;
    EXPECT_EQ(failureOf(kPort), "Permission denied: the lock file " + lockFile().string() +
                                    " is left over from another program and can't be removed");
  }
  std::filesystem::remove(lockFile());
}

TEST_F(SerialRefusalTest, AMissingRightNamesTheGroupThatWouldHelp) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs root to take rights away";
  const group* dialout = ::getgrnam("dialout");
  ASSERT_NE(dialout, nullptr);
  ASSERT_EQ(::chown(terminal_->device().c_str(), 0, dialout->gr_gid), 0);
  ASSERT_EQ(::chmod(terminal_->device().c_str(), 0660), 0);
  std::filesystem::permissions(folder_.path(), std::filesystem::perms::all);
  const AsNobody user;
  EXPECT_EQ(failureOf(kPort),
            "Permission denied: only members of the group dialout may use " + terminal_->device());
}

TEST_F(SerialRefusalTest, AMissingRightThatNoGroupGivesNamesTheDevice) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs root to take rights away";
  ASSERT_EQ(::chmod(terminal_->device().c_str(), 0600), 0);
  std::filesystem::permissions(folder_.path(), std::filesystem::perms::all);
  const AsNobody user;
  EXPECT_EQ(failureOf(kPort), "Permission denied: this user may not use " + terminal_->device());
}

}  // namespace
}  // namespace gsm
