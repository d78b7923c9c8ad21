#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "panel/form1.h"
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
  void SetUp() override;

  std::filesystem::path bookFile() const;
  void removeBook();

  void layEntries(const BookRows& rows);
  void layCounts(const std::string& total, const std::string& used);

  BookRows storedEntries();
  BookRows storedCounts();

  /// Shows the call window, and lets its loading end.
  void openCalls();

  /// The user picks a row of the book's list.
  void select(int row);

  Form3& calls();
  Form5& prompt();
  Texts rows();
  std::string callStatus();
  std::string dialBox();
  std::string used();
  std::string total();
  bool promptUp();
  std::string caller();
  bool polls();

 private:
  void lay(const std::string& table, const BookRows& rows);
  BookRows stored(const std::string& table);
};

}  // namespace gsm
