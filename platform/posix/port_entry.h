#pragma once

#include <filesystem>
#include <string>

namespace gsm {

/// Ties port `number` to `device` by the link `ports/COMn` in the program's folder, as a person
/// would by hand. The link leads to the name as it is given, so one that stays with its device,
/// such as those in /dev/serial/by-id, goes on doing so. Returns what is wrong when that can't be;
/// empty: it is done.
std::string tiePort(const std::filesystem::path& programFolder, int number,
                    const std::filesystem::path& device);

/// Makes `COM.txt` in the program's folder, so that port `number` is tried at 9600 baud at the
/// start; one that is there stays.
void layPortFile(const std::filesystem::path& programFolder, int number);

}  // namespace gsm
