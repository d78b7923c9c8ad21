#include "tests/support/phone_book_test.h"

#include "phonebook/form3.h"
#include "phonebook/form5.h"
#include "platform/sqlite/phone_book_file.h"
#include "platform/sqlite/sqlite_engine.h"

namespace gsm {
namespace {

BookRow columns(const std::string& table) {
  return table == "DATA" ? BookRow{"Index", "Number", "Name"} : BookRow{"TotalIndex", "UsedIndex"};
}

}  // namespace

void PhoneBookTest::SetUp() {
  createPhoneBook(bookFile());
  RoutingTest::SetUp();
}

std::filesystem::path PhoneBookTest::bookFile() const { return folder() / "phonebook.mdb"; }

void PhoneBookTest::removeBook() { std::filesystem::remove(bookFile()); }

void PhoneBookTest::lay(const std::string& table, const BookRows& rows) {
  const auto set = SqliteEngine().OpenDatabase(bookFile())->openRecordSet(table);
  for (const BookRow& row : rows) {
    set->AddNew();
    for (std::size_t i = 0; i < row.size(); ++i) set->setField(columns(table)[i], row[i]);
    set->Update();
  }
}

void PhoneBookTest::layEntries(const BookRows& rows) { lay("DATA", rows); }

void PhoneBookTest::layCounts(const std::string& total, const std::string& used) {
  lay("Details", {{total, used}});
}

BookRows PhoneBookTest::stored(const std::string& table) {
  const auto set = SqliteEngine().OpenDatabase(bookFile())->openRecordSet(table);
  BookRows rows;
  for (; !set->isEof(); set->MoveNext()) {
    BookRow row;
    for (const std::string& column : columns(table)) row.push_back(set->field(column));
    rows.push_back(row);
  }
  return rows;
}

BookRows PhoneBookTest::storedEntries() { return stored("DATA"); }

BookRows PhoneBookTest::storedCounts() { return stored("Details"); }

void PhoneBookTest::openCalls() {
  inPanel([this] { calls().Show(); });
  settle();
  sent();
}

void PhoneBookTest::select(int row) {
  inPanel([this, row] { calls().List1.userSelect(row); });
  run(0);
}

Form3& PhoneBookTest::calls() { return panel().form3; }
Form5& PhoneBookTest::prompt() { return panel().form5; }
Texts PhoneBookTest::rows() { return calls().List1.List.peek(); }
std::string PhoneBookTest::callStatus() { return calls().Label3.Caption.peek(); }
std::string PhoneBookTest::dialBox() { return calls().Text1.Text.peek(); }
std::string PhoneBookTest::used() { return calls().Text2.Text.peek(); }
std::string PhoneBookTest::total() { return calls().Text4.Text.peek(); }
bool PhoneBookTest::promptUp() { return prompt().Visible.peek(); }
std::string PhoneBookTest::caller() { return prompt().Label1.Caption.peek(); }
bool PhoneBookTest::polls() { return form1().Timer2.Enabled.peek(); }

}  // namespace gsm
