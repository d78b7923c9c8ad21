#pragma once

#include <chrono>
#include <filesystem>
#include <memory>

#include "platform/database.h"
#include "platform/sqlite/file_name.h"

namespace gsm {

/// Databases in SQLite files.
class SqliteEngine : public DatabaseEngine {
 public:
  /// Where another program holds a file, each operation waits for it as long as `patience`.
  explicit SqliteEngine(std::chrono::milliseconds patience = std::chrono::seconds(1))
      : patience_(patience) {}

  std::shared_ptr<Database> OpenDatabase(const std::filesystem::path& file) override;

 private:
  const std::chrono::milliseconds patience_;
};

}  // namespace gsm
