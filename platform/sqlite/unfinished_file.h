#pragma once

#include <filesystem>

namespace gsm {

/// A database that is being made, in a folder of its own beside the place that it will have: it
/// comes there whole or not at all. The folder goes with the object and with all that is left in
/// it; what a program leaves that is killed goes with the next one.
class UnfinishedFile {
 public:
  /// A failure that says why when nothing can be made beside `file`.
  explicit UnfinishedFile(const std::filesystem::path& file);
  ~UnfinishedFile();
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;

  /// Where it is being made. There is no such file at first.
  std::filesystem::path path() const;

  /// Puts it into its place, for good when it returns. A failure when somebody has put another file
  /// there meanwhile, which stays.
  void finish();

  /// Removes what killed programs have left beside `file`.
  static void removeLeftovers(const std::filesystem::path& file);

 private:
  const std::filesystem::path file_;
  std::filesystem::path folder_;
  int lock_ = -1;  // says to others that its program lives
};

}  // namespace gsm
