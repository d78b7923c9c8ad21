#include "simulator/host/file_messages.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/support/temporary_folder.h"

namespace gsm::pty {
namespace {

using simulator::MessageEntries;
using simulator::MessageStatus;

TEST(FileMessages, GivesBackWhatWasSaved) {
  const TemporaryFolder folder;
  const FileMessages messages((folder.path() / "messages").string());
  EXPECT_TRUE(messages.save("3\tSTO UNSENT\t0123\t\tone\\r\\ntwo\n"));
  EXPECT_EQ(messages.load(),
            (MessageEntries{{3, {MessageStatus::kStoredUnsent, "0123", "", "one\r\ntwo"}}}));
}

TEST(FileMessages, NoFileIsAFreshCard) {
  const TemporaryFolder folder;
  EXPECT_EQ(FileMessages((folder.path() / "none").string()).load(), simulator::factoryMessages());
}

TEST(FileMessages, UnreadableLinesAreReportedAndPassedOver) {
  const TemporaryFolder folder;
  const std::string path = (folder.path() / "messages").string();
  std::ofstream(path) << "noise\n3\tSTO UNSENT\t0123\t\tone\n";
  testing::internal::CaptureStderr();
  EXPECT_EQ(FileMessages(path).load().size(), 1u);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "messages " + path + ", line 1: the location isn't a number from 1 to 20\n");
}

TEST(FileMessages, FileThatCantBeReadIsRefusedAndOneThatCantBeWrittenReported) {
  const TemporaryFolder folder;
  std::filesystem::create_directory((folder.path() / "messages").string());
  EXPECT_THROW(FileMessages((folder.path() / "messages").string()).load(), std::runtime_error);
  const std::string elsewhere = (folder.path() / "none/messages").string();
  testing::internal::CaptureStderr();
  EXPECT_FALSE(FileMessages(elsewhere).save(""));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "messages " + elsewhere + " can't be written\n");
}

}  // namespace
}  // namespace gsm::pty
