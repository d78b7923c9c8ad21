#pragma once

#include <filesystem>

#include "platform/port_probe.h"
#include "platform/posix/uucp_lock.h"

namespace gsm {

/// What the opening of a device for this program alone would meet, and why.
struct PortAccess {
  PortProbe::Access access;
  int error;  // the system's number of the reason when opening was refused, else 0
};

/// Tries it on the device at `device` (a path with all links resolved). The line isn't disturbed
/// beyond what an opening and a closing are: it keeps its settings, what came in stays unread, and
/// the hold of another program remains.
PortAccess tryAccess(const std::filesystem::path& device, const UucpLocks& locks);

}  // namespace gsm
