#include "simulator/host/file_messages.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/simulator/scratch_folder.h"

namespace gsm::pty {
namespace {

using simulator::MessageEntries;
using simulator::MessageStatus;

TEST(FileMessages, GivesBackWhatWasSaved) {
  const ScratchFolder folder;
  const FileMessages messages(folder.file("messages"));
  EXPECT_TRUE(messages.save("3\tSTO UNSENT\t0123\t\tone\\r\\ntwo\n"));
  EXPECT_EQ(messages.load(),
            (MessageEntries{{3, {MessageStatus::kStoredUnsent, "0123", "", "one\r\ntwo"}}}));
}

TEST(FileMessages, NoFileIsAFreshCard) {
  const ScratchFolder folder;
  EXPECT_EQ(FileMessages(folder.file("none")).load(), simulator::factoryMessages());
}

TEST(FileMessages, UnreadableLinesAreToldAndPassedOver) {
  const ScratchFolder folder;
  const std::string path = folder.file("messages");
  std::ofstream(path) << "noise\n3\tSTO UNSENT\t0123\t\tone\n";
  testing::internal::CaptureStderr();
  EXPECT_EQ(FileMessages(path).load().size(), 1u);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "messages " + path + ", line 1: the location isn't a number from 1 to 20\n");
}

TEST(FileMessages, FileThatCantBeReadIsRefusedAndOneThatCantBeWrittenTold) {
  const ScratchFolder folder;
  std::filesystem::create_directory(folder.file("messages"));
  EXPECT_THROW(FileMessages(folder.file("messages")).load(), std::runtime_error);
  const std::string elsewhere = folder.file("none/messages");
  testing::internal::CaptureStderr();
  EXPECT_FALSE(FileMessages(elsewhere).save(""));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "messages " + elsewhere + " can't be written\n");
}

}  // namespace
}  // namespace gsm::pty
