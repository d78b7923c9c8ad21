#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

using Names = std::vector<std::string>;

class RecordSetTest : public BookTest {};

TEST_F(RecordSetTest, AnEmptySetIsAtBothEnds) {
  const auto set = entries();
  EXPECT_TRUE(set->isBof());
  EXPECT_TRUE(set->isEof());
}

TEST_F(RecordSetTest, AnEmptySetHasNoCurrentRow) {
  const auto set = entries();
  EXPECT_EQ(failureOf([&] { set->MoveFirst(); }).number, 3021);
  EXPECT_EQ(failureOf([&] { set->MoveNext(); }).number, 3021);
  EXPECT_EQ(failureOf([&] { set->Edit(); }).number, 3021);
  EXPECT_EQ(failureOf([&] { set->Delete(); }).number, 3021);
  const Failed failed = failureOf([&] { set->field("Name"); });
  EXPECT_EQ(failed.number, 3021);
  EXPECT_EQ(failed.description, "No current record.");
}

TEST_F(RecordSetTest, ItStandsAtItsFirstRowWhenItIsOpened) {
  add({"Anna", "Bert"});
  const auto set = entries();
  EXPECT_FALSE(set->isBof());
  EXPECT_FALSE(set->isEof());
  EXPECT_EQ(set->field("Name"), "Anna");
}

TEST_F(RecordSetTest, RowsStandInTheOrderInWhichTheyWereAdded) {
  add({"Cora", "Anna", "Bert"});
  const auto set = entries();
  EXPECT_EQ(rest(*set), (Names{"Cora", "Anna", "Bert"}));
  EXPECT_FALSE(set->isBof());
  set->MoveFirst();
  EXPECT_EQ(set->field("Name"), "Cora");
}

TEST_F(RecordSetTest, AChangedRowKeepsItsPlace) {
  add({"Cora", "Anna", "Bert"});
  const auto set = entries();
  set->Edit();
  set->setField("Name", "Zoe");
  set->Update();
  EXPECT_EQ(stored(), (Names{"Zoe", "Anna", "Bert"}));
}

TEST_F(RecordSetTest, ThereIsNothingBehindTheEnd) {
  add({"Anna"});
  const auto set = entries();
  set->MoveNext();
  EXPECT_TRUE(set->isEof());
  EXPECT_EQ(failureOf([&] { set->MoveNext(); }).number, 3021);
  EXPECT_EQ(failureOf([&] { set->field("Name"); }).number, 3021);
}

TEST_F(RecordSetTest, NamesOfTablesAndColumnsIgnoreCase) {
  const auto set = book_->openRecordSet("dATa");
  set->AddNew();
  set->setField("INDEX", "1");
  set->setField("name", "Anna");
  set->Update();
  EXPECT_EQ(set->field("Name"), "Anna");
  EXPECT_EQ(set->field("iNDEX"), "1");
  EXPECT_TRUE(book_->openRecordSet("DETAILS")->isEof());
}

TEST_F(RecordSetTest, AnUnknownTableOrColumnIsAFailure) {
  const Failed failed = failureOf([&] { book_->openRecordSet("SMS"); });
  EXPECT_EQ(failed.number, 3078);
  EXPECT_EQ(failed.description, "Could not find the input table or query 'SMS'.");
  EXPECT_EQ(failureOf([&] { book_->openRecordSet(""); }).number, 3078);
  EXPECT_EQ(failureOf([&] { book_->openRecordSet("DATA\" --"); }).number, 3078);
  add({"Anna"});
  const auto set = entries();
  EXPECT_EQ(failureOf([&] { set->field("Phone"); }).number, 3265);
  set->Edit();
  EXPECT_EQ(failureOf([&] { set->setField("Phone", "1"); }).number, 3265);
}

TEST_F(RecordSetTest, AColumnThatWasNeverSetIsEmpty) {
  add({"Anna"});
  EXPECT_EQ(entries()->field("Number"), "");
}

TEST_F(RecordSetTest, ARowOfNothingCanBeAdded) {
  const auto set = entries();
  set->AddNew();
  set->Update();
  EXPECT_EQ(stored(), Names{""});
}

TEST_F(RecordSetTest, TheColumnsOfARowThatIsBeingAddedAreAsTheyWereSet) {
  add({"Anna"});
  const auto set = entries();
  set->AddNew();
  EXPECT_EQ(set->field("Name"), "");
  set->setField("Name", "Bert");
  EXPECT_EQ(set->field("Name"), "Bert");
  EXPECT_EQ(stored(), Names{"Anna"});
}

TEST_F(RecordSetTest, AnEditChangesOnlyWhatWasSet) {
  add({"Anna"});
  const auto set = entries();
  set->Edit();
  set->setField("Number", "112");
  EXPECT_EQ(set->field("Name"), "Anna");
  EXPECT_EQ(set->field("Number"), "112");
  set->Update();
  const auto again = entries();
  EXPECT_EQ(again->field("Name"), "Anna");
  EXPECT_EQ(again->field("Number"), "112");
}

TEST_F(RecordSetTest, AnAddedRowIsTheLastAndTheCurrentRowStays) {
  add({"Anna", "Bert"});
  const auto set = entries();
  set->AddNew();
  set->setField("Name", "Cora");
  set->Update();
  EXPECT_EQ(rest(*set), (Names{"Anna", "Bert", "Cora"}));
}

TEST_F(RecordSetTest, NothingIsSetOrStoredWithoutAnAddNewOrAnEdit) {
  add({"Anna"});
  const auto set = entries();
  EXPECT_EQ(failureOf([&] { set->setField("Name", "Bert"); }).number, 3020);
  EXPECT_EQ(failureOf([&] { set->Update(); }).number, 3020);
  set->Edit();
  set->Update();
  EXPECT_EQ(failureOf([&] { set->Update(); }).number, 3020);
  EXPECT_EQ(stored(), Names{"Anna"});
}

TEST_F(RecordSetTest, AnEditThatFailedBeginsNothing) {
  add({"Anna"});
  const auto set = entries();
  set->MoveNext();
  const Failed edit = failureOf([&] { set->Edit(); });
  EXPECT_EQ(edit.number, 3021);
  EXPECT_EQ(edit.description, "No current record.");
  const Failed setting = failureOf([&] { set->setField("Name", "Bert"); });
  EXPECT_EQ(setting.number, 3020);
  EXPECT_EQ(setting.description, "Update or CancelUpdate without AddNew or Edit.");
  const Failed update = failureOf([&] { set->Update(); });
  EXPECT_EQ(update.number, 3020);
  EXPECT_EQ(update.description, "Update or CancelUpdate without AddNew or Edit.");
  EXPECT_EQ(stored(), Names{"Anna"});
}

TEST_F(RecordSetTest, MovingForgetsWhatWasNotStored) {
  add({"Anna", "Bert"});
  const auto set = entries();
  const std::vector<std::function<void()>> moves = {
      [&] { set->MoveFirst(); }, [&] { set->MoveNext(); }, [&] { set->FindFirst("Name='Bert'"); }};
  for (const auto& move : moves) {
    set->AddNew();
    set->setField("Name", "Cora");
    move();
    EXPECT_NE(set->field("Name"), "Cora");
    EXPECT_EQ(failureOf([&] { set->Update(); }).number, 3020);
    set->MoveFirst();
  }
  EXPECT_EQ(stored(), (Names{"Anna", "Bert"}));
}

TEST_F(RecordSetTest, ADeletedRowIsGone) {
  add({"Anna", "Bert", "Cora"});
  const auto set = entries();
  set->FindFirst("Name='Bert'");
  set->Delete();
  EXPECT_EQ(stored(), (Names{"Anna", "Cora"}));
  set->MoveFirst();
  EXPECT_EQ(rest(*set), (Names{"Anna", "Cora"}));
}

TEST_F(RecordSetTest, DeletingForgetsWhatWasNotStored) {
  add({"Anna", "Bert"});
  const auto set = entries();
  set->Edit();
  set->setField("Name", "Cora");
  set->Delete();
  EXPECT_EQ(failureOf([&] { set->Update(); }).number, 3020);
  EXPECT_EQ(stored(), Names{"Bert"});
}

TEST_F(RecordSetTest, AllRowsCanBeDeleted) {
  add({"Anna", "Bert"});
  const auto set = entries();
  set->Delete();
  set->Delete();
  EXPECT_TRUE(set->isBof());
  EXPECT_TRUE(set->isEof());
  EXPECT_EQ(stored(), Names{});
}

TEST_F(RecordSetTest, EveryByteOfANameComesBack) {
  std::string every;
  for (int byte = 0; byte < 256; ++byte) every += static_cast<char>(byte);
  add({every});
  EXPECT_EQ(stored(), Names{every});
  for (int byte = 0; byte < 256; ++byte) {
    const std::string name = std::string("a") + static_cast<char>(byte) + "b";
    const auto set = entries();
    set->Edit();
    set->setField("Name", name);
    set->Update();
    EXPECT_EQ(stored(), Names{name}) << "byte " << byte;
  }
}

TEST_F(RecordSetTest, ASetOutlivesTheVariableOfItsDatabase) {
  add({"Anna"});
  const auto set = entries();
  book_.reset();
  EXPECT_EQ(set->field("Name"), "Anna");
}

}  // namespace
}  // namespace gsm
