#include "platform/files.h"

#include <cerrno>
#include <iterator>
#include <optional>
#include <utility>

#include "platform/runtime_failure.h"

namespace gsm {

namespace fs = std::filesystem;

Files::Files(fs::path programFolder) : programFolder_(std::move(programFolder)) {}

fs::path Files::path(const std::string& name) const { return programFolder_ / name; }

int Files::freeFile() const {
  int number = 1;
  while (files_.contains(number)) ++number;
  return number;
}

fs::path Files::nameFor(int number, const std::string& name) const {
  if (files_.contains(number)) throw failure::fileAlreadyOpen();
  fs::path file = path(name);
  std::error_code ignored;
  // Opening a folder for reading succeeds, and its first read fails; refuse it here.
  if (fs::is_directory(file, ignored)) throw failure::fileAccessError();
  return file;
}

void Files::openForInput(int number, const std::string& name) {
  const fs::path file = nameFor(number, name);
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream.is_open()) throw openingFailure(file, errno);
  files_.emplace(number, OpenFile{.input = std::move(stream)});
}

void Files::openForOutput(int number, const std::string& name) {
  auto output = std::make_unique<ReplacedFile>(nameFor(number, name), number);
  files_.emplace(number, OpenFile{.output = std::move(output)});
}

Files::OpenFile& Files::opened(int number, bool forInput) {
  const auto file = files_.find(number);
  if (file == files_.end() || (file->second.output == nullptr) != forInput)
    throw failure::badFileNumber();
  return file->second;
}

bool Files::atEnd(int number) {
  return opened(number, true).input.peek() == std::ifstream::traits_type::eof();
}

std::string Files::readLine(int number) {
  std::ifstream& stream = opened(number, true).input;
  if (stream.peek() == std::ifstream::traits_type::eof()) throw failure::inputPastEnd();
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
  opened(number, false).output->write(text + "\r\n");
}

void Files::close(int number) {
  const auto file = files_.extract(number);
  if (!file.empty() && file.mapped().output) file.mapped().output->keep();
}

void Files::closeAll() {
  // All are closed, whatever becomes of one.
  std::optional<RuntimeFailure> first;
  while (!files_.empty()) {
    try {
      close(files_.begin()->first);
    } catch (const RuntimeFailure& failure) {
      if (!first) first = failure;
    }
  }
  if (first) throw *first;
}

}  // namespace gsm
