#pragma once

#include <new>
#include <string>

#include "platform/runtime_failure.h"

namespace gsm {

/// What goes wrong with a database, by the run-time's number for it.
enum class DatabaseFault {
  outOfMemory = 7,
  noEdit = 3020,
  noCurrentRecord = 3021,
  noFile = 3024,
  readOnly = 3027,
  diskFull = 3049,
  cannotOpen = 3051,
  badExpression = 3077,
  noTable = 3078,
  noStatement = 3129,
  severalStatements = 3142,
  other = 3146,
  recordDeleted = 3167,
  fileIsThere = 3204,
  locked = 3218,
  noColumn = 3265,
  badFormat = 3343,
};

/// The failure in the run-time's own words, with `detail` where they leave room for one: a file, a
/// table, an expression, or what the library says.
RuntimeFailure databaseFailure(DatabaseFault fault, const std::string& detail = "");

/// The same failure in other words, for a user who can do something about it.
RuntimeFailure databaseFailureSaying(DatabaseFault fault, const std::string& description);

/// Whether the failure is the file's or the machine's, and not that of a handler which asks for
/// what there is not.
bool isOfTheFile(const RuntimeFailure& failure);

/// What `work` gives. Want of memory in it is a failure of the database like any other.
template <class Work>
auto withinMemory(Work&& work) {
  try {
    return work();
  } catch (const std::bad_alloc&) {
    throw databaseFailure(DatabaseFault::outOfMemory);
  }
}

}  // namespace gsm
