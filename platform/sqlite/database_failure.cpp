#include "platform/sqlite/database_failure.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace gsm {
namespace {

struct Row {
  DatabaseFault fault;
  std::string_view words;  // with the detail in the place of the percent sign
  bool isOfTheFile;
};

constexpr std::array kRows = {
    Row{.fault = DatabaseFault::outOfMemory, .words = "Out of memory", .isOfTheFile = true},
    Row{.fault = DatabaseFault::noEdit,
        .words = "Update or CancelUpdate without AddNew or Edit.",
        .isOfTheFile = false},
    Row{.fault = DatabaseFault::noCurrentRecord,
        .words = "No current record.",
        .isOfTheFile = false},
    Row{.fault = DatabaseFault::noFile, .words = "Could not find file '%'.", .isOfTheFile = true},
    Row{.fault = DatabaseFault::readOnly,
        .words = "Can't update. Database or object is read-only.",
        .isOfTheFile = true},
    Row{.fault = DatabaseFault::diskFull, .words = "Disk full: %", .isOfTheFile = true},
    Row{.fault = DatabaseFault::cannotOpen,
        .words = "Couldn't open the database: %",
        .isOfTheFile = true},
    Row{.fault = DatabaseFault::badExpression,
        .words = "Syntax error in expression: %",
        .isOfTheFile = false},
    Row{.fault = DatabaseFault::noTable,
        .words = "Could not find the input table or query '%'.",
        .isOfTheFile = true},
    Row{.fault = DatabaseFault::noStatement,
        .words = "Invalid SQL statement",
        .isOfTheFile = false},
    Row{.fault = DatabaseFault::severalStatements,
        .words = "Characters found after end of SQL statement.",
        .isOfTheFile = false},
    Row{.fault = DatabaseFault::other, .words = "Database failure: %", .isOfTheFile = true},
    Row{.fault = DatabaseFault::recordDeleted, .words = "Record is deleted.", .isOfTheFile = false},
    Row{.fault = DatabaseFault::fileIsThere,
        .words = "There is a file '%' already.",
        .isOfTheFile = true},
    Row{.fault = DatabaseFault::locked,
        .words = "Couldn't update; currently locked: %",
        .isOfTheFile = true},
    Row{.fault = DatabaseFault::noColumn,
        .words = "Item not found in this collection.",
        .isOfTheFile = true},
    Row{.fault = DatabaseFault::badFormat,
        .words = "Unrecognized database format: %",
        .isOfTheFile = true}};

const Row* rowOf(int number) {
  const auto* const row = std::find_if(kRows.begin(), kRows.end(), [number](const Row& each) {
    return static_cast<int>(each.fault) == number;
  });
  return row == kRows.end() ? nullptr : row;
}

}  // namespace

RuntimeFailure databaseFailure(DatabaseFault fault, const std::string& detail) {
  const Row* const row = rowOf(static_cast<int>(fault));
  std::string words(row->words);
  const auto place = words.find('%');
  if (place != std::string::npos) words.replace(place, 1, detail);
  return databaseFailureSaying(fault, words);
}

RuntimeFailure databaseFailureSaying(DatabaseFault fault, const std::string& description) {
  return {static_cast<int>(fault), description};
}

bool isOfTheFile(const RuntimeFailure& failure) {
  const Row* const row = rowOf(failure.number());
  return row == nullptr || row->isOfTheFile;
}

}  // namespace gsm
