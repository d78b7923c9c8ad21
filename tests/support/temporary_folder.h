#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace gsm {

/// A folder of a test's own, removed with all that is in it. It is kept in memory where the machine
/// has a place for that, since databases wait for the disk at every change; TMPDIR chooses another.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

  void write(const std::string& name, const std::string& bytes) const;
  /// The file's bytes; nothing when there is none.
  std::optional<std::string> read(const std::string& name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace gsm
