#pragma once

#include <filesystem>
#include <string_view>

#include "platform/runtime_failure.h"

namespace gsm {

/// A file that is written anew and takes the old one's place as a whole: a full disk, a crash or a
/// pulled plug leaves the old one.
///
/// What is no plain file, or lies in a folder that this user may not write to, is written in place.
/// Every failure is a `RuntimeFailure`.
class ReplacedFile {
 public:
  /// Begins to write `file` anew; `mark` keeps two that are written at once apart. `fileNotFound`
  /// when its folder isn't there, `permissionDenied` when it may not be written, `fileAccessError`
  /// for a folder, `diskFull` with the file's name.
  explicit ReplacedFile(const std::filesystem::path& file, int mark = 0);
  /// Leaves the old file as it is, unless the new one was kept.
  ~ReplacedFile();
  ReplacedFile(const ReplacedFile&) = delete;
  ReplacedFile& operator=(const ReplacedFile&) = delete;

  /// Adds `bytes`, which are on the disk afterwards. `diskFull` with the file's name when they
  /// can't be kept; the new file is given up then.
  void write(std::string_view bytes);

  /// Puts the new file in the old one's place; one that was given up is forgotten. Nothing may be
  /// written afterwards.
  void keep();

 private:
  void openInPlace();
  void giveUp();

  std::filesystem::path file_;
  std::filesystem::path aside_;  // empty when the file is written in place
  int descriptor_ = -1;          // -1 when there is nothing more to do
};

/// Why `file` can't be opened, by the system's number of the reason.
RuntimeFailure openingFailure(const std::filesystem::path& file, int error);

}  // namespace gsm
