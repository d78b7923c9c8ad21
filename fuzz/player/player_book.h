#pragma once

#include <filesystem>
#include <string>

#include "fuzz/player/decisions.h"

namespace gsm {

/// The phone book in the folder of a program that is played with.
class PlayerBook {
 public:
  /// `folder` is the program's own.
  explicit PlayerBook(const std::filesystem::path& folder) : file_(folder / "phonebook.mdb") {}

  /// Lays one there for the next program: empty, filled, broken, none; or leaves the last one's.
  void lay(Decisions& decisions);

  /// Adds and removes rows as another program would.
  void change(Decisions& decisions);

  /// What is wrong with a book that was sound when it was laid: it can't be read any more, or has
  /// half an entry in it. Empty while all is well.
  std::string problem();

 private:
  void write(const std::string& bytes) const;

  const std::filesystem::path file_;
  bool isSound_ = false;
  std::string lookedAt_;  // the head of the file that was last found to be well
};

}  // namespace gsm
