#pragma once

#include <filesystem>
#include <memory>

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

}  // namespace gsm
