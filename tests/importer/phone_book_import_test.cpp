#include "importer/phone_book_import.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/runtime_failure.h"
#include "platform/sqlite/sqlite_engine.h"
#include "tests/importer/old_book.h"

namespace gsm::jet {
namespace {

namespace fs = std::filesystem;

class PhoneBookImportTest : public ::testing::Test {
 protected:
  void lay(const Database& database) const { folder_.write("old.mdb", fileOf(database)); }
  PhoneBookImport bringOver() const { return importPhoneBook(old_, new_); }
  std::string failureOfImport() const {
    try {
      bringOver();
    } catch (const RuntimeFailure& failure) {
      return failure.description();
    }
    return "";
  }
  // The rows of a table of the new file, each with its columns between bars.
  std::vector<std::string> rowsOf(const std::string& table,
                                  const std::vector<std::string>& columns) const {
    std::vector<std::string> rows;
    const auto set = SqliteEngine().OpenDatabase(new_)->openRecordSet(table);
    for (; !set->isEof(); set->MoveNext()) {
      rows.emplace_back();
      for (const std::string& column : columns) rows.back() += "|" + set->field(column);
    }
    return rows;
  }
  std::set<std::string> files() const {
    std::set<std::string> names;
    for (const auto& each : fs::directory_iterator(folder_.path())) {
      names.insert(each.path().filename());
    }
    return names;
  }

  TemporaryFolder folder_;
  const fs::path old_ = folder_.path() / "old.mdb";
  const fs::path new_ = folder_.path() / "new.mdb";
};

TEST_F(PhoneBookImportTest, TheNewBookHasTheRowsOfTheOld) {
  for (const Version version : {Version::jet3, Version::jet4}) {
    lay(oldBook(version, {entry(version, "1", "112", "Emergency"),
                          entry(version, "5", "+4930123", "\xC4rger \x80")}));
    const PhoneBookImport result = bringOver();
    EXPECT_EQ(rowsOf("DATA", {"Index", "Number", "Name"}),
              (std::vector<std::string>{"|1|112|Emergency", "|5|+4930123|\xC4rger \x80"}));
    EXPECT_EQ(rowsOf("Details", {"TotalIndex", "UsedIndex"}), std::vector<std::string>{"|50|7"});
    ASSERT_EQ(result.tables.size(), 2u);
    EXPECT_EQ(result.tables[0].name, "DATA");
    EXPECT_EQ(result.tables[0].rows, 2u);
    EXPECT_EQ(result.tables[1].name, "Details");
    EXPECT_EQ(result.tables[1].rows, 1u);
    EXPECT_EQ(result.unknownLetters, 0u);
    EXPECT_EQ(files(), (std::set<std::string>{"old.mdb", "new.mdb"}));
    fs::remove(new_);
  }
}

TEST_F(PhoneBookImportTest, TheNewBookCanBeSearchedAndChanged) {
  lay(oldBook(Version::jet4, {entry(Version::jet4, "1", "+4930123456789", "Anna")}));
  bringOver();
  const auto set = SqliteEngine().OpenDatabase(new_)->openRecordSet("DATA");
  set->FindFirst("right(number,10) = '0123456789 '");
  ASSERT_FALSE(set->NoMatch());
  set->Edit();
  set->setField("Name", "Bert");
  set->Update();
  EXPECT_EQ(rowsOf("DATA", {"Name"}), std::vector<std::string>{"|Bert"});
}

TEST_F(PhoneBookImportTest, LettersThatTheProgramLacksAreCounted) {
  Database book = oldBook(Version::jet4, {entry(Version::jet4, "1", "2", "Anna")});
  book.tables[0].rows[0].cells[2] = compressedText(u"Жанна");
  lay(book);
  EXPECT_EQ(bringOver().unknownLetters, 1u);
  EXPECT_EQ(rowsOf("DATA", {"Name"}), std::vector<std::string>{"|?????"});
}

TEST_F(PhoneBookImportTest, ControlCharactersAreLeftOutOfWhatGoesIntoCommands) {
  const Version version = Version::jet4;
  lay(oldBook(version, {entry(version, "1\r", "1\rATD112;\r\n", "An\rna"),
                        entry(version, "2", "+49\x7F\x1B", "Bert")}));
  const PhoneBookImport result = bringOver();
  EXPECT_EQ(rowsOf("DATA", {"Index", "Number", "Name"}),
            (std::vector<std::string>{"|1|1ATD112;|An\rna", "|2|+49|Bert"}));
  EXPECT_EQ(result.controlCharacters, 3u);
}

TEST_F(PhoneBookImportTest, AFileWhoseNameDiffersInCaseOnlyIsInTheWay) {
  lay(oldBook(Version::jet4, {}));
  folder_.write("NEW.mdb", "somebody's entries");
  EXPECT_EQ(failureOfImport(),
            "There is a file '" + (folder_.path() / "NEW.mdb").string() + "' already.");
  EXPECT_EQ(files(), (std::set<std::string>{"old.mdb", "NEW.mdb"}));
}

TEST_F(PhoneBookImportTest, AJournalOfABookThatIsGoneIsInTheWay) {
  lay(oldBook(Version::jet4, {}));
  folder_.write("new.mdb-journal", "old changes");
  EXPECT_NE(failureOfImport().find("new.mdb-journal', left of a phone book that is gone"),
            std::string::npos);
  EXPECT_EQ(files(), (std::set<std::string>{"old.mdb", "new.mdb-journal"}));
}

TEST_F(PhoneBookImportTest, WhatAKilledImportLeftGoesEvenWithOneThatIsRefused) {
  lay(oldBook(Version::jet4, {}));
  folder_.write("new.mdb", "somebody's entries");
  fs::create_directory(folder_.path() / "new.mdb.unfinished-ABCDEF");
  folder_.write("new.mdb.unfinished-ABCDEF/phonebook.mdb", "half");
  folder_.write("new.mdb.unfinished-ABCDEF/phonebook.mdb-journal", "half");
  EXPECT_NE(failureOfImport(), "");
  EXPECT_EQ(files(), (std::set<std::string>{"old.mdb", "new.mdb"}));
}

TEST_F(PhoneBookImportTest, TheOldFileStaysAsItIs) {
  lay(oldBook(Version::jet3, {entry(Version::jet3, "1", "112", "Emergency")}));
  fs::last_write_time(old_, fs::file_time_type::clock::now() - std::chrono::hours(1000));
  const auto time = fs::last_write_time(old_);
  const auto bytes = folder_.read("old.mdb");
  bringOver();
  EXPECT_EQ(folder_.read("old.mdb"), bytes);
  EXPECT_EQ(fs::last_write_time(old_), time);
}

TEST_F(PhoneBookImportTest, AFileThatIsThereAlreadyIsNeverTouched) {
  lay(oldBook(Version::jet4, {}));
  folder_.write("new.mdb", "somebody's entries");
  EXPECT_EQ(failureOfImport(), "There is a file '" + new_.string() + "' already.");
  EXPECT_EQ(folder_.read("new.mdb"), "somebody's entries");
}

TEST_F(PhoneBookImportTest, AFolderOrALinkIntoNowhereIsInTheWayToo) {
  lay(oldBook(Version::jet4, {}));
  fs::create_symlink("nowhere", new_);
  EXPECT_EQ(failureOfImport(), "There is a file '" + new_.string() + "' already.");
  fs::remove(new_);
  fs::create_directory(new_);
  EXPECT_EQ(failureOfImport(), "There is a file '" + new_.string() + "' already.");
  EXPECT_EQ(files(), (std::set<std::string>{"old.mdb", "new.mdb"}));
}

TEST_F(PhoneBookImportTest, TheOldFileIsNotImportedOntoItself) {
  lay(oldBook(Version::jet4, {}));
  const auto bytes = folder_.read("old.mdb");
  EXPECT_THROW(importPhoneBook(old_, old_), RuntimeFailure);
  EXPECT_EQ(folder_.read("old.mdb"), bytes);
}

TEST_F(PhoneBookImportTest, AFailureLeavesNoNewFile) {
  folder_.write("old.mdb", "no database");
  EXPECT_EQ(failureOfImport(), "'" + old_.string() + "' isn't a Jet 3 or Jet 4 database.");
  EXPECT_EQ(files(), std::set<std::string>{"old.mdb"});
  Database lost = oldBook(Version::jet4, {entry(Version::jet4, "1", "112", "Emergency")});
  lost.tables[1].declared = 2;
  lay(lost);
  EXPECT_NE(failureOfImport(), "");
  EXPECT_EQ(files(), std::set<std::string>{"old.mdb"});
}

TEST_F(PhoneBookImportTest, ANewFileInNoFolderIsAFailure) {
  lay(oldBook(Version::jet4, {}));
  const fs::path nowhere = folder_.path() / "none" / "new.mdb";
  EXPECT_THROW(importPhoneBook(old_, nowhere), RuntimeFailure);
  EXPECT_EQ(files(), std::set<std::string>{"old.mdb"});
}

}  // namespace
}  // namespace gsm::jet
