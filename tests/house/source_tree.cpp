#include "tests/house/source_tree.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace gsm::house {
namespace {

namespace fs = std::filesystem;

bool isLookedInto(const fs::path& folder) {
  const std::string name = folder.filename().string();
  return !name.starts_with('.') && name != "build";
}

std::vector<std::string> linesOf(std::istream& text) {
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) lines.push_back(std::move(line));
  return lines;
}

}  // namespace

std::string SourceFile::folder() const {
  const auto slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

Tree readTree(const fs::path& root) {
  Tree tree;
  fs::recursive_directory_iterator entry(root);
  for (; entry != fs::recursive_directory_iterator(); ++entry) {
    if (entry->is_directory() && !isLookedInto(entry->path())) entry.disable_recursion_pending();
    if (!entry->is_regular_file()) continue;
    SourceFile file{entry->path().lexically_relative(root).generic_string(), {}};
    if (!file.isCode() && !file.isBuildList()) continue;
    std::ifstream text(entry->path());
    if (!text) throw std::runtime_error("can't read " + file.path);
    file.lines = linesOf(text);
    tree.push_back(std::move(file));
  }
  std::sort(tree.begin(), tree.end(),
            [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
  return tree;
}

SourceFile madeUp(std::string path, std::string_view text) {
  std::istringstream stream{std::string(text)};
  return {std::move(path), linesOf(stream)};
}

std::string_view withoutComment(std::string_view line) {
  const auto comment = line.find("//");
  const bool isAddress =
      comment != std::string_view::npos && comment > 0 && line[comment - 1] == ':';
  return isAddress ? line : line.substr(0, comment);
}

std::string_view includeOf(std::string_view line) {
  constexpr std::string_view kInclude = "#include";
  if (!line.starts_with(kInclude)) return {};
  const auto begin = line.find_first_of("<\"", kInclude.size());
  if (begin == std::string_view::npos) return {};
  const auto end = line.find_first_of(">\"", begin + 1);
  return end == std::string_view::npos ? std::string_view{} : line.substr(begin, end - begin + 1);
}

}  // namespace gsm::house
