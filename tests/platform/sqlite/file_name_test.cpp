#include "platform/sqlite/file_name.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

class FileName : public ::testing::Test {
 protected:
  fs::path at(const std::string& name) const { return folder_.path() / name; }

  TemporaryFolder folder_;
};

TEST_F(FileName, IsFoundInEverySpelling) {
  folder_.write("PhoneBook.Mdb", "");
  for (const char* name : {"phonebook.mdb", "PHONEBOOK.MDB", "PhoneBook.Mdb"}) {
    EXPECT_EQ(ignoringCase(at(name)), at("PhoneBook.Mdb")) << name;
  }
}

TEST_F(FileName, OfNoFileStaysAsItIs) {
  EXPECT_EQ(ignoringCase(at("Book.mdb")), at("Book.mdb"));
  EXPECT_EQ(ignoringCase(at("none/Book.mdb")), at("none/Book.mdb"));
  EXPECT_TRUE(namesakesOf(at("Book.mdb")).empty());
}

TEST_F(FileName, OfSeveralFilesIsTheSameInEverySpelling) {
  folder_.write("BOOK.MDB", "");
  folder_.write("Book.mdb", "");
  for (const char* name : {"book.mdb", "BOOK.MDB", "Book.mdb"}) {
    EXPECT_EQ(ignoringCase(at(name)), at("BOOK.MDB")) << name;
  }
  folder_.write("book.mdb", "");
  for (const char* name : {"book.mdb", "BOOK.MDB", "Book.mdb"}) {
    EXPECT_EQ(ignoringCase(at(name)), at("book.mdb")) << name;
  }
  EXPECT_EQ(namesakesOf(at("bOOK.mdb")).size(), 3U);
}

TEST_F(FileName, IsRatherAFileThanAFolder) {
  fs::create_directory(at("book.mdb"));
  fs::create_symlink("nowhere", at("BOOK.MDB"));
  folder_.write("Book.mdb", "");
  EXPECT_EQ(ignoringCase(at("BOOK.mdb")), at("Book.mdb"));
  EXPECT_EQ(namesakesOf(at("book.mdb")).size(), 3U);
}

TEST_F(FileName, WithoutAFolderIsOfTheCurrentOne) {
  folder_.write("Book.mdb", "");
  const fs::path before = fs::current_path();
  fs::current_path(folder_.path());
  const fs::path found = ignoringCase("book.mdb");
  fs::current_path(before);
  EXPECT_EQ(found, "Book.mdb");
}

TEST_F(FileName, OnlyLettersWithoutAccentsHaveTwoCases) {
  folder_.write("\xC3\x84.mdb", "");
  EXPECT_EQ(ignoringCase(at("\xC3\xA4.mdb")), at("\xC3\xA4.mdb"));
}

}  // namespace
}  // namespace gsm
