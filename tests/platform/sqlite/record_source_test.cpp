#include "platform/sqlite/record_source.h"

#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

using Names = std::vector<std::string>;

struct GoodRow {
  const char* name;
  const char* query;
  const char* table;
  Names columns;
};

class GoodSelection : public ::testing::TestWithParam<GoodRow> {};

INSTANTIATE_TEST_SUITE_P(
    Forms, GoodSelection,
    ::testing::Values(
        GoodRow{.name = "OneColumn",
                .query = "select name from data",
                .table = "data",
                .columns = {"name"}},
        GoodRow{
            .name = "AllColumns", .query = "select * from data", .table = "data", .columns = {}},
        GoodRow{.name = "SeveralColumns",
                .query = "select Name,Number , Index from DATA",
                .table = "DATA",
                .columns = {"Name", "Number", "Index"}},
        GoodRow{.name = "Capitals", .query = "SELECT * FROM Data", .table = "Data", .columns = {}},
        GoodRow{.name = "BlanksAnywhere",
                .query = " \tselect   name  from\tdata  ",
                .table = "data",
                .columns = {"name"}},
        GoodRow{.name = "NoBlanksAroundTheAsterisk",
                .query = "select*from data",
                .table = "data",
                .columns = {}},
        GoodRow{.name = "WordsAsColumns",
                .query = "select select from from",
                .table = "from",
                .columns = {"select"}}),
    [](const auto& tested) { return tested.param.name; });

TEST_P(GoodSelection, IsRead) {
  const auto read = parseSelection(GetParam().query);
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->table, GetParam().table);
  EXPECT_EQ(read->columns, GetParam().columns);
}

TEST(BadSelection, IsRefused) {
  for (const char* query : {"",
                            "data",
                            "select",
                            "select name",
                            "select from data",
                            "select name from",
                            "name from data",
                            "selectname from data",
                            "select name fromdata",
                            "select name, from data",
                            "select ,name from data",
                            "select name number from data",
                            "select *, name from data",
                            "select name from data, details",
                            "select name from data where name='x'",
                            "select name from data;",
                            "select name from data order by name",
                            "select name as n from data",
                            "select count(*) from data",
                            "select 'x' from data",
                            "select \"name\" from data",
                            "select [name] from data",
                            "select name from data --",
                            "select name from (select 1)",
                            "delete from data",
                            "select\nname from data",
                            "select data.name from data"}) {
    EXPECT_FALSE(parseSelection(query).has_value()) << query;
  }
}

class SelectedRows : public BookTest {
 protected:
  SelectedRows() { add({"Anna", "Bert"}); }
  std::unique_ptr<RecordSet> select(const std::string& query) const {
    return book_->openRecordSet(query);
  }
};

TEST_F(SelectedRows, AreAllRowsInTheirOrder) {
  for (const char* query :
       {"select name from data", "select * from data", "SELECT Index, NAME FROM Data"}) {
    EXPECT_EQ(rest(*select(query)), (Names{"Anna", "Bert"})) << query;
  }
}

TEST_F(SelectedRows, HaveTheColumnsThatTheQueryNamesAndNoOther) {
  const auto set = select("select name from data");
  EXPECT_EQ(set->field("NAME"), "Anna");
  EXPECT_EQ(failureOf([&] { set->field("Index"); }).number, 3265);
  EXPECT_EQ(failureOf([&] { set->FindFirst("index='1'"); }).number, 3265);
  set->Edit();
  EXPECT_EQ(failureOf([&] { set->setField("Index", "7"); }).number, 3265);
  EXPECT_EQ(select("select * from data")->field("Index"), "1");
  EXPECT_EQ(select("select number, index from data")->field("index"), "1");
}

TEST_F(SelectedRows, AreFoundByWhatTheQueryNames) {
  const auto set = select("select * from data");
  set->FindFirst("name = 'BERT ' ");
  ASSERT_FALSE(set->NoMatch());
  EXPECT_EQ(set->field("index"), "2");
}

TEST_F(SelectedRows, AreLiveAndCanBeChanged) {
  const auto set = select("select name from data");
  EXPECT_EQ(set->field("name"), "Anna");
  book_->Execute("update data set name='Cora' where name='Anna'");
  EXPECT_EQ(set->field("name"), "Cora");
  set->Edit();
  set->setField("name", "Dora");
  set->Update();
  EXPECT_EQ(entries()->field("Index"), "1");
  EXPECT_EQ(stored(), (Names{"Dora", "Bert"}));
  set->Delete();
  EXPECT_EQ(stored(), Names{"Bert"});
}

TEST_F(SelectedRows, AreThoseThatThereWereWhenTheSetWasOpened) {
  const auto set = select("select name from data");
  add({"Cora"});
  EXPECT_EQ(rest(*set), (Names{"Anna", "Bert"}));
  EXPECT_EQ(rest(*select("select name from data")), (Names{"Anna", "Bert", "Cora"}));
}

TEST_F(SelectedRows, OfWhatIsNotThereAreAFailure) {
  const Failed table = failureOf([this] { select("select name from sms"); });
  EXPECT_EQ(table.number, 3078);
  EXPECT_EQ(table.description, "Could not find the input table or query 'select name from sms'.");
  EXPECT_EQ(failureOf([this] { select("select phone from data"); }).number, 3265);
}

TEST_F(SelectedRows, OfAnotherFormAreNeverRun) {
  for (const char* query :
       {"select name from data where 1=1", "select name from data; delete from data",
        "delete from data", "select 1", "select load_extension('x') from data"}) {
    EXPECT_EQ(failureOf([&] { select(query); }).number, 3078) << query;
  }
  EXPECT_EQ(stored(), (Names{"Anna", "Bert"}));
}

TEST_F(SelectedRows, ATableOfThatNameComesFirst) {
  book_->Execute("create table \"select name from data\" (Name text)");
  EXPECT_TRUE(select("select name from data")->isEof());
}

}  // namespace
}  // namespace gsm
