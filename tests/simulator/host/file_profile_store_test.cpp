#include "simulator/host/file_profile_store.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/temporary_folder.h"

namespace gsm::pty {
namespace {

class FileProfileStoreTest : public testing::Test {
 protected:
  // What loading says on standard error, with the result in loaded_.
  std::string complaintOfLoading() {
    testing::internal::CaptureStderr();
    loaded_ = FileProfileStore(path_).load();
    return testing::internal::GetCapturedStderr();
  }

  void write(std::string_view text) { std::ofstream(path_, std::ios::binary) << text; }

  TemporaryFolder folder_;
  std::string path_ = (folder_.path() / "profile").string();
  std::optional<std::string> loaded_;
};

TEST_F(FileProfileStoreTest, GivesBackWhatWasSaved) {
  EXPECT_TRUE(FileProfileStore(path_).save("+CRC=1\n"));
  EXPECT_TRUE(FileProfileStore(path_).save("+CRC=0\n"));
  EXPECT_EQ(complaintOfLoading(), "");
  EXPECT_EQ(loaded_, "+CRC=0\n");
  EXPECT_FALSE(std::filesystem::exists(path_ + ".new"));
}

TEST_F(FileProfileStoreTest, NoFileIsNothingAndNoComplaint) {
  EXPECT_EQ(complaintOfLoading(), "");
  EXPECT_EQ(loaded_, std::nullopt);
}

TEST_F(FileProfileStoreTest, NoiseIsNothingWithAComplaint) {
  for (const std::string& noise : {std::string("\x7F"
                                               "ELF\0\1",
                                               6),
                                   std::string("+CRC=7"), std::string(100'000, '\n')}) {
    write(noise);
    EXPECT_NE(complaintOfLoading().find(path_), std::string::npos);
    EXPECT_EQ(loaded_, std::nullopt);
  }
}

TEST_F(FileProfileStoreTest, FolderInPlaceOfTheFileIsNothingWithAComplaint) {
  std::filesystem::create_directory(path_);
  EXPECT_NE(complaintOfLoading(), "");
  EXPECT_EQ(loaded_, std::nullopt);
}

TEST_F(FileProfileStoreTest, SavingWhereItCantFailsWithAComplaint) {
  testing::internal::CaptureStderr();
  EXPECT_FALSE(FileProfileStore((folder_.path() / "none/profile").string()).save("+CRC=1\n"));
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace gsm::pty
