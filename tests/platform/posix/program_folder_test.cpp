#include "platform/posix/program_folder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

class ProgramFolderTest : public ::testing::Test {
 protected:
  ProgramFolderTest() {
    fs::permissions(folder_.path(), fs::perms::all);
    fs::create_directory(beside());
  }

  fs::path beside() const { return folder_.path() / "program"; }
  fs::path data() const { return folder_.path() / "data"; }
  fs::path home() const { return folder_.path() / "home"; }
  ProgramFolder::Places places() const {
    return {.beside = beside(), .dataHome = data(), .home = home()};
  }

  /// What is chosen by a user who may not write beside the program.
  ProgramFolder choiceOfStranger(const ProgramFolder::Places& places) {
    fs::permissions(beside(), fs::perms::owner_all);
    EXPECT_EQ(::seteuid(65534), 0);
    const ProgramFolder chosen = chooseProgramFolder(places);
    EXPECT_EQ(::seteuid(0), 0);
    return chosen;
  }
  static bool isRoot() { return ::geteuid() == 0; }

  TemporaryFolder folder_;
};

TEST_F(ProgramFolderTest, IsTheGivenOne) {
  ProgramFolder::Places all = places();
  all.given = "/some/where";
  EXPECT_EQ(chooseProgramFolder(all).path, "/some/where");
  EXPECT_FALSE(chooseProgramFolder(all).isUsers);
}

TEST_F(ProgramFolderTest, IsBesideTheProgramWhereThatCanBeWritten) {
  EXPECT_EQ(chooseProgramFolder(places()).path, beside());
  EXPECT_FALSE(chooseProgramFolder(places()).isUsers);
  EXPECT_FALSE(fs::exists(data())) << "nothing is made that isn't wanted";
}

TEST_F(ProgramFolderTest, IsNeverWhereProgramsAreInstalledForEverybody) {
  ProgramFolder::Places installed = places();
  installed.beside = "/usr/bin";  // where root may write
  EXPECT_EQ(chooseProgramFolder(installed).path, data() / "gsm-application");
  EXPECT_TRUE(chooseProgramFolder(installed).isUsers);
}

TEST_F(ProgramFolderTest, IsElseTheUsersOwnWhichIsMade) {
  if (!isRoot()) GTEST_SKIP() << "needs root to take rights away";
  const ProgramFolder chosen = choiceOfStranger(places());
  EXPECT_EQ(chosen.path, data() / "gsm-application");
  EXPECT_TRUE(chosen.isUsers);
  EXPECT_TRUE(fs::is_directory(chosen.path));
}

TEST_F(ProgramFolderTest, LiesInTheHomeWhereNoDataFolderIsNamed) {
  if (!isRoot()) GTEST_SKIP() << "needs root to take rights away";
  for (const char* none : {"", "not/absolute"}) {
    ProgramFolder::Places other = places();
    other.dataHome = none;
    EXPECT_EQ(choiceOfStranger(other).path, home() / ".local/share/gsm-application") << none;
  }
}

TEST_F(ProgramFolderTest, IsBesideTheProgramAfterAllWhereNothingCanBeWritten) {
  if (!isRoot()) GTEST_SKIP() << "needs root to take rights away";
  EXPECT_EQ(choiceOfStranger({.beside = beside()}).path, beside());
  EXPECT_EQ(choiceOfStranger({.beside = beside(), .home = "/proc"}).path, beside());
}

TEST_F(ProgramFolderTest, MayHaveAnyBytesInItsName) {
  if (!isRoot()) GTEST_SKIP() << "needs root to take rights away";
  ProgramFolder::Places odd = places();
  odd.dataHome = folder_.path() / "caf\xE9 \x01";
  const ProgramFolder chosen = choiceOfStranger(odd);
  EXPECT_EQ(chosen.path, odd.dataHome / "gsm-application");
  EXPECT_TRUE(fs::is_directory(chosen.path));
}

TEST_F(ProgramFolderTest, HasAPhoneBookInWhicheverCaseItIsSpelled) {
  EXPECT_FALSE(hasPhoneBook(folder_.path()));
  EXPECT_FALSE(hasPhoneBook(folder_.path() / "nowhere"));
  folder_.write("PhoneBook.MDB", "");
  EXPECT_TRUE(hasPhoneBook(folder_.path()));
}

TEST_F(ProgramFolderTest, TheProgramKnowsWhereItLies) {
  const ProgramFolder::Places here = placesHere({});
  EXPECT_TRUE(fs::exists(here.beside / "posix_tests"));
}

}  // namespace
}  // namespace gsm
