#include "platform/sqlite/telling_engine.h"

#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

class Telling : public BookTest {
 protected:
  Failed open(const std::string& name) {
    return failureOf([&] { engine_.OpenDatabase(folder_.path() / name); });
  }

  SqliteEngine plain_{kAtOnce};
  std::vector<std::string> told_;
  TellingEngine engine_{plain_, [this](const std::string& text) { told_.push_back(text); }};
};

TEST_F(Telling, AFileThatOpensIsNotReported) {
  EXPECT_EQ(open("phonebook.mdb").number, 0);
  EXPECT_EQ(told_, std::vector<std::string>{});
}

TEST_F(Telling, TheFirstFailureIsReportedWithTheFileAndWhatToDo) {
  const Failed failed = open("none.mdb");
  EXPECT_EQ(failed.number, 3024);
  const std::string path = (folder_.path() / "none.mdb").string();
  ASSERT_EQ(told_.size(), 1u);
  EXPECT_EQ(told_[0], "The phone book " + path + " can't be used: Could not find file '" + path +
                          "'. What is wanted there is a phone book that can be written to: an "
                          "empty one comes with the program, phonebook-import brings one over "
                          "from an old machine.");
}

TEST_F(Telling, LaterFailuresAreOnlyFailures) {
  open("none.mdb");
  EXPECT_EQ(open("none.mdb").number, 3024);
  EXPECT_EQ(open("other.mdb").number, 3024);
  EXPECT_EQ(open("phonebook.mdb").number, 0);
  EXPECT_EQ(told_.size(), 1u);
}

TEST_F(Telling, AFileThatIsNoDatabaseIsReported) {
  folder_.write("text.mdb", std::string(5000, 'x'));
  EXPECT_EQ(open("text.mdb").number, 3343);
  EXPECT_EQ(told_.size(), 1u);
}

TEST_F(Telling, AFileWithoutItsTablesIsReportedOnce) {
  folder_.write("empty.mdb", "");  // an empty file is a database without tables
  const auto database = engine_.OpenDatabase(folder_.path() / "empty.mdb");
  EXPECT_EQ(told_, std::vector<std::string>{});
  EXPECT_EQ(failureOf([&] { database->openRecordSet("DATA"); }).number, 3078);
  ASSERT_EQ(told_.size(), 1u);
  EXPECT_NE(told_[0].find((folder_.path() / "empty.mdb").string()), std::string::npos);
  EXPECT_NE(told_[0].find("'DATA'"), std::string::npos);
  failureOf([&] { database->openRecordSet("DATA"); });
  EXPECT_EQ(told_.size(), 1u);
}

TEST_F(Telling, AStatementThatFailsIsReported) {
  const auto database = engine_.OpenDatabase(folder_.path() / "phonebook.mdb");
  database->Execute("delete from data");
  EXPECT_EQ(told_, std::vector<std::string>{});
  EXPECT_NE(failureOf([&] { database->Execute("delete from nothing"); }).number, 0);
  EXPECT_EQ(told_.size(), 1u);
}

TEST_F(Telling, TheFileIsNamedAsItIsReallySpelled) {
  folder_.write("Text.MDB", std::string(5000, 'x'));
  open("text.mdb");
  ASSERT_EQ(told_.size(), 1u);
  EXPECT_NE(told_[0].find((folder_.path() / "Text.MDB").string()), std::string::npos);
}

TEST_F(Telling, AChangeThatFailsIsReportedOnceWhateverWasReportedBefore) {
  open("none.mdb");
  told_.clear();
  const auto set = engine_.OpenDatabase(file_)->openRecordSet("DATA");
  const auto other = this->BookTest::open();
  other->Execute("begin immediate");
  for (int time = 0; time < 2; ++time) {
    set->AddNew();
    set->setField("Name", "Anna");
    EXPECT_EQ(failureOf([&] { set->Update(); }).number, 3218);
  }
  EXPECT_EQ(failureOf([&] { set->MoveFirst(); }).number, 3021);
  ASSERT_EQ(told_.size(), 1u);
  EXPECT_NE(told_[0].find(file_.string() + " can't be used: Couldn't update; currently locked"),
            std::string::npos);
}

TEST_F(Telling, ADeletionThatFailsIsReported) {
  add({"Anna"});
  const auto set = engine_.OpenDatabase(file_)->openRecordSet("DATA");
  const auto other = this->BookTest::open();
  other->Execute("begin immediate");
  EXPECT_EQ(failureOf([&] { set->Delete(); }).number, 3218);
  EXPECT_EQ(told_.size(), 1u);
}

TEST_F(Telling, AReadingThatFailsIsReported) {
  add({"Anna"});
  const auto set = engine_.OpenDatabase(file_)->openRecordSet("DATA");
  EXPECT_EQ(failureOf([&] { set->field("Phone"); }).number, 3265);
  EXPECT_EQ(told_.size(), 1u);
}

TEST_F(Telling, WhatAHandlerAsksForInVainIsNotReported) {
  add({"O'Neil"});
  const auto set = engine_.OpenDatabase(file_)->openRecordSet("DATA");
  EXPECT_EQ(failureOf([&] { set->FindFirst("Name='O'Neil'"); }).number, 3077);
  EXPECT_EQ(failureOf([&] { set->Update(); }).number, 3020);
  book_->Execute("delete from data");
  EXPECT_EQ(failureOf([&] { set->field("Name"); }).number, 3167);
  EXPECT_EQ(told_, std::vector<std::string>{});
}

TEST_F(Telling, ItsDatabasesWorkAsTheOnesBehindThem) {
  const auto set = engine_.OpenDatabase(folder_.path() / "phonebook.mdb")->openRecordSet("DATA");
  set->AddNew();
  set->setField("Name", "ANNA");
  set->Update();
  const auto again = plain_.OpenDatabase(folder_.path() / "phonebook.mdb")->openRecordSet("DATA");
  ASSERT_FALSE(again->isEof());
}

}  // namespace
}  // namespace gsm
