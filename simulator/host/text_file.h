#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gsm::pty {

// What a small text file holds; nothing when there is none, when it can't be read, or when it has
// more than 64 KiB and so must be something else.
std::optional<std::string> readTextFile(const std::string& path);

// Replaces the file as a whole, so that a crash leaves the old one or the new one. False, with the
// old one in place, when it can't.
bool replaceTextFile(const std::string& path, std::string_view text);

}  // namespace gsm::pty
