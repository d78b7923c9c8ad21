#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "platform/database.h"

namespace gsm {

/// The file of that name as it is really spelled: the last part of a name ignores case. `file`
/// itself when there is none.
std::filesystem::path ignoringCase(const std::filesystem::path& file);

/// Databases in SQLite files.
class SqliteEngine : public DatabaseEngine {
 public:
  std::shared_ptr<Database> OpenDatabase(const std::filesystem::path& file) override;
};

/// An engine that tells of the first file that can't be opened, once in its life, and goes on
/// failing as before. Handlers end silently on such a failure, and somebody should learn of it.
class TellingEngine : public DatabaseEngine {
 public:
  /// `tell` is given what to show: the file's full name, what is wrong and what to do.
  TellingEngine(DatabaseEngine& engine, std::function<void(const std::string&)> tell)
      : engine_(engine), tell_(std::move(tell)) {}

  std::shared_ptr<Database> OpenDatabase(const std::filesystem::path& file) override;

 private:
  DatabaseEngine& engine_;
  std::function<void(const std::string&)> tell_;
  bool told_ = false;
};

}  // namespace gsm
