#include "simulator/host/file_phone_book.h"

#include <gtest/gtest.h>

#include <fstream>

#include "simulator/host/text_file.h"
#include "tests/support/temporary_folder.h"

namespace gsm::pty {
namespace {

using simulator::PhoneBookEntries;

class FilePhoneBookTest : public testing::Test {
 protected:
  // What loading says on standard error, with the result in loaded_.
  std::string complaintOfLoading() {
    testing::internal::CaptureStderr();
    loaded_ = book_.load(14);
    return testing::internal::GetCapturedStderr();
  }

  void write(std::string_view text) { std::ofstream(path_, std::ios::binary) << text; }

  TemporaryFolder folder_;
  std::string path_ = (folder_.path() / "book").string();
  FilePhoneBook book_{path_};
  PhoneBookEntries loaded_;
};

TEST_F(FilePhoneBookTest, GivesBackWhatWasSaved) {
  EXPECT_TRUE(book_.save("1\t112\tHelp\n"));
  EXPECT_TRUE(book_.save("250\t+1\t Anna\n"));
  EXPECT_EQ(complaintOfLoading(), "");
  EXPECT_EQ(loaded_, (PhoneBookEntries{{250, {"+1", " Anna"}}}));
  EXPECT_FALSE(std::filesystem::exists(path_ + ".new"));
}

TEST_F(FilePhoneBookTest, NoFileIsAFreshCard) {
  EXPECT_EQ(complaintOfLoading(), "");
  EXPECT_EQ(loaded_, simulator::factoryPhoneBook());
  EXPECT_FALSE(std::filesystem::exists(path_));
}

TEST_F(FilePhoneBookTest, EmptyFileIsAnEmptyBook) {
  write("");
  EXPECT_EQ(complaintOfLoading(), "");
  EXPECT_TRUE(loaded_.empty());
}

TEST_F(FilePhoneBookTest, UnreadableLinesAreReportedAndPassedOver) {
  write(
      "1\t112\tHelp\n\x7F"
      "ELF\n2\tx\ty\n");
  EXPECT_EQ(complaintOfLoading(), "phone book " + path_ +
                                      ", line 2: the location isn't a number from 1 to 250\n"
                                      "phone book " +
                                      path_ + ", line 3: the number isn't one\n");
  EXPECT_EQ(loaded_, (PhoneBookEntries{{1, {"112", "Help"}}}));
}

TEST_F(FilePhoneBookTest, FileThatIsNoPhoneBookAtAllIsRefused) {
  write(std::string(100'000, '\n'));
  EXPECT_THROW(book_.load(14), std::runtime_error);
  std::filesystem::remove(path_);
  std::filesystem::create_directory(path_);
  EXPECT_THROW(book_.load(14), std::runtime_error);
}

TEST_F(FilePhoneBookTest, SavingWhereItCantFailsWithAComplaint) {
  testing::internal::CaptureStderr();
  const std::string elsewhere = (folder_.path() / "none/book").string();
  EXPECT_FALSE(FilePhoneBook(elsewhere).save("1\t112\tHelp\n"));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "phone book " + elsewhere + " can't be written\n");
}

TEST_F(FilePhoneBookTest, FailedReplacementLeavesTheOldFile) {
  std::filesystem::create_directory(path_);
  std::ofstream(path_ + "/inside") << "x";
  EXPECT_FALSE(replaceTextFile(path_, "new"));
  EXPECT_TRUE(std::filesystem::exists(path_ + "/inside"));
  EXPECT_FALSE(std::filesystem::exists(path_ + ".new"));
}

}  // namespace
}  // namespace gsm::pty
