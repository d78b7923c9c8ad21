#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>

namespace gsm {

/// What whoever starts the desktop program wants of it.
struct CommandLine {
  std::optional<std::filesystem::path> folder;  // of the program's own files
  std::optional<std::filesystem::path> port;    // the device that COM1 is to be
  std::optional<std::filesystem::path> record;  // the file that gets a record of the line
};

/// What the command line is answered with, instead of starting the program.
struct CommandLineAnswer {
  std::string text;  // UTF-8, with its line end
  int status = 0;    // of the process; an answer of status 0 is what was asked for
};

/// Whether the arguments ask for the help or the version, for which no display is needed.
bool asksForWords(int count, const char* const* arguments);

/// Reads the arguments of a program, without those that the toolkit has taken. File names keep
/// their bytes, whatever they are. Needs Qt's application object.
std::variant<CommandLine, CommandLineAnswer> readCommandLine(int count,
                                                             const char* const* arguments,
                                                             const std::string& version);

}  // namespace gsm
