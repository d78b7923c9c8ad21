// Phone books that are damaged, or made by somebody who means ill: each is a failure in good time,
// and nothing that stands in them is run.

#include "platform/sqlite/connection.h"
#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

constexpr std::size_t kPage = 512;

class HostileFile : public BookTest {
 protected:
  // Runs a statement without any of the bounds that the panel has.
  void prepareFile(const std::string& statement) const {
    sqlite3* handle = nullptr;
    sqlite3_open(file_.c_str(), &handle);
    const int result = sqlite3_exec(handle, statement.c_str(), nullptr, nullptr, nullptr);
    sqlite3_close(handle);
    ASSERT_EQ(result, SQLITE_OK) << statement;
  }
  void redefine(const std::string& definition) const {
    prepareFile("drop table data");
    prepareFile(definition);
  }
  Failed failureOfOpening() const {
    return failureOf([this] { open()->openRecordSet("DATA"); });
  }
  Failed failureOfSearching() const {
    return failureOf([this] { open()->openRecordSet("DATA")->FindFirst("Name='nobody'"); });
  }
  Failed failureOfWalking() const {
    return failureOf([this] {
      const auto set = open()->openRecordSet("DATA");
      for (; !set->isEof(); set->MoveNext()) set->field("Name");
    });
  }
};

TEST_F(HostileFile, AViewIsNoTable) {
  redefine("create view DATA as select '1' as \"Index\", '112' as Number, 'Anna' as Name");
  EXPECT_EQ(failureOfOpening().number, 3078);
  EXPECT_NE(failureOf([this] { open()->Execute("delete from data"); }).number, 0);
}

TEST_F(HostileFile, AnEndlessViewIsNoTable) {
  redefine(
      "create view DATA as with recursive n(x) as (select 1 union all select x+1 from n) "
      "select x as \"Index\", x as Number, x as Name from n");
  EXPECT_EQ(failureOfOpening().number, 3078);
}

TEST_F(HostileFile, ATableThatALibrarysModuleMakesUpIsNone) {
  redefine("create virtual table DATA using fts5(Name)");
  EXPECT_EQ(failureOfOpening().number, 3078);
}

TEST_F(HostileFile, TriggersAreNeverRun) {
  prepareFile("create trigger t after insert on data begin delete from details; end");
  prepareFile("create trigger u before delete on data begin select raise(abort, 'no'); end");
  prepareFile("insert into details values ('100', '1')");
  add({"Anna"});
  EXPECT_FALSE(book_->openRecordSet("Details")->isEof());
  const auto set = entries();
  set->Delete();
  EXPECT_EQ(stored(), std::vector<std::string>{});
}

TEST_F(HostileFile, AStatementCannotSpoilTheFile) {
  add({"Anna"});
  failureOf([this] { book_->Execute("pragma writable_schema=on"); });
  EXPECT_NE(failureOf([this] { book_->Execute("delete from sqlite_master"); }).number, 0);
  EXPECT_EQ(stored(), std::vector<std::string>{"Anna"});
}

TEST_F(HostileFile, AStatementWithoutEndIsAFailure) {
  const Failed failed = failureOf([this] {
    book_->Execute(
        "with recursive n(x) as (select 1 union all select x+1 from n) "
        "select count(*) from n");
  });
  EXPECT_EQ(failed.number, 3343);
  EXPECT_EQ(failed.description, "Unrecognized database format: it leads in circles");
  add({"Anna"});
  EXPECT_EQ(stored(), std::vector<std::string>{"Anna"});
}

TEST_F(HostileFile, ATextBeyondAllMeasureIsAFailureWhereItIsRead) {
  add({"Anna"});
  prepareFile("insert into data values ('2', '112', hex(zeroblob(1000000)))");
  const auto set = entries();
  EXPECT_EQ(set->field("Name"), "Anna");
  set->MoveNext();
  const Failed failed = failureOf([&] { set->field("Name"); });
  EXPECT_EQ(failed.number, 3146);
  EXPECT_EQ(failed.description, "Database failure: string or blob too big");
  EXPECT_EQ(failureOfSearching().number, 3146);
}

TEST_F(HostileFile, ATextBeyondAllMeasureIsNotStored) {
  const auto set = entries();
  set->AddNew();
  set->setField("Name", std::string(2'000'000, 'x'));
  EXPECT_EQ(failureOf([&] { set->Update(); }).number, 3146);
  EXPECT_EQ(stored(), std::vector<std::string>{});
}

TEST_F(HostileFile, TextsWithoutEndAreAFailure) {
  prepareFile(
      "with recursive n(x) as (select 1 union all select x+1 from n where x<70) "
      "insert into data select x, '112', hex(zeroblob(500000)) from n");
  const Failed searching = failureOfSearching();
  EXPECT_EQ(searching.number, 3343);
  EXPECT_EQ(searching.description, "Unrecognized database format: its texts have no end");
  EXPECT_EQ(failureOfWalking().description, searching.description);
}

TEST_F(HostileFile, MoreRowsThanAnyCardHasAreAFailure) {
  prepareFile(
      "with recursive n(x) as (select 1 union all select x+1 from n where x<100000) "
      "insert into data select x, '112', 'x' from n");
  EXPECT_EQ(failureOfOpening().number, 0);
  prepareFile("insert into data values ('100001', '112', 'x')");
  const Failed failed = failureOfOpening();
  EXPECT_EQ(failed.number, 3343);
  EXPECT_EQ(failed.description, "Unrecognized database format: it has too many rows");
}

// The pages of a table's tree, of which the upper ones say where the lower ones are.
class HostileTree : public HostileFile {
 protected:
  HostileTree() {
    book_.reset();
    std::filesystem::remove(file_);
    prepareFile(
        "pragma page_size=512; create table DATA (\"Index\" text, Number text, Name text);"
        "with recursive n(x) as (select 1 union all select x+1 from n where x<200) "
        "insert into data select x, '112', 'NAME ' || x from n");
    bytes_ = folder_.read("phonebook.mdb").value();
    root_ = kPage;  // the second page, since the file has one table
  }
  std::size_t childCount() const { return byteAt(root_ + 3) * 256 + byteAt(root_ + 4); }
  std::string child(std::size_t number) const { return bytes_.substr(cell(number), 4); }
  void setChild(std::size_t number, const std::string& page) {
    bytes_.replace(cell(number), 4, page);
  }
  // The file's own count of its changes, by which an open connection sees one.
  void countChange() { ++bytes_[27]; }
  void lay() const { folder_.write("phonebook.mdb", bytes_); }

  void expectFailures() const {
    lay();
    for (const Failed& failed : {failureOfOpening(), failureOfSearching(), failureOfWalking()}) {
      EXPECT_EQ(failed.number, 3343) << failed.description;
    }
  }

 private:
  std::size_t byteAt(std::size_t place) const { return static_cast<unsigned char>(bytes_[place]); }
  std::size_t cell(std::size_t number) const {
    const std::size_t pointer = root_ + 12 + 2 * number;
    return root_ + byteAt(pointer) * 256 + byteAt(pointer + 1);
  }

  std::string bytes_;
  std::size_t root_ = 0;
};

TEST_F(HostileTree, IsSoundBeforeItIsSpoilt) {
  lay();
  ASSERT_GT(childCount(), 3U);
  EXPECT_EQ(failureOfSearching().description, "");
  EXPECT_EQ(failureOfWalking().description, "");
}

TEST_F(HostileTree, ThatLeadsToTheSameRowsAgainIsAFailure) {
  for (std::size_t each = 1; each < childCount(); ++each) setChild(each, child(0));
  expectFailures();
}

TEST_F(HostileTree, ThatLeadsToItselfIsAFailure) {
  for (std::size_t each = 0; each < childCount(); ++each) {
    setChild(each, std::string("\0\0\0\2", 4));
  }
  expectFailures();
}

// Keys that only seem to rise: each is looked at on the way, too.
TEST_F(HostileTree, ThatTurnsBackUnderAnOpenSetIsAFailure) {
  lay();
  const auto set = open()->openRecordSet("DATA");
  setChild(childCount() - 1, child(0));
  countChange();
  lay();
  EXPECT_EQ(failureOf([&] { set->FindFirst("Name='nobody'"); }).number, 3343);
}

TEST_F(HostileFile, ColumnsMayHaveTheNamesOfTheKey) {
  redefine("create table DATA (rowid text, \"_ROWID_\" text, Name text)");
  const auto set = entries();
  for (const char* name : {"Anna", "Bert"}) {
    set->AddNew();
    set->setField("rowid", "seven");
    set->setField("_rowid_", "eight");
    set->setField("Name", name);
    set->Update();
  }
  set->FindFirst("Name='Bert'");
  ASSERT_FALSE(set->NoMatch());
  EXPECT_EQ(set->field("ROWID"), "seven");
  EXPECT_EQ(set->field("_rowid_"), "eight");
  set->Edit();
  set->setField("rowid", "nine");
  set->Update();
  set->FindFirst("rowid='nine'");
  EXPECT_EQ(set->field("Name"), "Bert");
  set->Delete();
  EXPECT_EQ(stored(), std::vector<std::string>{"Anna"});
}

TEST_F(HostileFile, ATableThatHidesItsKeyIsNone) {
  redefine("create table DATA (rowid text, _rowid_ text, oid text, Name text)");
  EXPECT_EQ(failureOfOpening().number, 3078);
}

}  // namespace
}  // namespace gsm
