#include "simulator/host/descriptor.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace gsm::pty {

void Descriptor::reset() {
  if (isOpen()) ::close(std::exchange(number_, -1));
}

void throwSystemError(const std::string& what) {
  throw std::system_error(errno, std::generic_category(), what);
}

}  // namespace gsm::pty
