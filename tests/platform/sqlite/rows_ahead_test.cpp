// A walk reads rows ahead, and what it gives is all the same what the file holds at that moment.

#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

using Names = std::vector<std::string>;

class RowsAheadTest : public BookTest {
 protected:
  RowsAheadTest() {
    for (int index = 1; index <= kRows; ++index) names_.push_back("NAME " + std::to_string(index));
    book_->Execute("begin");
    add(names_);
    book_->Execute("commit");
  }
  // A set that has walked so far that the rows to come are read.
  std::unique_ptr<RecordSet> walkedTo(int row) const {
    auto set = entries();
    for (int each = 1; each < row; ++each) {
      set->field("Name");
      set->MoveNext();
    }
    set->field("Name");
    return set;
  }
  static std::string nextName(RecordSet& set) {
    set.MoveNext();
    return set.field("Name");
  }

  static constexpr int kRows = 1000;
  Names names_;
};

TEST_F(RowsAheadTest, AWalkGivesEveryRowOnce) {
  EXPECT_EQ(rest(*entries()), names_);
  const auto set = entries();
  rest(*set);
  set->MoveFirst();
  EXPECT_EQ(rest(*set), names_);
}

TEST_F(RowsAheadTest, ARowThatAnotherConnectionChangedIsAsItIsNow) {
  const auto set = walkedTo(100);
  open()->Execute("update data set name='other' where \"Index\"='101'");
  EXPECT_EQ(nextName(*set), "other");
  EXPECT_EQ(nextName(*set), "NAME 102");
}

TEST_F(RowsAheadTest, ARowThatAnotherProcessChangedIsAsItIsNow) {
  const auto set = walkedTo(100);
  ASSERT_TRUE(holdsInChild([this] {
    open()->Execute("update data set name='other' where \"Index\"='101'");
    return true;
  }));
  EXPECT_EQ(nextName(*set), "other");
}

TEST_F(RowsAheadTest, TheCurrentRowIsReadAnewForEachColumn) {
  const auto set = walkedTo(100);
  EXPECT_EQ(set->field("Name"), "NAME 100");
  open()->Execute("update data set name='other', number='112' where \"Index\"='100'");
  EXPECT_EQ(set->field("Number"), "112");
  EXPECT_EQ(set->field("Name"), "other");
}

TEST_F(RowsAheadTest, ARowThatWasDeletedMeanwhileIsAFailure) {
  const auto set = walkedTo(100);
  open()->Execute("delete from data where \"Index\"='101'");
  set->MoveNext();
  EXPECT_EQ(failureOf([&] { set->field("Name"); }).number, 3167);
  EXPECT_EQ(nextName(*set), "NAME 102");
}

TEST_F(RowsAheadTest, ARowThatTheSetItselfChangedIsAsItIsNow) {
  const auto set = walkedTo(100);
  set->Edit();
  set->setField("Name", "other");
  set->Update();
  EXPECT_EQ(set->field("Name"), "other");
}

TEST_F(RowsAheadTest, ChangesOfItsOwnConnectionCountBeforeTheyAreOnTheDiskAndWhenTheyAreTakenBack) {
  const auto set = walkedTo(100);
  book_->Execute("begin");
  book_->Execute("update data set name='other' where \"Index\"='101'");
  EXPECT_EQ(nextName(*set), "other");
  EXPECT_EQ(nextName(*set), "NAME 102");
  set->FindFirst("index='101'");
  EXPECT_EQ(set->field("Name"), "other");
  book_->Execute("rollback");
  EXPECT_EQ(set->field("Name"), "NAME 101");
}

TEST_F(RowsAheadTest, AFileThatKeepsItsChangesInALogIsLiveToo) {
  book_->Execute("pragma journal_mode=wal");
  const auto other = open();
  const auto set = walkedTo(100);
  for (const char* name : {"one", "two"}) {
    other->Execute("update data set name='" + std::string(name) + "' where \"Index\"='100'");
    EXPECT_EQ(set->field("Name"), name);
  }
  EXPECT_EQ(nextName(*set), "NAME 101");
}

TEST_F(RowsAheadTest, AFileThatBeginsToKeepALogOnTheWayIsLiveToo) {
  const auto set = walkedTo(100);
  const auto other = open();
  other->Execute("pragma journal_mode=wal");
  other->Execute("update data set name='other' where \"Index\"='101'");
  EXPECT_EQ(nextName(*set), "other");
}

TEST_F(RowsAheadTest, AWalkThatRestsHoldsNoLock) {
  const auto set = walkedTo(100);
  EXPECT_EQ(failureOf([this] {
              SqliteEngine(kAtOnce).OpenDatabase(file_)->Execute("delete from data");
            }).description,
            "");
  EXPECT_EQ(failureOf([&] { set->field("Name"); }).number, 3167);
}

TEST_F(RowsAheadTest, AFileThatBecomesHeldIsAFailureOnlyWhereItMustBeRead) {
  const auto patient = SqliteEngine(kAtOnce).OpenDatabase(file_);
  const auto set = patient->openRecordSet("DATA");
  const auto other = open();
  other->Execute("begin exclusive");
  EXPECT_EQ(failureOf([&] { set->field("Name"); }).number, 3218);
  other->Execute("commit");
  EXPECT_EQ(set->field("Name"), "NAME 1");
}

}  // namespace
}  // namespace gsm
