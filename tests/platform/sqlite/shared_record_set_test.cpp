// Two record sets on one file.

#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

using Names = std::vector<std::string>;

class SharedRecordSet : public BookTest {};

TEST_F(SharedRecordSet, TwoSetsSeeEachOthersChangesOfARow) {
  add({"Anna"});
  const auto one = entries();
  const auto two = open()->openRecordSet("DATA");
  one->Edit();
  one->setField("Name", "Bert");
  one->Update();
  EXPECT_EQ(two->field("Name"), "Bert");
  two->Edit();
  two->setField("Name", "Cora");
  two->Update();
  EXPECT_EQ(one->field("Name"), "Cora");
}

TEST_F(SharedRecordSet, ARowThatWasReadCanBeChangedElsewhereAtOnce) {
  add({"Anna"});
  const auto one = entries();
  const auto two = open()->openRecordSet("DATA");
  ASSERT_EQ(one->field("Name"), "Anna");
  two->Edit();
  two->setField("Name", "Bert");
  EXPECT_EQ(failureOf([&] { two->Update(); }).description, "");
  EXPECT_EQ(one->field("Name"), "Bert");
}

TEST_F(SharedRecordSet, ARowThatAnotherSetDeletedIsAFailure) {
  add({"Anna", "Bert"});
  const auto one = entries();
  const auto two = open()->openRecordSet("DATA");
  one->Delete();
  const Failed failed = failureOf([&] { two->field("Name"); });
  EXPECT_EQ(failed.number, 3167);
  EXPECT_EQ(failed.description, "Record is deleted.");
  EXPECT_EQ(failureOf([&] { two->Delete(); }).number, 3167);
  two->Edit();
  two->setField("Name", "Cora");
  EXPECT_EQ(failureOf([&] { two->Update(); }).number, 3167);
  two->MoveNext();
  EXPECT_EQ(two->field("Name"), "Bert");
}

TEST_F(SharedRecordSet, TwoSetsMayAddInTurn) {
  const auto one = entries();
  const auto two = open()->openRecordSet("DATA");
  for (const char* name : {"a", "b"}) {
    for (RecordSet* const set : {one.get(), two.get()}) {
      set->AddNew();
      set->setField("Name", name);
      set->Update();
    }
  }
  EXPECT_EQ(rest(*one), (Names{"a", "b"}));
  EXPECT_EQ(stored(), (Names{"a", "a", "b", "b"}));
}

// Such a row may get the number of one that the set still counts among its own.
TEST_F(SharedRecordSet, ARowAddedAfterOthersWereDeletedElsewhereIsNotCountedTwice) {
  add({"Anna", "Bert", "Cora"});
  const auto set = entries();
  book_->Execute("delete from data where name='Cora'");
  set->AddNew();
  set->setField("Name", "Dora");
  set->Update();
  EXPECT_EQ(rest(*set), (Names{"Anna", "Bert", "Dora"}));
}

TEST_F(SharedRecordSet, ARowAddedInAGapLeavesTheCurrentRow) {
  add({"Anna", "Bert", "Cora"});
  const auto set = entries();
  set->MoveNext();
  set->Delete();
  ASSERT_EQ(set->field("Name"), "Cora");
  const auto other = open();
  other->Execute("delete from data where name='Cora'");
  set->AddNew();
  set->setField("Name", "Dora");
  set->Update();
  EXPECT_EQ(failureOf([&] { set->field("Name"); }).number, 3167);  // still Cora's
  set->MoveFirst();
  set->MoveNext();
  EXPECT_EQ(set->field("Name"), "Dora");
}

}  // namespace
}  // namespace gsm
