#include <fcntl.h>

#include "platform/sqlite/phone_book_file.h"
#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

class Engine : public BookTest {
 protected:
  Failed failureOfOpening(const std::string& name) const {
    return failureOf([&] { SqliteEngine().OpenDatabase(folder_.path() / name); });
  }
  std::string path(const std::string& name) const {
    return "'" + (folder_.path() / name).string() + "'";
  }
};

TEST_F(Engine, NamesOfFilesIgnoreCase) {
  add({"Anna"});
  for (const char* name : {"phonebook.mdb", "PhoneBook.mdb", "PHONEBOOK.MDB"}) {
    const auto book = SqliteEngine().OpenDatabase(folder_.path() / name);
    EXPECT_EQ(book->openRecordSet("DATA")->field("Name"), "Anna") << name;
  }
}

TEST_F(Engine, EverySpellingReachesTheSameOfTwoFiles) {
  fs::copy(file_, folder_.path() / "PHONEBOOK.MDB");
  add({"Anna"});
  for (const char* name : {"phonebook.mdb", "PhoneBook.mdb", "PHONEBOOK.MDB"}) {
    const auto book = SqliteEngine().OpenDatabase(folder_.path() / name);
    EXPECT_FALSE(book->openRecordSet("DATA")->isEof()) << name;
  }
}

TEST_F(Engine, NamesThatMeanMoreToTheLibraryAreNames) {
  const fs::path before = fs::current_path();
  fs::current_path(folder_.path());
  add({"Anna"});
  for (const char* name : {"file:other.mdb", "file:phonebook.mdb?mode=ro", ":memory:"}) {
    const Failed making = failureOf([&] { createPhoneBook(name); });
    EXPECT_EQ(making.description, "") << name;
    EXPECT_TRUE(fs::is_regular_file(folder_.path() / name)) << name;
    const Failed reading = failureOf([&] {
      EXPECT_TRUE(SqliteEngine().OpenDatabase(name)->openRecordSet("DATA")->isEof()) << name;
    });
    EXPECT_EQ(reading.description, "") << name;
  }
  fs::current_path(before);
  EXPECT_EQ(stored(), std::vector<std::string>{"Anna"});
}

// The system lets go of all that a program has locked of a file when it closes the file once.
TEST_F(Engine, LookingForAnOldMachinesFileKeepsTheLocks) {
  const auto other = open();
  other->Execute("begin exclusive");
  EXPECT_EQ(failureOf([this] { SqliteEngine(kAtOnce).OpenDatabase(file_); }).number, 3218);
  EXPECT_TRUE(holdsInChild([this] {
    const int file = ::open(file_.c_str(), O_RDWR);
    struct flock lock {};
    lock.l_type = F_WRLCK;
    return fcntl(file, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
  }));
}

TEST_F(Engine, ANameWithoutAFolderIsOfTheCurrentOne) {
  const fs::path before = fs::current_path();
  fs::current_path(folder_.path());
  const Failed exact = failureOf([] { SqliteEngine().OpenDatabase("phonebook.mdb"); });
  const Failed otherCase = failureOf([] { SqliteEngine().OpenDatabase("PhoneBook.mdb"); });
  fs::current_path(before);
  EXPECT_EQ(exact.description, "");
  EXPECT_EQ(otherCase.description, "");
}

TEST_F(Engine, AMissingFileIsAFailureAndNotMade) {
  const Failed failed = failureOfOpening("none.mdb");
  EXPECT_EQ(failed.number, 3024);
  EXPECT_EQ(failed.description, "Could not find file " + path("none.mdb") + ".");
  EXPECT_FALSE(fs::exists(folder_.path() / "none.mdb"));
  EXPECT_EQ(failureOfOpening("none/phonebook.mdb").number, 3024);
}

TEST_F(Engine, AFolderIsNoDatabase) {
  fs::create_directory(folder_.path() / "folder.mdb");
  EXPECT_EQ(failureOfOpening("folder.mdb").number, 3024);
}

TEST_F(Engine, AFileThatIsNoDatabaseIsAFailureAtOnce) {
  folder_.write("text.mdb", std::string(5000, 'x'));
  const Failed failed = failureOfOpening("text.mdb");
  EXPECT_EQ(failed.number, 3343);
  EXPECT_EQ(failed.description, "Unrecognized database format: file is not a database");
}

TEST_F(Engine, ADatabaseWithoutItsMiddleIsAFailure) {
  add({"Anna"});
  const std::string whole = folder_.read("phonebook.mdb").value();
  folder_.write("half.mdb", whole.substr(0, 5000));
  EXPECT_EQ(failureOf([&] {
              const auto set =
                  SqliteEngine().OpenDatabase(folder_.path() / "half.mdb")->openRecordSet("DATA");
              set->field("Name");
            }).number,
            3343);
}

TEST_F(Engine, AFileOfAnOldMachineNamesTheProgramThatBringsItOver) {
  folder_.write("old.mdb", std::string("\0\1\0\0Standard Jet DB\0", 20) + std::string(4096, '\0'));
  const Failed failed = failureOfOpening("old.mdb");
  EXPECT_EQ(failed.number, 3343);
  EXPECT_EQ(failed.description, "Unrecognized database format " + path("old.mdb") +
                                    ": it comes from an old machine. Bring it over with "
                                    "phonebook-import OLD NEW.");
}

TEST_F(Engine, AnEmptyFileHasNoTables) {
  folder_.write("empty.mdb", "");
  const auto book = SqliteEngine().OpenDatabase(folder_.path() / "empty.mdb");
  EXPECT_EQ(failureOf([&] { book->openRecordSet("DATA"); }).number, 3078);
}

TEST_F(Engine, ExecuteEmptiesATable) {
  add({"Anna", "Bert"});
  book_->Execute("delete from data");
  EXPECT_TRUE(entries()->isEof());
  EXPECT_EQ(stored(), std::vector<std::string>{});
}

TEST_F(Engine, ExecuteTakesTextsOfTheCodePage) {
  book_->Execute("insert into data (Name) values ('\xC4rger \x80')");
  EXPECT_EQ(stored(), std::vector<std::string>{"\xC4rger \x80"});
}

TEST_F(Engine, AStatementThatIsNoneIsAFailure) {
  EXPECT_EQ(failureOf([&] { book_->Execute("remove everything"); }).description,
            "Database failure: near \"remove\": syntax error");
  EXPECT_EQ(failureOf([&] { book_->Execute("delete from sms"); }).description,
            "Database failure: no such table: sms");
  EXPECT_EQ(failureOf([&] { book_->Execute(""); }).number, 3129);
}

TEST_F(Engine, OnlyOneStatementIsExecutedAtATime) {
  add({"Anna"});
  EXPECT_EQ(failureOf([&] { book_->Execute("delete from details; delete from data"); }).number,
            3142);
  EXPECT_EQ(stored(), std::vector<std::string>{"Anna"});
  book_->Execute("delete from data ; \n");
  EXPECT_EQ(stored(), std::vector<std::string>{});
}

}  // namespace
}  // namespace gsm
