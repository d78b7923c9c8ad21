#include "platform/posix/port_access.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>

namespace gsm {
namespace {

using Access = PortProbe::Access;

// Root opens a line that another program has for itself alone, so the line is asked.
bool isExclusive(int descriptor) {
  int exclusive = 0;
  return ::ioctl(descriptor, TIOCGEXCL, &exclusive) == 0 && exclusive != 0;
}

PortAccess refused(int error) {
  const bool held = error == EBUSY || error == EACCES || error == EPERM;
  return {held ? Access::held : Access::absent, error};
}

}  // namespace

PortAccess tryAccess(const std::filesystem::path& device, const UucpLocks& locks) {
  if (const auto lock = locks.find(device); lock && lock->isHeld) return refused(EBUSY);
  const int descriptor = ::open(device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return refused(errno);
  PortAccess result{Access::free, 0};
  if (::isatty(descriptor) == 0) {
    result = refused(errno);
  } else if (isExclusive(descriptor)) {
    result = refused(EBUSY);
  }
  ::close(descriptor);
  return result;
}

}  // namespace gsm
