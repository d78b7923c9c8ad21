#include "platform/posix/port_trouble.h"

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/posix/posix_port_probe.h"
#include "platform/posix/process.h"
#include "platform/posix/telling_device.h"
#include "simulator/host/descriptor.h"
#include "simulator/host/pseudo_terminal.h"
#include "tests/platform/posix/child_process.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

class PortTroubleTest : public ::testing::Test {
 protected:
  PortTroubleTest() {
    fs::create_directories(root_.path() / "dev");
    fs::create_directories(root_.path() / "var/lock");
    fs::create_directories(program_.path() / "ports");
    fs::create_symlink(terminal_.device(), program_.path() / "ports/COM3");
  }

  void layLock(const std::string& content) {
    std::string name = terminal_.device().substr(std::string("/dev/").size());
    std::replace(name.begin(), name.end(), '/', '_');
    root_.write("var/lock/LCK.." + name, content);
  }
  std::string after(int error) {
    return troubleOf(terminal_.device(), {PortProbe::Access::held, error}, locks_);
  }

  pty::PseudoTerminal terminal_;
  TemporaryFolder root_;
  TemporaryFolder program_;
  PortNames names_{program_.path(), root_.path()};
  UucpLocks locks_{root_.path()};
  PosixPortProbe probe_{names_, locks_};
};

TEST_F(PortTroubleTest, AFreePortHasNone) { EXPECT_EQ(probe_.trouble(3), ""); }

TEST_F(PortTroubleTest, NamesTheHolderOfTheLock) {
  const ChildProcess other(terminal_.device());
  layLock(std::to_string(other.id()) + "\n");
  EXPECT_EQ(probe_.trouble(3),
            "held by " + std::to_string(other.id()) + " (" + programOf(other.id()) + ")");
  EXPECT_FALSE(programOf(other.id()).empty());
}

TEST_F(PortTroubleTest, NamesWhoHasTheDeviceForItselfAlone) {
  const ChildProcess other(terminal_.device());
  const pty::Descriptor line(::open(terminal_.device().c_str(), O_RDWR | O_NOCTTY));
  ASSERT_EQ(::ioctl(line.number(), TIOCEXCL), 0);
  EXPECT_EQ(probe_.trouble(3),
            "held by " + std::to_string(other.id()) + " (" + programOf(other.id()) + ")");
}

TEST_F(PortTroubleTest, NamesTheLockFileThatNamesNoHolder) {
  layLock("");
  EXPECT_TRUE(probe_.trouble(3).starts_with("held by another program (lock file "));
}

TEST_F(PortTroubleTest, NamesTheGroupThatGivesTheRight) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs root to give a device away";
  const group* dialout = ::getgrnam("dialout");
  ASSERT_NE(dialout, nullptr);
  ASSERT_EQ(::chown(terminal_.device().c_str(), 0, dialout->gr_gid), 0);
  ASSERT_EQ(::chmod(terminal_.device().c_str(), 0660), 0);
  EXPECT_EQ(after(EACCES), "needs the group dialout: sudo adduser root dialout, then log in again");
  ASSERT_EQ(::chown(terminal_.device().c_str(), 0, 0), 0);
  EXPECT_EQ(after(EACCES), "needs the group root: log in again") << "a member already";
  ASSERT_EQ(::chmod(terminal_.device().c_str(), 0600), 0);
  EXPECT_EQ(after(EACCES), "this user may not use it");
}

TEST_F(PortTroubleTest, SaysWhatElseTheSystemSays) {
  EXPECT_EQ(after(EIO), "Input/output error");
  EXPECT_EQ(probe_.trouble(4), "there is no device " + (root_.path() / "dev/ttyS3").string());
  EXPECT_EQ(probe_.trouble(99), "no device has this number");
}

/// A device whose opening fails with what the test says.
struct RefusingDevice : SerialDevice {
  void listen(Listener*) override {}
  void open(int, const LineSettings&, Handshaking) override {
    if (!refusal.empty()) throw RuntimeFailure(57, refusal);
  }
  void close() override {}
  void configure(const LineSettings&, Handshaking) override {}
  void write(std::string_view) override {}
  bool isGone() const override { return gone; }

  std::string refusal;
  bool gone = false;
};

class TellingDeviceTest : public PortTroubleTest {
 protected:
  /// What is told while port `number` is opened.
  std::string toldOf(int number, const std::string& refusal) {
    told_.clear();
    refusing_.refusal = refusal;
    try {
      device_.open(number, {}, Handshaking::none);
      EXPECT_EQ(refusal, "");
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(failure.description(), refusal) << "fails as before";
    }
    return told_;
  }

  RefusingDevice refusing_;
  std::string told_;
  TellingDevice device_{refusing_, probe_, [this](const std::string& text) { told_ += text; }};
};

TEST_F(TellingDeviceTest, ReportsDeviceReasonAndWhatToDoOnce) {
  const ChildProcess other(terminal_.device());
  layLock(std::to_string(other.id()) + "\n");
  EXPECT_EQ(toldOf(3, "Port already open"),
            "COM3 (" + terminal_.device() + ") can't be used: held by " +
                std::to_string(other.id()) + " (" + programOf(other.id()) +
                "). Mend that and press \"REFRESH\", or choose another port under \"Port "
                "Settings->\".");
  EXPECT_EQ(toldOf(3, "Port already open"), "");
}

TEST_F(TellingDeviceTest, ReportsAnotherReasonAndOneThatHasComeBack) {
  EXPECT_NE(toldOf(3, "Device I/O error: this"), "");
  EXPECT_NE(toldOf(3, "Device I/O error: that"), "");
  EXPECT_EQ(toldOf(3, "Device I/O error: that"), "");
  EXPECT_EQ(toldOf(3, ""), "");
  EXPECT_NE(toldOf(3, "Device I/O error: that"), "");
}

TEST_F(TellingDeviceTest, ReportsAPortThatIsntThere) {
  EXPECT_TRUE(
      toldOf(4, "Invalid Port Number").starts_with("COM4 can't be used: there is no device "));
}

TEST_F(TellingDeviceTest, TellsWhetherTheDeviceBeneathHasGone) {
  EXPECT_FALSE(device_.isGone());
  refusing_.gone = true;
  EXPECT_TRUE(device_.isGone());
}

}  // namespace
}  // namespace gsm
