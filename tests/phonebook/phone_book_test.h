#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "phonebook/form5.h"
#include "platform/sqlite/phone_book_file.h"
#include "platform/sqlite/sqlite_engine.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/routing_test.h"

namespace gsm {

using Texts = std::vector<std::string>;

/// A row of a phone book's table, by its columns: `Index`, `Number`, `Name`; or `TotalIndex`,
/// `UsedIndex`.
using BookRow = std::vector<std::string>;
using BookRows = std::vector<BookRow>;

/// A panel with an empty phone book in its folder and a scripted modem on its open port.
class PhoneBookTest : public RoutingTest {
 protected:
  void SetUp() override {
    createPhoneBook(bookFile());
    RoutingTest::SetUp();
  }

  std::filesystem::path bookFile() const { return folder() / "phonebook.mdb"; }
  void removeBook() { std::filesystem::remove(bookFile()); }

  void lay(const std::string& table, const BookRows& rows) {
    const auto set = SqliteEngine().OpenDatabase(bookFile())->openRecordSet(table);
    for (const BookRow& row : rows) {
      set->AddNew();
      for (std::size_t i = 0; i < row.size(); ++i) set->setField(columns(table)[i], row[i]);
      set->Update();
    }
  }
  void layEntries(const BookRows& rows) { lay("DATA", rows); }
  void layCounts(const std::string& total, const std::string& used) {
    lay("Details", {{total, used}});
  }

  BookRows stored(const std::string& table) {
    const auto set = SqliteEngine().OpenDatabase(bookFile())->openRecordSet(table);
    BookRows rows;
    for (; !set->isEof(); set->MoveNext()) {
      BookRow row;
      for (const std::string& column : columns(table)) row.push_back(set->field(column));
      rows.push_back(row);
    }
    return rows;
  }
  BookRows storedEntries() { return stored("DATA"); }
  BookRows storedCounts() { return stored("Details"); }

  /// Shows the call window, and lets its loading end.
  void openCalls() {
    inPanel([this] { calls().Show(); });
    settle();
    sent();
  }

  /// The user picks a row of the book's list.
  void select(int row) {
    inPanel([this, row] { calls().List1.userSelect(row); });
    run(0);
  }

  Form3& calls() { return panel().form3; }
  Form5& prompt() { return panel().form5; }
  Texts rows() { return calls().List1.List.peek(); }
  std::string callStatus() { return calls().Label3.Caption.peek(); }
  std::string dialBox() { return calls().Text1.Text.peek(); }
  std::string used() { return calls().Text2.Text.peek(); }
  std::string total() { return calls().Text4.Text.peek(); }
  bool promptUp() { return prompt().Visible.peek(); }
  std::string caller() { return prompt().Label1.Caption.peek(); }
  bool polls() { return form1().Timer2.Enabled.peek(); }

 private:
  static BookRow columns(const std::string& table) {
    return table == "DATA" ? BookRow{"Index", "Number", "Name"}
                           : BookRow{"TotalIndex", "UsedIndex"};
  }
};

}  // namespace gsm
