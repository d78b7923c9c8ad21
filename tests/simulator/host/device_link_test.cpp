#include "simulator/host/device_link.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/temporary_folder.h"

namespace gsm::pty {
namespace {

namespace fs = std::filesystem;

class DeviceLinkTest : public testing::Test {
 protected:
  TemporaryFolder folder_;
  const std::string path_ = (folder_.path() / "modem").string();
};

TEST_F(DeviceLinkTest, PointsToTheDeviceWhileItLives) {
  {
    const DeviceLink link(path_, "/dev/null");
    EXPECT_EQ(fs::read_symlink(path_), "/dev/null");
  }
  EXPECT_FALSE(fs::exists(fs::symlink_status(path_)));
}

TEST_F(DeviceLinkTest, ReplacesWhatAKilledSimulatorLeftBehind) {
  for (const char* target : {"/dev/pts/nothing", "/dev/pts/ptmx", "/nowhere/at/all"}) {
    fs::create_symlink(target, path_);
    const DeviceLink link(path_, "/dev/null");
    EXPECT_EQ(fs::read_symlink(path_), "/dev/null") << target;
  }
}

TEST_F(DeviceLinkTest, LeavesAFileAsItIs) {
  std::ofstream(path_) << "mine";
  EXPECT_THROW(DeviceLink(path_, "/dev/null"), std::runtime_error);
  std::string content;
  std::ifstream(path_) >> content;
  EXPECT_EQ(content, "mine");
}

TEST_F(DeviceLinkTest, LeavesALinkToSomethingElseAsItIs) {
  fs::create_symlink("/dev/zero", path_);
  EXPECT_THROW(DeviceLink(path_, "/dev/null"), std::runtime_error);
  EXPECT_EQ(fs::read_symlink(path_), "/dev/zero");
}

TEST_F(DeviceLinkTest, FailsWhereNoLinkCanBe) {
  EXPECT_THROW(DeviceLink((folder_.path() / "none/modem").string(), "/dev/null"),
               std::system_error);
}

TEST_F(DeviceLinkTest, DoesntRemoveALinkThatAnotherHasTakenOver) {
  {
    const DeviceLink link(path_, "/dev/null");
    fs::remove(path_);
    fs::create_symlink("/dev/zero", path_);
  }
  EXPECT_EQ(fs::read_symlink(path_), "/dev/zero");
}

}  // namespace
}  // namespace gsm::pty
