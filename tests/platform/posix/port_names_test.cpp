#include "platform/posix/port_names.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include "simulator/host/pseudo_terminal.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

// A machine whose devices are links to a real one, in folders of the test's own.
class PortNamesTest : public ::testing::Test {
 protected:
  PortNamesTest() {
    fs::create_directories(root_.path() / "dev");
    fs::create_directories(program_.path() / "ports");
  }

  void link(const fs::path& name) { fs::create_symlink(terminal_.device(), name); }
  fs::path dev(const std::string& name) const { return root_.path() / "dev" / name; }
  fs::path own(const std::string& name) const { return program_.path() / "ports" / name; }

  // Says of the real device's number what the kernel says of a place without hardware.
  void layType(const std::string& type) {
    struct stat status {};
    ASSERT_EQ(::stat(terminal_.device().c_str(), &status), 0);
    const std::string number =
        std::to_string(major(status.st_rdev)) + ":" + std::to_string(minor(status.st_rdev));
    fs::create_directories(root_.path() / "sys/dev/char" / number);
    root_.write("sys/dev/char/" + number + "/type", type);
  }

  pty::PseudoTerminal terminal_;
  TemporaryFolder root_;
  TemporaryFolder program_;
  PortNames names_{program_.path(), root_.path()};
};

TEST_F(PortNamesTest, FollowTheTable) {
  const std::pair<int, const char*> rows[] = {{1, "ttyS0"},    {4, "ttyS3"},    {5, "ttyUSB0"},
                                              {8, "ttyUSB3"},  {9, "ttyACM0"},  {10, "ttyACM1"},
                                              {12, "ttyACM3"}, {13, "ttyUSB4"}, {16, "ttyUSB7"},
                                              {17, "rfcomm0"}, {32, "rfcomm15"}};
  for (const auto& [number, name] : rows) EXPECT_EQ(names_.path(number), dev(name)) << number;
}

TEST_F(PortNamesTest, NoDeviceGoesByANumberOutOfTheTable) {
  for (const int number : {-1, 0, 33, 255}) EXPECT_FALSE(names_.path(number)) << number;
}

TEST_F(PortNamesTest, ANamedDeviceComesBeforeTheTable) {
  link(dev("COM5"));
  EXPECT_EQ(names_.path(5), dev("COM5"));
  link(dev("COM40"));
  EXPECT_EQ(names_.path(40), dev("COM40"));
}

TEST_F(PortNamesTest, TheProgramsOwnLinkComesFirst) {
  link(dev("COM5"));
  link(own("COM5"));
  EXPECT_EQ(names_.path(5), own("COM5"));
}

TEST_F(PortNamesTest, ALinkThatLeadsNowhereStillTakesTheName) {
  link(dev("ttyUSB0"));
  fs::create_symlink("/nowhere", own("COM5"));
  EXPECT_EQ(names_.path(5), own("COM5"));
  EXPECT_FALSE(names_.device(5));
}

TEST_F(PortNamesTest, ResolveLinksToTheDeviceItself) {
  link(own("COM3"));
  EXPECT_EQ(names_.device(3), terminal_.device());
}

TEST_F(PortNamesTest, AFileOrAFolderIsNoDevice) {
  program_.write("ports/COM3", "");
  fs::create_directory(own("COM4"));
  EXPECT_FALSE(names_.device(3));
  EXPECT_FALSE(names_.device(4));
}

TEST_F(PortNamesTest, AMissingDeviceIsNotThere) { EXPECT_FALSE(names_.device(1)); }

TEST_F(PortNamesTest, APlaceThatTheKernelKeepsWithoutHardwareIsNotThere) {
  link(dev("ttyS0"));
  layType("0\n");
  EXPECT_FALSE(names_.device(1));
}

TEST_F(PortNamesTest, ADeviceWithHardwareIsThere) {
  link(dev("ttyS0"));
  layType("4\n");
  EXPECT_EQ(names_.device(1), terminal_.device());
}

}  // namespace
}  // namespace gsm
