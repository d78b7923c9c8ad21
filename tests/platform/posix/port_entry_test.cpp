#include "platform/posix/port_entry.h"

#include <gtest/gtest.h>

#include "platform/posix/port_names.h"
#include "simulator/host/pseudo_terminal.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

class PortEntry : public ::testing::Test {
 protected:
  fs::path entry() const { return folder_.path() / "ports/COM1"; }
  std::string tie(const fs::path& device) { return tiePort(folder_.path(), 1, device); }

  TemporaryFolder folder_;
  pty::PseudoTerminal modem_;
};

TEST_F(PortEntry, TiesThePortToTheDevice) {
  EXPECT_EQ(tie(modem_.device()), "");
  EXPECT_EQ(fs::read_symlink(entry()), modem_.device());
  EXPECT_EQ(PortNames(folder_.path()).device(1), modem_.device());
}

TEST_F(PortEntry, TakesThePlaceOfAnOlderOne) {
  const pty::PseudoTerminal older;
  EXPECT_EQ(tie(older.device()), "");
  EXPECT_EQ(tie(modem_.device()), "");
  EXPECT_EQ(fs::read_symlink(entry()), modem_.device());
  // One that leads nowhere too.
  fs::remove(entry());
  fs::create_symlink("/dev/gone", entry());
  EXPECT_EQ(tie(modem_.device()), "");
  EXPECT_EQ(fs::read_symlink(entry()), modem_.device());
}

TEST_F(PortEntry, KeepsANameThatFollowsTheDevice) {
  const fs::path byId = folder_.path() / "usb-modem-port0";
  fs::create_symlink(modem_.device(), byId);
  EXPECT_EQ(tie(byId), "");
  EXPECT_EQ(fs::read_symlink(entry()), byId);
  EXPECT_EQ(PortNames(folder_.path()).device(1), modem_.device());
}

TEST_F(PortEntry, ANameOfThisFolderIsMeantFromHere) {
  const fs::path before = fs::current_path();
  fs::create_symlink(modem_.device(), folder_.path() / "modem");
  fs::current_path(folder_.path());
  EXPECT_EQ(tie("modem"), "");
  fs::current_path(before);
  EXPECT_EQ(PortNames(folder_.path()).device(1), modem_.device());
}

TEST_F(PortEntry, ADeviceThatIsNotThereIsToldWithThoseThatAre) {
  EXPECT_TRUE(tie("/dev/ttyUSB99").starts_with("there is no device /dev/ttyUSB99; plugged in:"));
  EXPECT_FALSE(fs::exists(fs::symlink_status(entry())));
}

TEST_F(PortEntry, WhatIsNoDeviceIsRefused) {
  EXPECT_EQ(tie(folder_.path()), folder_.path().string() + " is no serial device");
}

TEST_F(PortEntry, WhatSomebodyElseLaidThereStays) {
  fs::create_directory(folder_.path() / "ports");
  folder_.write("ports/COM1", "mine");
  EXPECT_EQ(tie(modem_.device()), entry().string() + " is no link: move it away");
  EXPECT_EQ(folder_.read("ports/COM1"), "mine");
}

TEST_F(PortEntry, AFolderThatTakesNoEntriesIsTold) {
  folder_.write("ports", "a file");
  EXPECT_TRUE(tie(modem_.device()).starts_with(entry().string() + " can't be made: "));
}

TEST_F(PortEntry, ThePortFileIsLaidUnlessThereIsOne) {
  layPortFile(folder_.path(), 1);
  EXPECT_EQ(folder_.read("COM.txt"), "9600,N,8,1 1\r\n");
  folder_.write("COM.txt", "300,N,8,1 5\r\n");
  layPortFile(folder_.path(), 1);
  EXPECT_EQ(folder_.read("COM.txt"), "300,N,8,1 5\r\n");
}

}  // namespace
}  // namespace gsm
