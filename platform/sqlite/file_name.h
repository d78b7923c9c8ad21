#pragma once

#include <filesystem>
#include <vector>

namespace gsm {

/// The files of that name in its folder, whatever the case of the name's last part. The first is
/// the one that every spelling means: a file comes before what is none, a name in small letters
/// before others.
std::vector<std::filesystem::path> namesakesOf(const std::filesystem::path& file);

/// The file that the name means as it is really spelled; `file` itself when there is none.
std::filesystem::path ignoringCase(const std::filesystem::path& file);

}  // namespace gsm
