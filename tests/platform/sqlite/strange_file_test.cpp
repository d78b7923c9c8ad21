// Phone books that somebody else's tools have made: whatever their columns hold, a row is texts.

#include "platform/sqlite/connection.h"
#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

class StrangeFile : public BookTest {
 protected:
  // The book has the table that `definition` makes in the place of its own.
  void redefine(const std::string& definition) {
    book_->Execute("drop table data");
    book_->Execute(definition);
  }
  Failed failureOfWalking() const {
    return failureOf([this] {
      const auto set = open()->openRecordSet("DATA");
      for (; !set->isEof(); set->MoveNext()) set->field("Name");
      set->FindFirst("Name='x'");
    });
  }
};

TEST_F(StrangeFile, WhatIsNotSetIsAnEmptyText) {
  book_->Execute("insert into data values (null, null, null)");
  const auto set = entries();
  for (const char* column : {"Index", "Number", "Name"}) EXPECT_EQ(set->field(column), "");
}

TEST_F(StrangeFile, NumbersAreTheirDigits) {
  redefine("create table DATA (\"Index\" integer, Number real, Name)");
  book_->Execute("insert into data values (7, 1.5, -9223372036854775808)");
  const auto set = entries();
  EXPECT_EQ(set->field("Index"), "7");
  EXPECT_EQ(set->field("Number"), "1.5");
  EXPECT_EQ(set->field("Name"), "-9223372036854775808");
  set->FindFirst("INDEX='7'");
  EXPECT_FALSE(set->NoMatch());
  set->Edit();
  set->setField("Index", "8");
  set->Update();
  EXPECT_EQ(set->field("Index"), "8");
}

TEST_F(StrangeFile, BytesAreATextAsFarAsTheyAreOne) {
  book_->Execute("insert into data values (x'C3A4', x'FF00', zeroblob(3))");
  const auto set = entries();
  EXPECT_EQ(set->field("Index"), "\xE4");
  EXPECT_EQ(set->field("Number"), std::string("?\0", 2));
  EXPECT_EQ(set->field("Name"), std::string(3, '\0'));
  set->FindFirst("Index='\xC4'");
  EXPECT_FALSE(set->NoMatch());
}

TEST_F(StrangeFile, AZeroByteEndsNoText) {
  book_->Execute("insert into data (Name) values (cast(x'610062' as text))");
  const std::string name("a\0b", 3);
  const auto set = entries();
  EXPECT_EQ(set->field("Name"), name);
  set->FindFirst("Name='a'");
  EXPECT_TRUE(set->NoMatch());
  set->FindFirst("right(name,1)='b'");
  EXPECT_FALSE(set->NoMatch());
}

TEST_F(StrangeFile, TextsMayBeStoredInTwoBytesACharacter) {
  folder_.write("other.mdb", "");
  const auto book = SqliteEngine().OpenDatabase(folder_.path() / "other.mdb");
  book->Execute("pragma encoding='UTF-16'");
  book->Execute("create table DATA (Name)");
  book->Execute("insert into data values ('\xC4rger \x80')");
  const auto set = book->openRecordSet("DATA");
  EXPECT_EQ(set->field("Name"), "\xC4rger \x80");
  set->FindFirst("right(name,3)='R \x80'");
  EXPECT_FALSE(set->NoMatch());
}

TEST_F(StrangeFile, ATextOfAMillionCharactersIsOne) {
  book_->Execute("insert into data (Name) values (hex(zeroblob(500000)))");
  const auto set = entries();
  EXPECT_EQ(set->field("Name"), std::string(1'000'000, '0'));
  set->FindFirst("right(name,2)='00'");
  EXPECT_FALSE(set->NoMatch());
}

TEST_F(StrangeFile, AColumnThatIsMissingIsAFailureOnlyWhereItIsUsed) {
  redefine("create table DATA (Name)");
  const auto set = entries();
  set->AddNew();
  set->setField("Name", "Anna");
  EXPECT_EQ(failureOf([&] { set->setField("Number", "1"); }).number, 3265);
  set->Update();
  EXPECT_EQ(set->field("Name"), "Anna");
  EXPECT_EQ(failureOf([&] { set->field("Number"); }).number, 3265);
}

TEST_F(StrangeFile, NamesWithQuotesAreNamesAndNoMore) {
  book_->Execute("create table \"a\"\"b; drop table data\" (\"x\"\"y\" text)");
  const auto set = book_->openRecordSet("a\"b; drop table data");
  set->AddNew();
  set->setField("x\"y", "text");
  set->Update();
  EXPECT_EQ(set->field("X\"Y"), "text");
  EXPECT_TRUE(entries()->isEof());
}

TEST_F(StrangeFile, WhatHasNoRowsOfItsOwnIsAFailure) {
  redefine("create view DATA as select 'Anna' as Name");
  EXPECT_NE(failureOfWalking().number, 0);
  book_->Execute("drop view data");
  book_->Execute("create table DATA (Name text primary key) without rowid");
  EXPECT_NE(failureOfWalking().number, 0);
}

TEST_F(StrangeFile, AValueThatTheTableRefusesIsAFailureAndNotStored) {
  redefine("create table DATA (Name text unique)");
  const auto set = entries();
  for (const char* name : {"Anna", "Bert"}) {
    set->AddNew();
    set->setField("Name", name);
    set->Update();
  }
  set->AddNew();
  set->setField("Name", "Anna");
  EXPECT_EQ(failureOf([&] { set->Update(); }).description,
            "Database failure: UNIQUE constraint failed: DATA.Name");
  EXPECT_EQ(stored(), (std::vector<std::string>{"Anna", "Bert"}));
}

// A change is on the disk when it is stored, the journal's removal too, in whatever way the file
// keeps its journal.
TEST_F(StrangeFile, EveryConnectionWaitsForTheDisk) {
  const auto waits = [this] {
    const Connection connection(file_);
    Statement query(connection, "PRAGMA synchronous");
    return query.step() && query.number(0) == 3;
  };
  EXPECT_TRUE(waits());
  const Connection connection(file_);
  Statement(connection, "PRAGMA journal_mode=WAL").step();
  EXPECT_TRUE(waits());
}

}  // namespace
}  // namespace gsm
