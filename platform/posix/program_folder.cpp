#include "platform/posix/program_folder.h"

#include <fcntl.h>
#include <strings.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

namespace gsm {
namespace {

namespace fs = std::filesystem;

fs::path environmentPath(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

bool mayWriteTo(const fs::path& folder) {
  return ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

// What is installed for everybody keeps no files there, not even those of root.
bool isOfTheSystem(const fs::path& folder) { return folder.string().starts_with("/usr/"); }

// A relative data folder is none, by the rules that those folders have.
fs::path dataFolder(const ProgramFolder::Places& places) {
  if (places.dataHome.is_absolute()) return places.dataHome / "gsm-application";
  if (places.home.is_absolute()) return places.home / ".local/share/gsm-application";
  return {};
}

}  // namespace

ProgramFolder::Places placesHere(std::optional<fs::path> given) {
  std::error_code unknown;
  return {std::move(given), fs::read_symlink("/proc/self/exe", unknown).parent_path(),
          environmentPath("XDG_DATA_HOME"), environmentPath("HOME")};
}

ProgramFolder chooseProgramFolder(const ProgramFolder::Places& places) {
  if (places.given) return {*places.given};
  if (!isOfTheSystem(places.beside) && mayWriteTo(places.beside)) return {places.beside};
  const fs::path users = dataFolder(places);
  std::error_code ignored;
  if (!users.empty()) fs::create_directories(users, ignored);
  if (!users.empty() && mayWriteTo(users)) return {users, true};
  return {places.beside};
}

bool hasPhoneBook(const fs::path& folder) {
  std::error_code hidden;
  fs::directory_iterator file(folder, hidden);
  for (; !hidden && file != fs::directory_iterator(); file.increment(hidden)) {
    if (::strcasecmp(file->path().filename().c_str(), "phonebook.mdb") == 0) return true;
  }
  return false;
}

}  // namespace gsm
