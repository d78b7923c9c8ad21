// phonebook-import and phonebook-create as they are run from a shell.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>

#include "platform/sqlite/sqlite_engine.h"
#include "tests/importer/old_book.h"

namespace gsm::jet {
namespace {

struct Ran {
  int exit = -1;
  std::string output;  // of both kinds
};

Ran run(const std::string& command) {
  Ran result;
  FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return result;
  std::array<char, 4096> bytes{};
  while (const std::size_t count = fread(bytes.data(), 1, bytes.size(), pipe)) {
    result.output.append(bytes.data(), count);
  }
  const int status = pclose(pipe);
  if (WIFEXITED(status)) result.exit = WEXITSTATUS(status);
  return result;
}

class PhoneBookPrograms : public ::testing::Test {
 protected:
  // A file of the test's folder, for a shell.
  std::string file(const std::string& name) const {
    return "'" + (folder_.path() / name).string() + "'";
  }
  Ran runImport(const std::string& arguments) const {
    return run(std::string(PHONEBOOK_IMPORT) + " " + arguments);
  }
  Ran runCreate(const std::string& arguments) const {
    return run(std::string(PHONEBOOK_CREATE) + " " + arguments);
  }

  TemporaryFolder folder_;
};

TEST_F(PhoneBookPrograms, ImportSaysHowManyRowsItTook) {
  const Version version = Version::jet4;
  folder_.write("old.mdb", fileOf(oldBook(version, {entry(version, "1", "112", "Emergency"),
                                                    entry(version, "2", "113", "Anna")})));
  const Ran done = runImport(file("old.mdb") + " " + file("new.mdb"));
  EXPECT_EQ(done.output, "DATA: 2 rows\nDetails: 1 row\n");
  EXPECT_EQ(done.exit, 0);
  const auto set = SqliteEngine().OpenDatabase(folder_.path() / "new.mdb")->openRecordSet("DATA");
  EXPECT_EQ(set->field("Name"), "Emergency");
}

TEST_F(PhoneBookPrograms, ImportReportsUnknownLetters) {
  Database book = oldBook(Version::jet4, {entry(Version::jet4, "1", "2", "Anna")});
  book.tables[0].rows[0].cells[2] = compressedText(u"Жанна");
  folder_.write("old.mdb", fileOf(book));
  EXPECT_EQ(runImport(file("old.mdb") + " " + file("new.mdb")).output,
            "DATA: 1 row\nDetails: 1 row\n"
            "Texts with letters that the program doesn't know, now \"?\": 1\n");
}

TEST_F(PhoneBookPrograms, ImportSaysWhatIsWrongWithTheOldFile) {
  folder_.write("old.mdb", "no database");
  const Ran done = runImport(file("old.mdb") + " " + file("new.mdb"));
  EXPECT_EQ(done.output,
            "phonebook-import: " + file("old.mdb") + " isn't a Jet 3 or Jet 4 database.\n");
  EXPECT_EQ(done.exit, 1);
  EXPECT_EQ(folder_.read("new.mdb"), std::nullopt);
}

TEST_F(PhoneBookPrograms, ImportLeavesNothingBehindOnAFullDisk) {
  folder_.write("old.mdb", fileOf(oldBook(Version::jet4, {})));
  const Ran done = run("ulimit -f 16; trap '' XFSZ; exec " + std::string(PHONEBOOK_IMPORT) + " " +
                       file("old.mdb") + " " + file("new.mdb"));
  EXPECT_EQ(done.exit, 1);
  EXPECT_EQ(done.output.find("phonebook-import: "), 0u);
  const std::filesystem::directory_iterator files(folder_.path());
  EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST_F(PhoneBookPrograms, ImportIsNotMisledByTheLibrarysOptions) {
  folder_.write("old.mdb",
                fileOf(oldBook(Version::jet4, {entry(Version::jet4, "1", "1", "\xC4")})));
  const Ran done = run("MDBICONV=UTF-16 MDBOPTS=debug_all " + std::string(PHONEBOOK_IMPORT) + " " +
                       file("old.mdb") + " " + file("new.mdb"));
  EXPECT_EQ(done.output, "DATA: 1 row\nDetails: 1 row\n");
  const auto set = SqliteEngine().OpenDatabase(folder_.path() / "new.mdb")->openRecordSet("DATA");
  EXPECT_EQ(set->field("Name"), "\xC4");
}

TEST_F(PhoneBookPrograms, WrongUsageEndsWithTheUsage) {
  for (const char* arguments : {"", "one", "one two three", "-v two"}) {
    const Ran done = runImport(arguments);
    EXPECT_EQ(done.exit, 2) << arguments;
    EXPECT_EQ(done.output.find("usage: phonebook-import OLD NEW\n"), 0u) << arguments;
  }
  for (const char* arguments :
       {"", "one two", "-v", "--unless-there", "--unless-there -v", "--other one"}) {
    const Ran done = runCreate(arguments);
    EXPECT_EQ(done.exit, 2) << arguments;
    EXPECT_EQ(done.output.find("usage: phonebook-create [--unless-there] FILE\n"), 0u) << arguments;
  }
}

TEST_F(PhoneBookPrograms, HelpIsNoFailure) {
  EXPECT_EQ(runImport("--help").exit, 0);
  EXPECT_EQ(runCreate("--help").exit, 0);
}

TEST_F(PhoneBookPrograms, CreateMakesAnEmptyBook) {
  const Ran done = runCreate(file("book.mdb"));
  EXPECT_EQ(done.exit, 0);
  EXPECT_EQ(done.output, "");
  const auto book = SqliteEngine().OpenDatabase(folder_.path() / "book.mdb");
  EXPECT_TRUE(book->openRecordSet("DATA")->isEof());
  EXPECT_TRUE(book->openRecordSet("Details")->isEof());
}

TEST_F(PhoneBookPrograms, ImportReportsControlCharacters) {
  folder_.write("old.mdb",
                fileOf(oldBook(Version::jet4, {entry(Version::jet4, "1", "1\r2", "Anna")})));
  EXPECT_EQ(runImport(file("old.mdb") + " " + file("new.mdb")).output,
            "DATA: 1 row\nDetails: 1 row\n"
            "Numbers and locations with control characters, which are left out: 1\n");
}

TEST_F(PhoneBookPrograms, CreateUnlessThereLeavesOneOfEverySpelling) {
  folder_.write("BOOK.mdb", "somebody's entries");
  const Ran done = runCreate("--unless-there " + file("book.mdb"));
  EXPECT_EQ(done.exit, 0);
  EXPECT_EQ(done.output, "");
  EXPECT_EQ(folder_.read("book.mdb"), std::nullopt);
  EXPECT_EQ(runCreate("--unless-there " + file("other.mdb")).exit, 0);
  EXPECT_NE(folder_.read("other.mdb"), std::nullopt);
}

TEST_F(PhoneBookPrograms, CreateUnlessThereRefusesTwins) {
  folder_.write("BOOK.mdb", "");
  folder_.write("book.mdb", "");
  const Ran done = runCreate("--unless-there " + file("book.mdb"));
  EXPECT_EQ(done.exit, 1);
  EXPECT_EQ(done.output.find("phonebook-create: There are 2 files of that name: "), 0u);
}

TEST_F(PhoneBookPrograms, CreateLeavesAFileThatIsThere) {
  folder_.write("book.mdb", "somebody's entries");
  const Ran done = runCreate(file("book.mdb"));
  EXPECT_EQ(done.exit, 1);
  EXPECT_EQ(done.output, "phonebook-create: There is a file " + file("book.mdb") + " already.\n");
  EXPECT_EQ(folder_.read("book.mdb"), "somebody's entries");
}

}  // namespace
}  // namespace gsm::jet
