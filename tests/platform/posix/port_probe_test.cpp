#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <climits>

#include "platform/posix/posix_port_probe.h"
#include "simulator/host/descriptor.h"
#include "simulator/host/pseudo_terminal.h"
#include "tests/platform/posix/child_process.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;
using Access = PortProbe::Access;

class PortProbeTest : public ::testing::Test {
 protected:
  static constexpr int kPort = 3;

  PortProbeTest() {
    fs::create_directories(root_.path() / "dev");
    fs::create_directories(root_.path() / "var/lock");
    fs::create_directories(program_.path() / "ports");
    fs::create_symlink(terminal_.device(), program_.path() / "ports/COM3");
  }

  void layLock(const std::string& holder) {
    std::string name = terminal_.device().substr(std::string("/dev/").size());
    std::replace(name.begin(), name.end(), '/', '_');
    root_.write("var/lock/LCK.." + name, holder);
  }

  pty::PseudoTerminal terminal_;
  TemporaryFolder root_;
  TemporaryFolder program_;
  PortNames names_{program_.path(), root_.path()};
  UucpLocks locks_{root_.path()};
  PosixPortProbe probe_{names_, locks_};
};

TEST_F(PortProbeTest, FindsAFreePort) {
  EXPECT_TRUE(probe_.exists(kPort));
  EXPECT_EQ(probe_.access(kPort), Access::free);
}

TEST_F(PortProbeTest, FindsNoPortWhereThereIsNone) {
  EXPECT_FALSE(probe_.exists(4));
  EXPECT_EQ(probe_.access(4), Access::absent);
}

TEST_F(PortProbeTest, ReportsTheMachinesNameOfAPort) {
  EXPECT_EQ(probe_.deviceName(kPort), terminal_.device());
  EXPECT_EQ(probe_.deviceName(4), "");
}

TEST_F(PortProbeTest, ADeviceThatIsNoLineCantBeOpened) {
  fs::create_symlink("/dev/null", program_.path() / "ports/COM7");
  EXPECT_EQ(probe_.access(7), Access::absent);
}

TEST_F(PortProbeTest, BelievesALock) {
  const ChildProcess other(terminal_.device());
  layLock("       " + std::to_string(other.id()) + "\n");
  EXPECT_TRUE(probe_.exists(kPort));
  EXPECT_EQ(probe_.access(kPort), Access::held);
}

TEST_F(PortProbeTest, PassesOverALockThatIsLeftOver) {
  layLock(std::to_string(INT_MAX) + "\n");
  EXPECT_EQ(probe_.access(kPort), Access::free);
}

TEST_F(PortProbeTest, SeesThatAnotherProgramHasTheLineForItselfAlone) {
  const pty::Descriptor other(::open(terminal_.device().c_str(), O_RDWR | O_NOCTTY));
  ASSERT_EQ(::ioctl(other.number(), TIOCEXCL), 0);
  EXPECT_EQ(probe_.access(kPort), Access::held);
  EXPECT_EQ(probe_.access(kPort), Access::held) << "the look has taken the other's hold away";
}

TEST_F(PortProbeTest, LeavesUnreadWhatHasComeIn) {
  terminal_.write("RING");
  EXPECT_EQ(probe_.access(kPort), Access::free);
  const pty::Descriptor reader(::open(terminal_.device().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK));
  char bytes[8];
  EXPECT_EQ(::read(reader.number(), bytes, sizeof bytes), 4);
}

}  // namespace
}  // namespace gsm
