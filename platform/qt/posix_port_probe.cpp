#include "platform/qt/posix_port_probe.h"

#include "platform/qt/port_access.h"
#include "platform/qt/text_codec.h"

namespace gsm {

bool PosixPortProbe::exists(int number) { return names_.device(number).has_value(); }

PortProbe::Access PosixPortProbe::access(int number) {
  const auto device = names_.device(number);
  return device ? tryAccess(*device, locks_).access : Access::absent;
}

// Links resolved: the user knows what is plugged in by the kernel's name.
std::string PosixPortProbe::deviceName(int number) {
  const auto device = names_.device(number);
  return device ? fromFileName(*device) : std::string();
}

}  // namespace gsm
