#include "platform/sqlite/phone_book_file.h"

#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

TEST(PhoneBookFile, ANewOneHasItsTablesAndNoRows) {
  const TemporaryFolder folder;
  createPhoneBook(folder.path() / "book.mdb");
  const auto book = SqliteEngine().OpenDatabase(folder.path() / "book.mdb");
  const auto entries = book->openRecordSet("DATA");
  const auto details = book->openRecordSet("Details");
  EXPECT_TRUE(entries->isEof());
  EXPECT_TRUE(details->isEof());
  entries->AddNew();
  for (const char* column : {"Index", "Number", "Name"}) entries->setField(column, "text");
  entries->Update();
  details->AddNew();
  for (const char* column : {"TotalIndex", "UsedIndex"}) details->setField(column, "text");
  details->Update();
  EXPECT_EQ(entries->field("Number"), "text");
  EXPECT_EQ(details->field("UsedIndex"), "text");
}

TEST(PhoneBookFile, TextsThatLookLikeNumbersStayAsTheyAre) {
  const TemporaryFolder folder;
  createPhoneBook(folder.path() / "book.mdb");
  const auto set = SqliteEngine().OpenDatabase(folder.path() / "book.mdb")->openRecordSet("DATA");
  set->AddNew();
  set->setField("Number", "0049");
  set->setField("Name", "1.50");
  set->Update();
  EXPECT_EQ(set->field("Number"), "0049");
  EXPECT_EQ(set->field("Name"), "1.50");
}

TEST(PhoneBookFile, OneThatIsThereIsNeverTouched) {
  const TemporaryFolder folder;
  folder.write("book.mdb", "somebody's entries");
  EXPECT_EQ(failureOf([&] { createPhoneBook(folder.path() / "book.mdb"); }).number, 3204);
  EXPECT_EQ(folder.read("book.mdb"), "somebody's entries");
}

TEST(PhoneBookFile, OneThatCannotBeMadeIsAFailure) {
  const TemporaryFolder folder;
  const fs::path nowhere = folder.path() / "none" / "book.mdb";
  EXPECT_EQ(failureOf([&] { createPhoneBook(nowhere); }).number, 3051);
  folder.write("file", "");
  EXPECT_EQ(failureOf([&] { createPhoneBook(folder.path() / "file" / "book.mdb"); }).number, 3051);
}

}  // namespace
}  // namespace gsm
