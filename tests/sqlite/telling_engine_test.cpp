#include "tests/sqlite/book_fixture.h"

namespace gsm {
namespace {

class Telling : public BookTest {
 protected:
  Failed open(const std::string& name) {
    return failureOf([&] { engine_.OpenDatabase(folder_.path() / name); });
  }

  SqliteEngine plain_;
  std::vector<std::string> told_;
  TellingEngine engine_{plain_, [this](const std::string& text) { told_.push_back(text); }};
};

TEST_F(Telling, AFileThatOpensIsNotToldOf) {
  EXPECT_EQ(open("phonebook.mdb").number, 0);
  EXPECT_EQ(told_, std::vector<std::string>{});
}

TEST_F(Telling, TheFirstFailureIsToldOfWithTheFileAndWhatToDo) {
  const Failed failed = open("none.mdb");
  EXPECT_EQ(failed.number, 3024);
  const std::string path = (folder_.path() / "none.mdb").string();
  ASSERT_EQ(told_.size(), 1u);
  EXPECT_EQ(told_[0], "The phone book " + path + " can't be used: Could not find file '" + path +
                          "'. Lay a phone book there: an empty one comes with the program, "
                          "phonebook-import brings one over from an old machine.");
}

TEST_F(Telling, LaterFailuresAreOnlyFailures) {
  open("none.mdb");
  EXPECT_EQ(open("none.mdb").number, 3024);
  EXPECT_EQ(open("other.mdb").number, 3024);
  EXPECT_EQ(open("phonebook.mdb").number, 0);
  EXPECT_EQ(told_.size(), 1u);
}

TEST_F(Telling, AFileThatIsNoDatabaseIsToldOf) {
  folder_.write("text.mdb", std::string(5000, 'x'));
  EXPECT_EQ(open("text.mdb").number, 3343);
  EXPECT_EQ(told_.size(), 1u);
}

}  // namespace
}  // namespace gsm
