#include "platform/files.h"

#include <cerrno>
#include <utility>

#include "platform/runtime_failure.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

// Why a file that can't be opened can't be.
RuntimeFailure openingFailure(const fs::path& path, int error) {
  std::error_code ignored;
  if (fs::is_directory(path, ignored)) return failure::fileAccessError();
  if (error == ENOENT || error == ENOTDIR) return failure::fileNotFound();
  if (error == EACCES || error == EPERM || error == EROFS) return failure::permissionDenied();
  if (error == ENOSPC) return failure::diskFull();
  return failure::fileAccessError();
}

}  // namespace

Files::Files(fs::path programFolder) : programFolder_(std::move(programFolder)) {}

fs::path Files::path(const std::string& name) const { return programFolder_ / name; }

int Files::freeFile() const {
  int number = 1;
  while (files_.contains(number)) ++number;
  return number;
}

std::fstream Files::openStream(int number, const std::string& name, std::ios::openmode mode) {
  if (files_.contains(number)) throw failure::fileAlreadyOpen();
  const fs::path file = path(name);
  std::error_code ignored;
  // Opening a folder for reading succeeds, and its first read fails; refuse it here.
  if (fs::is_directory(file, ignored)) throw failure::fileAccessError();
  errno = 0;
  std::fstream stream(file, mode | std::ios::binary);
  if (!stream.is_open()) throw openingFailure(file, errno);
  return stream;
}

void Files::openForInput(int number, const std::string& name) {
  files_.emplace(number, OpenFile{openStream(number, name, std::ios::in), true});
}

void Files::openForOutput(int number, const std::string& name) {
  files_.emplace(number,
                 OpenFile{openStream(number, name, std::ios::out | std::ios::trunc), false});
}

Files::OpenFile& Files::opened(int number, bool forInput) {
  const auto file = files_.find(number);
  if (file == files_.end() || file->second.forInput != forInput) throw failure::badFileNumber();
  return file->second;
}

bool Files::atEnd(int number) {
  return opened(number, true).stream.peek() == std::fstream::traits_type::eof();
}

std::string Files::readLine(int number) {
  std::fstream& stream = opened(number, true).stream;
  if (stream.peek() == std::fstream::traits_type::eof()) throw failure::inputPastEnd();
  std::string line;
  for (char character; stream.get(character);) {
    if (character == '\n') break;
    if (character == '\r') {
      if (stream.peek() == '\n') stream.get();
      break;
    }
    line += character;
  }
  return line;
}

void Files::printLine(int number, const std::string& text) {
  std::fstream& stream = opened(number, false).stream;
  stream << text << "\r\n" << std::flush;
  if (!stream) throw failure::diskFull();
}

void Files::close(int number) { files_.erase(number); }

void Files::closeAll() { files_.clear(); }

}  // namespace gsm
