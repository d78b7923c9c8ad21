#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>

#include "platform/replaced_file.h"

namespace gsm {

/// Text files, reached through small numbers as the handlers use them. Names are relative to the
/// program's own folder, which is the current one for the whole run.
///
/// Lines end in CR LF, CR or LF when read, in CR LF when written. Every failure is a
/// `RuntimeFailure`.
class Files {
 public:
  /// `programFolder` is the folder of the program's own files.
  explicit Files(std::filesystem::path programFolder);

  /// The full name of `name` in the program's folder.
  std::filesystem::path path(const std::string& name) const;

  /// The lowest number that is not in use, from 1.
  int freeFile() const;

  /// Opens for reading. `fileAlreadyOpen` when the number is in use, `fileNotFound`,
  /// `permissionDenied`, `fileAccessError` for what is no readable file.
  void openForInput(int number, const std::string& name);

  /// Opens for writing, empty; makes the file where there is none. What was there before stays
  /// until the closing, which puts the new file in its place. Fails like `openForInput`.
  void openForOutput(int number, const std::string& name);

  /// Whether nothing is left to read. `badFileNumber` when the number isn't open for reading.
  bool atEnd(int number);

  /// The next line without its end. `inputPastEnd` when there is none, `badFileNumber` as above.
  std::string readLine(int number);

  /// Writes `text` and a line end. `badFileNumber` when the number isn't open for writing,
  /// `diskFull`, with the file's name, when the text can't be kept: then the old file stays.
  void printLine(int number, const std::string& text);

  /// Closes the file of that number; nothing when there is none. One that was written takes the old
  /// one's place, and fails as `openForOutput` does when it can't.
  void close(int number);

  /// Closes all files. All are closed afterwards, also when one can't be put in its place.
  void closeAll();

 private:
  struct OpenFile {
    std::ifstream input;
    std::unique_ptr<ReplacedFile> output;  // null: open for reading
  };

  OpenFile& opened(int number, bool forInput);
  // The full name of `name`, which is going to be opened under `number`.
  std::filesystem::path nameFor(int number, const std::string& name) const;

  std::filesystem::path programFolder_;
  std::map<int, OpenFile> files_;
};

}  // namespace gsm
