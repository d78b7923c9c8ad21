#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace gsm::house {

/// A text file of the project: its path from the project's folder, and its lines.
struct SourceFile {
  std::string path;
  std::vector<std::string> lines;

  bool isIn(std::string_view folder) const { return path.starts_with(folder); }
  bool isHeader() const { return path.ends_with(".h"); }
  bool isSource() const { return path.ends_with(".cpp") || path.ends_with(".cpp.in"); }
  bool isCode() const { return isHeader() || isSource(); }
  bool isBuildList() const { return path.ends_with("CMakeLists.txt"); }

  /// The path of the folder that holds it, with a slash at the end; empty for the project's own.
  std::string folder() const;
};

using Tree = std::vector<SourceFile>;

/// The C++ files and build lists under `root`. What is built or hidden isn't looked at.
Tree readTree(const std::filesystem::path& root);

/// A file made up of `text`, for trying a rule out.
SourceFile madeUp(std::string path, std::string_view text);

/// `line` without the comment at its end.
std::string_view withoutComment(std::string_view line);

/// What an `#include` of the line names, with its quotes or brackets; empty for another line.
std::string_view includeOf(std::string_view line);

}  // namespace gsm::house
