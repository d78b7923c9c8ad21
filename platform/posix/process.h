#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

namespace gsm {

/// Whether process `id` lives. One that has ended and that nobody has asked after yet doesn't.
bool isAlive(pid_t id);

/// The name of the program that process `id` runs, such as "minicom"; empty when it can't be told.
std::string programOf(pid_t id);

/// Whether process `id` has the device of that number open; nothing when its open files are hidden
/// from this user.
std::optional<bool> hasOpen(pid_t id, dev_t device);

/// Another process that has the device open, as far as this user can see; nothing when there is
/// none.
std::optional<pid_t> holderOf(dev_t device);

/// What tells one start of the machine from the next; empty when it can't be told.
std::string thisBoot();

/// The machine's name.
std::string thisHost();

}  // namespace gsm
