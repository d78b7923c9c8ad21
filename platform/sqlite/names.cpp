#include "platform/sqlite/names.h"

#include <sqlite3.h>

namespace gsm {

std::string quotedName(const std::string& name) {
  std::string quoted = "\"";
  for (const char character : name) {
    if (character == '"') quoted += '"';
    quoted += character;
  }
  return quoted + "\"";
}

bool sameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() &&
         sqlite3_strnicmp(a.data(), b.data(), static_cast<int>(a.size())) == 0;
}

}  // namespace gsm
