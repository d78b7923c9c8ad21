#include "platform/sqlite/file_name.h"

#include <algorithm>
#include <string>
#include <tuple>

#include "platform/sqlite/names.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

// By what is better, the best first.
auto rankOf(const fs::path& file) {
  const std::string name = file.filename().string();
  const bool hasCapitals =
      std::any_of(name.begin(), name.end(), [](char each) { return each >= 'A' && each <= 'Z'; });
  std::error_code ignored;
  return std::make_tuple(!fs::is_regular_file(file, ignored), hasCapitals, name);
}

}  // namespace

std::vector<fs::path> namesakesOf(const fs::path& file) {
  std::vector<fs::path> namesakes;
  const std::string name = file.filename().string();
  const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
  std::error_code error;
  fs::directory_iterator each(folder, error);
  for (; !error && each != fs::directory_iterator(); each.increment(error)) {
    const std::string other = each->path().filename().string();
    if (sameName(other, name)) {
      namesakes.push_back(file.parent_path() / other);
    }
  }
  // A folder that can't be looked through can still hold the file.
  if (namesakes.empty() && fs::symlink_status(file, error).type() != fs::file_type::not_found &&
      !error) {
    namesakes.push_back(file);
  }
  std::sort(namesakes.begin(), namesakes.end(),
            [](const fs::path& a, const fs::path& b) { return rankOf(a) < rankOf(b); });
  return namesakes;
}

fs::path ignoringCase(const fs::path& file) {
  const auto namesakes = namesakesOf(file);
  return namesakes.empty() ? file : namesakes.front();
}

}  // namespace gsm
