#include "platform/posix/posix_port_probe.h"

#include "platform/code_page.h"
#include "platform/posix/port_access.h"
#include "platform/posix/port_trouble.h"

namespace gsm {

bool PosixPortProbe::exists(int number) { return names_.device(number).has_value(); }

PortProbe::Access PosixPortProbe::access(int number) {
  const auto device = names_.device(number);
  return device ? tryAccess(*device, locks_).access : Access::absent;
}

// Links resolved: the user knows what is plugged in by the kernel's name.
std::string PosixPortProbe::deviceName(int number) {
  const auto device = names_.device(number);
  return device ? fromUtf8(device->string()) : std::string();
}

std::string PosixPortProbe::trouble(int number) {
  const auto device = names_.device(number);
  if (device) return fromUtf8(troubleOf(*device, tryAccess(*device, locks_), locks_));
  const auto path = names_.path(number);
  return path ? fromUtf8("there is no device " + path->string()) : "no device has this number";
}

}  // namespace gsm
