#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/sqlite/sqlite_engine.h"
#include "tests/support/temporary_folder.h"

namespace gsm {

/// What an action failed with; no number when it didn't.
struct Failed {
  int number = 0;
  std::string description;
};

Failed failureOf(const std::function<void()>& action);

/// Whether `check` holds in a process of its own.
bool holdsInChild(const std::function<bool()>& check);

/// For engines that don't wait for a file that is held.
constexpr std::chrono::milliseconds kAtOnce{0};

/// An empty phone book in a folder of the test's own, opened.
class BookTest : public ::testing::Test {
 protected:
  BookTest();

  /// Another connection to the file.
  std::shared_ptr<Database> open() const { return SqliteEngine().OpenDatabase(file_); }
  std::unique_ptr<RecordSet> entries() const { return book_->openRecordSet("DATA"); }

  /// Stores entries with these names, and indices from 1 on.
  void add(const std::vector<std::string>& names) const;
  /// The names in a set from where it stands to its end.
  static std::vector<std::string> rest(RecordSet& set);
  /// The names in the file, as a connection of its own sees them.
  std::vector<std::string> stored() const;

  TemporaryFolder folder_;
  const std::filesystem::path file_ = folder_.path() / "phonebook.mdb";
  std::shared_ptr<Database> book_;
};

}  // namespace gsm
