#include "platform/posix/ini_settings_store.h"

#include <algorithm>
#include <fstream>
#include <utility>
#include <vector>

#include "platform/code_page.h"
#include "platform/replaced_file.h"

namespace gsm {
namespace {

// In quotes where the value could be taken for more than one.
std::string written(const std::string& value) {
  if (value.find_first_of(",;\"\\\r\n") == std::string::npos) return value;
  std::string quoted = "\"";
  for (const char character : value) {
    if (character == '\r' || character == '\n') continue;
    if (character == '"' || character == '\\') quoted += '\\';
    quoted += character;
  }
  return quoted + "\"";
}

std::vector<std::string> linesOf(const std::filesystem::path& file) {
  std::vector<std::string> lines;
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// Gives `key` its line in the section `header`, among the others in the order of their names.
void put(std::vector<std::string>& lines, const std::string& header, const std::string& key,
         const std::string& value) {
  const std::string start = key + "=";
  auto line = std::find(lines.begin(), lines.end(), header);
  if (line == lines.end()) line = lines.insert(lines.end(), header);
  for (++line; line != lines.end() && !line->starts_with('[') && !line->empty(); ++line) {
    if (line->starts_with(start)) {
      *line = start + value;
      return;
    }
    if (*line > start) break;
  }
  lines.insert(line, start + value);
}

}  // namespace

IniSettingsStore::IniSettingsStore(std::filesystem::path file) : file_(std::move(file)) {}

void IniSettingsStore::save(const std::string& section, const std::string& key,
                            const std::string& value) {
  std::vector<std::string> lines = linesOf(file_);
  put(lines, "[" + toUtf8(section) + "]", toUtf8(key), written(toUtf8(value)));
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  ReplacedFile file(file_);
  file.write(text);
  file.keep();
}

}  // namespace gsm
