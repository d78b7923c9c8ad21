#include "platform/qt/command_line.h"

#include <QCommandLineParser>
#include <QFile>
#include <algorithm>
#include <array>
#include <string_view>

namespace gsm {
namespace {

constexpr int kBadUsage = 2;

constexpr const char* kDescription =
    "The control panel for a GSM modem on a serial port.\n"
    "The toolkit's own options, such as -style, are understood too.";

struct PathOption {
  const char* name;
  const char* help;
  const char* value;
  std::optional<std::filesystem::path> CommandLine::*path;
};

constexpr std::array kPathOptions = {
    PathOption{"folder",
               "The folder of the program's own files. Without it they lie beside the program, or, "
               "where that can't be written to, in $XDG_DATA_HOME/gsm-application.",
               "DIR", &CommandLine::folder},
    PathOption{"port",
               "Makes this device COM1, by the entry ports/COM1 in the folder; such as "
               "/dev/ttyUSB0, or a name in /dev/serial/by-id that stays with the device.",
               "DEVICE", &CommandLine::port},
    PathOption{
        "record",
        "Writes what goes over the port to FILE, 8 MB at most, with PINs, PUKs and passwords "
        "blotted out. What FILE held before is lost.",
        "FILE", &CommandLine::record},
};

// The bytes of the argument that the toolkit has read as `value`.
std::string bytesOf(const QString& value, const std::string& option, int count,
                    const char* const* arguments) {
  const std::string withName = "--" + option + "=";
  for (int i = 1; i < count; ++i) {
    std::string_view argument = arguments[i];
    if (argument.starts_with(withName)) argument.remove_prefix(withName.size());
    std::string bytes(argument);
    if (QFile::decodeName(bytes.c_str()) == value) return bytes;
  }
  return QFile::encodeName(value).toStdString();
}

CommandLineAnswer wrong(const QString& reason) {
  return {("gsm-application: " + reason + "\nSee gsm-application --help\n").toStdString(),
          kBadUsage};
}

}  // namespace

bool asksForWords(int count, const char* const* arguments) {
  constexpr std::array<std::string_view, 5> kWords = {"-h", "--help", "--help-all", "-v",
                                                      "--version"};
  return std::any_of(arguments + std::min(1, count), arguments + count, [&](const char* argument) {
    return std::find(kWords.begin(), kWords.end(), argument) != kWords.end();
  });
}

std::variant<CommandLine, CommandLineAnswer> readCommandLine(int count,
                                                             const char* const* arguments,
                                                             const std::string& version) {
  QCommandLineParser parser;
  parser.setApplicationDescription(kDescription);
  const QCommandLineOption help = parser.addHelpOption();
  const QCommandLineOption versionOption = parser.addVersionOption();
  for (const PathOption& option : kPathOptions) {
    parser.addOption({option.name, option.help, option.value});
  }
  QStringList words;
  for (int i = 0; i < count; ++i) words << QFile::decodeName(arguments[i]);
  if (!parser.parse(words)) return wrong(parser.errorText());
  if (parser.isSet(help) || parser.isSet("help-all")) {
    return CommandLineAnswer{parser.helpText().toStdString()};
  }
  if (parser.isSet(versionOption)) return CommandLineAnswer{"gsm-application " + version + "\n"};
  if (const QStringList others = parser.positionalArguments(); !others.isEmpty()) {
    return wrong("What is '" + others.first() + "'?");
  }
  CommandLine line;
  for (const PathOption& option : kPathOptions) {
    if (!parser.isSet(option.name)) continue;
    const QString value = parser.value(option.name);
    if (value.isEmpty()) return wrong(QString("--%1 wants a name.").arg(option.name));
    line.*option.path = bytesOf(value, option.name, count, arguments);
  }
  return line;
}

}  // namespace gsm
