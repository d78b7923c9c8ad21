#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "platform/posix/port_access.h"
#include "platform/posix/uucp_lock.h"

namespace gsm {

/// The group whose members may read and write the device at `device`; nothing when being in it
/// doesn't help.
std::optional<std::string> helpfulGroup(const std::filesystem::path& device);

/// Why the device at `device` (a path with all links resolved) can't be opened, and what would
/// help, for its user to read: "held by 1234 (minicom)". `found` is what the opening met. Empty
/// when nothing is in the way.
std::string troubleOf(const std::filesystem::path& device, const PortAccess& found,
                      const UucpLocks& locks);

}  // namespace gsm
