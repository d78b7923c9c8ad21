// The rows of the phone book's tables, asked for and replaced.

#include <set>

#include "platform/sqlite/phone_book_file.h"
#include "platform/sqlite/sqlite_engine.h"
#include "tests/driver/driver_fixture.h"

namespace gsm::driver {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNoRows = R"({"ok":true,"rows":[]})";

class PhoneBookRequests : public DriverTest {
 protected:
  Json storeRequest(const std::string& table, const Json& rows) const {
    return {
        {"op", "store"}, {"folder", folder().path().string()}, {"table", table}, {"rows", rows}};
  }
  // As a request has it: a list of objects.
  void store(const std::string& table, const std::string& rows) {
    tell(storeRequest(table, Json::parse(rows)));
  }
  // The whole answer.
  std::string rows(const std::string& table) {
    return answerTo(
        Json{{"op", "rows"}, {"folder", folder().path().string()}, {"table", table}}.dump());
  }
  fs::path book() const { return folder().path() / "phonebook.mdb"; }
  std::shared_ptr<Database> openBook() const { return SqliteEngine().OpenDatabase(book()); }
  std::set<std::string> files() const {
    std::set<std::string> names;
    for (const auto& each : fs::directory_iterator(folder().path())) {
      names.insert(each.path().filename());
    }
    return names;
  }
};

TEST_F(PhoneBookRequests, StoringBeforeTheStartMakesTheFileWithBothTables) {
  EXPECT_EQ(answerTo(storeRequest("DATA", Json::array()).dump()), R"({"ok":true})");
  EXPECT_EQ(files(), std::set<std::string>{"phonebook.mdb"});
  EXPECT_EQ(rows("DATA"), kNoRows);
  EXPECT_EQ(rows("Details"), kNoRows);
}

TEST_F(PhoneBookRequests, RowsComeAsTheyWereStored) {
  store("DATA", R"([{"Index":"2","Number":"456","Name":"BERT"},
                    {"Index":"1","Number":"123","Name":"ANNA"}])");
  store("Details", R"([{"TotalIndex":"250","UsedIndex":"2"}])");
  EXPECT_EQ(rows("DATA"), R"({"ok":true,"rows":[{"Index":"2","Number":"456","Name":"BERT"},)"
                          R"({"Index":"1","Number":"123","Name":"ANNA"}]})");
  EXPECT_EQ(rows("Details"), R"({"ok":true,"rows":[{"TotalIndex":"250","UsedIndex":"2"}]})");
}

TEST_F(PhoneBookRequests, StoringReplacesTheRowsOfItsTableAlone) {
  store("DATA", R"([{"Name":"ANNA"},{"Name":"BERT"}])");
  store("Details", R"([{"UsedIndex":"2"}])");
  store("DATA", R"([{"Name":"CORA"}])");
  EXPECT_EQ(rows("DATA"), R"({"ok":true,"rows":[{"Index":"","Number":"","Name":"CORA"}]})");
  EXPECT_EQ(rows("Details"), R"({"ok":true,"rows":[{"TotalIndex":"","UsedIndex":"2"}]})");
  store("DATA", "[]");
  EXPECT_EQ(rows("DATA"), kNoRows);
}

TEST_F(PhoneBookRequests, NamesOfTablesAndColumnsIgnoreCase) {
  store("dATA", R"([{"INDEX":"1","number":"123","nAme":"ANNA"}])");
  EXPECT_EQ(rows("data"), R"({"ok":true,"rows":[{"Index":"1","Number":"123","Name":"ANNA"}]})");
  EXPECT_EQ(rows("DETAILS"), kNoRows);
}

TEST_F(PhoneBookRequests, TextsComeBackByTheCodePage) {
  const Json stored = Json::array({Json{{"Index", "Ärger €ß"}, {"Number", ""}, {"Name", "жx"}},
                                   Json{{"Index", "O'Neil''"}, {"Number", "\"q\""}, {"Name", "%_"}},
                                   Json{{"Index", std::string("a\0b", 3)},
                                        {"Number", "1\r\n2"},
                                        {"Name", "'); delete from data; --"}}});
  tell(storeRequest("DATA", stored));
  Json expected = stored;
  expected[0]["Name"] = "?x";  // as everywhere: the code page has no such letter
  EXPECT_EQ(Json::parse(rows("DATA"))["rows"], expected);
}

TEST_F(PhoneBookRequests, TenThousandRowsKeepTheirOrder) {
  Json many = Json::array();
  for (int index = 1; index <= 10'000; ++index) {
    const std::string digits = std::to_string(index);
    many.push_back({{"Index", digits}, {"Number", "+49" + digits}, {"Name", "N" + digits}});
  }
  tell(storeRequest("DATA", many));
  EXPECT_EQ(Json::parse(rows("DATA"))["rows"], many);
}

TEST_F(PhoneBookRequests, AFileInAnotherCaseIsThePhoneBook) {
  store("DATA", R"([{"Name":"ANNA"}])");
  fs::rename(book(), folder().path() / "PhoneBook.MDB");
  EXPECT_EQ(rows("DATA"), R"({"ok":true,"rows":[{"Index":"","Number":"","Name":"ANNA"}]})");
  store("DATA", "[]");
  EXPECT_EQ(rows("DATA"), kNoRows);
  EXPECT_EQ(files(), std::set<std::string>{"PhoneBook.MDB"});
}

TEST_F(PhoneBookRequests, BeforeTheStartTheFolderMustBeGiven) {
  EXPECT_TRUE(isRefused(R"({"op":"store","table":"DATA","rows":[]})"));
  EXPECT_TRUE(isRefused(R"({"op":"rows","table":"DATA"})"));
  EXPECT_TRUE(isRefused(R"({"op":"store","folder":3,"table":"DATA","rows":[]})"));
  EXPECT_TRUE(isRefused(R"({"op":"store","folder":"/nowhere/at/all","table":"DATA","rows":[]})"));
}

TEST_F(PhoneBookRequests, AskingMakesNoFile) {
  EXPECT_EQ(Json::parse(rows("DATA")).count("error"), 1u);
  EXPECT_EQ(files(), std::set<std::string>{});
}

TEST_F(PhoneBookRequests, AfterTheStartTheFolderIsTheProgramsOwn) {
  store("DATA", R"([{"Name":"ANNA"}])");
  start();
  EXPECT_EQ(answerTo(R"({"op":"rows","table":"DATA"})"),
            R"({"ok":true,"rows":[{"Index":"","Number":"","Name":"ANNA"}]})");
  tell({{"op", "store"}, {"table", "DATA"}, {"rows", Json::array()}});
  EXPECT_EQ(answerTo(R"({"op":"rows","table":"DATA"})"), kNoRows);
}

TEST_F(PhoneBookRequests, AfterTheStartNoFileIsMade) {
  start();
  const std::string failure = R"({"error":"Could not find file ')" + book().string() + R"('."})";
  EXPECT_EQ(answerTo(R"({"op":"store","table":"DATA","rows":[]})"), failure);
  EXPECT_EQ(answerTo(R"({"op":"rows","table":"DATA"})"), failure);
  EXPECT_EQ(files(), std::set<std::string>{});
}

TEST_F(PhoneBookRequests, WhatCannotBeUnderstoodChangesNothing) {
  store("DATA", R"([{"Name":"ANNA"}])");
  start();
  for (const char* line : {
           R"({"op":"store","table":"DATA"})",
           R"({"op":"store","rows":[]})",
           R"({"op":"store","table":"SMS","rows":[]})",
           R"({"op":"store","table":"DATA; drop table DATA","rows":[]})",
           R"({"op":"store","table":"","rows":[]})",
           R"({"op":"store","table":1,"rows":[]})",
           R"({"op":"store","table":"DATA","rows":{}})",
           R"({"op":"store","table":"DATA","rows":null})",
           R"({"op":"store","table":"DATA","rows":["ANNA"]})",
           R"({"op":"store","table":"DATA","rows":[{"Name":"BERT"},{"Phone":"1"}]})",
           R"({"op":"store","table":"DATA","rows":[{"TotalIndex":"1"}]})",
           R"({"op":"store","table":"DATA","rows":[{"rowid":"1"}]})",
           R"({"op":"store","table":"DATA","rows":[{"":"1"}]})",
           R"({"op":"store","table":"DATA","rows":[{"Name":"BERT"},{"Name":1}]})",
           R"({"op":"store","table":"DATA","rows":[{"Name":null}]})",
           R"({"op":"store","table":"DATA","rows":[{"Name":["BERT"]}]})",
           R"({"op":"rows"})",
           R"({"op":"rows","table":"SMS"})",
           R"({"op":"rows","table":["DATA"]})",
       }) {
    EXPECT_TRUE(isRefused(line));
    EXPECT_EQ(rows("DATA"), R"({"ok":true,"rows":[{"Index":"","Number":"","Name":"ANNA"}]})")
        << line;
  }
}

TEST_F(PhoneBookRequests, ARefusedStoreBeforeTheStartMakesNoFile) {
  EXPECT_TRUE(isRefused(storeRequest("SMS", Json::array()).dump()));
  EXPECT_TRUE(isRefused(storeRequest("DATA", Json::array({Json{{"Phone", "1"}}})).dump()));
  EXPECT_EQ(files(), std::set<std::string>{});
}

TEST_F(PhoneBookRequests, AFileThatIsNoPhoneBookIsRefusedAndLeftAlone) {
  folder().write("phonebook.mdb", "no database, but somebody's text");
  const std::string refusal = R"({"error":"Unrecognized database format: file is not a database"})";
  EXPECT_EQ(answerTo(storeRequest("DATA", Json::array()).dump()), refusal);
  EXPECT_EQ(rows("DATA"), refusal);
  EXPECT_EQ(folder().read("phonebook.mdb"), "no database, but somebody's text");
  folder().write("phonebook.mdb", "");
  EXPECT_EQ(rows("Details"), R"({"error":"Could not find the input table or query 'Details'."})");
}

TEST_F(PhoneBookRequests, ALockedFileIsRefusedUntilItIsFree) {
  store("DATA", R"([{"Name":"ANNA"}])");
  start();
  const auto other = openBook();
  other->Execute("begin exclusive");
  const std::string refusal =
      R"({"error":"Couldn't update; currently locked: database is locked"})";
  EXPECT_EQ(answerTo(storeRequest("DATA", Json::array()).dump()), refusal);
  EXPECT_EQ(rows("DATA"), refusal);
  other->Execute("commit");
  store("DATA", R"([{"Name":"BERT"}])");
  EXPECT_EQ(rows("DATA"), R"({"ok":true,"rows":[{"Index":"","Number":"","Name":"BERT"}]})");
}

TEST_F(PhoneBookRequests, ARowThatTheFileDoesNotTakeLeavesTheRowsThatWereThere) {
  folder().write("phonebook.mdb", "");
  openBook()->Execute(
      R"(create table DATA ("Index" TEXT, Number TEXT, Name TEXT check (Name <> 'BAD')))");
  store("DATA", R"([{"Name":"ANNA"}])");
  EXPECT_TRUE(
      isRefused(storeRequest("DATA", Json::parse(R"([{"Name":"BERT"},{"Name":"BAD"}])")).dump()));
  EXPECT_EQ(rows("DATA"), R"({"ok":true,"rows":[{"Index":"","Number":"","Name":"ANNA"}]})");
  EXPECT_EQ(files(), std::set<std::string>{"phonebook.mdb"});
}

}  // namespace
}  // namespace gsm::driver
