#include "platform/sqlite/phone_book_file.h"

#include <csignal>
#include <fstream>
#include <set>

#include "platform/runtime_failure.h"
#include "platform/sqlite/unfinished_file.h"
#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

std::set<std::string> filesIn(const TemporaryFolder& folder) {
  std::set<std::string> names;
  for (const auto& each : fs::directory_iterator(folder.path())) {
    names.insert(each.path().filename());
  }
  return names;
}

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

TEST(PhoneBookFile, OneWhoseNameDiffersInCaseOnlyIsInTheWay) {
  const TemporaryFolder folder;
  folder.write("BOOK.mdb", "somebody's entries");
  const Failed failed = failureOf([&] { createPhoneBook(folder.path() / "book.mdb"); });
  EXPECT_EQ(failed.number, 3204);
  EXPECT_EQ(failed.description,
            "There is a file '" + (folder.path() / "BOOK.mdb").string() + "' already.");
  EXPECT_FALSE(fs::exists(folder.path() / "book.mdb"));
}

TEST(PhoneBookFile, WhatIsLeftOfOneThatIsGoneIsInTheWay) {
  for (const std::string end : {"-journal", "-wal", "-shm"}) {
    const TemporaryFolder folder;
    folder.write("book.mdb" + end, "old changes");
    const Failed failed = failureOf([&] { createPhoneBook(folder.path() / "book.mdb"); });
    EXPECT_EQ(failed.number, 3204);
    EXPECT_EQ(failed.description,
              "There is a file '" + (folder.path() / ("book.mdb" + end)).string() +
                  "', left of a phone book that is gone. Remove it first: what it holds would be "
                  "stored into the new one.");
    EXPECT_EQ(folder.read("book.mdb" + end), "old changes");
    EXPECT_FALSE(fs::exists(folder.path() / "book.mdb"));
  }
}

TEST(PhoneBookFile, WhatComesUnderItsNameWhileItIsMadeStays) {
  for (const char* other : {"book.mdb", "BOOK.mdb"}) {
    const TemporaryFolder folder;
    const Failed failed = failureOf([&] {
      createPhoneBook(folder.path() / "book.mdb",
                      [&](const fs::path&) { folder.write(other, "somebody's entries"); });
    });
    EXPECT_EQ(failed.number, 3204);
    EXPECT_EQ(folder.read(other), "somebody's entries");
    EXPECT_EQ(filesIn(folder), std::set<std::string>{other});
  }
}

TEST(PhoneBookFile, TheLastMoveReplacesNothing) {
  const TemporaryFolder folder;
  UnfinishedFile unfinished(folder.path() / "book.mdb");
  std::ofstream(unfinished.path()) << "new";
  folder.write("book.mdb", "somebody's entries");
  EXPECT_EQ(failureOf([&] { unfinished.finish(); }).number, 3204);
  EXPECT_EQ(folder.read("book.mdb"), "somebody's entries");
}

TEST(PhoneBookFile, OneThatCannotBeFilledIsNotThere) {
  const TemporaryFolder folder;
  const Failed failed = failureOf([&] {
    createPhoneBook(folder.path() / "book.mdb",
                    [](const fs::path&) { throw RuntimeFailure(7, "full"); });
  });
  EXPECT_EQ(failed.number, 7);
  EXPECT_EQ(filesIn(folder), std::set<std::string>{});
}

TEST(PhoneBookFile, WhatAKilledProgramLeftGoesWithTheNext) {
  const TemporaryFolder folder;
  const fs::path book = folder.path() / "book.mdb";
  holdsInChild([&] {
    createPhoneBook(book, [](const fs::path&) { std::raise(SIGKILL); });
    return true;
  });
  EXPECT_EQ(filesIn(folder).size(), 1U);
  createPhoneBook(book);
  EXPECT_EQ(filesIn(folder), std::set<std::string>{"book.mdb"});
}

TEST(PhoneBookFile, WhatALivingProgramMakesStays) {
  const TemporaryFolder folder;
  const fs::path book = folder.path() / "book.mdb";
  const Failed failed = failureOf([&] {
    createPhoneBook(book, [&](const fs::path& unfinished) {
      UnfinishedFile::removeLeftovers(book);
      EXPECT_TRUE(fs::exists(unfinished));
    });
  });
  EXPECT_EQ(failed.description, "");
  EXPECT_EQ(filesIn(folder), std::set<std::string>{"book.mdb"});
}

TEST(PhoneBookFile, WhatSomebodyPutIntoAFolderLikeThatStays) {
  const TemporaryFolder folder;
  const fs::path kept = folder.path() / "book.mdb.unfinished-ABCDEF";
  fs::create_directory(kept);
  folder.write("book.mdb.unfinished-ABCDEF/letter", "to Anna");
  createPhoneBook(folder.path() / "book.mdb");
  EXPECT_EQ(folder.read("book.mdb.unfinished-ABCDEF/letter"), "to Anna");
}

TEST(PhoneBookFile, UnlessThereIsMadeOnlyOnce) {
  const TemporaryFolder folder;
  const fs::path book = folder.path() / "book.mdb";
  createPhoneBookUnlessThere(book);
  EXPECT_TRUE(fs::exists(book));
  fs::rename(book, folder.path() / "Book.MDB");
  createPhoneBookUnlessThere(book);
  EXPECT_EQ(filesIn(folder), std::set<std::string>{"Book.MDB"});
}

TEST(PhoneBookFile, UnlessThereIsAFailureWhenThereAreSeveral) {
  const TemporaryFolder folder;
  folder.write("BOOK.mdb", "");
  folder.write("book.mdb", "");
  const Failed failed = failureOf([&] { createPhoneBookUnlessThere(folder.path() / "Book.mdb"); });
  EXPECT_EQ(failed.number, 3204);
  EXPECT_EQ(failed.description, "There are 2 files of that name: '" +
                                    (folder.path() / "book.mdb").string() + "', '" +
                                    (folder.path() / "BOOK.mdb").string() +
                                    "'. Keep one: the first is the only one that is ever used.");
}

TEST(PhoneBookFile, ARefusalSaysWhy) {
  const TemporaryFolder folder;
  const fs::path nowhere = folder.path() / "none" / "book.mdb";
  EXPECT_EQ(failureOf([&] { createPhoneBook(nowhere); }).description,
            "Couldn't make the file '" + nowhere.string() + "': No such file or directory.");
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
