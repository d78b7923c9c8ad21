#pragma once

#include <string>

#include "platform/port_probe.h"
#include "platform/posix/port_names.h"
#include "platform/posix/uucp_lock.h"

namespace gsm {

/// Looks at the machine's serial devices and at the locks of other programs.
class PosixPortProbe : public PortProbe {
 public:
  /// Both must outlive the probe.
  PosixPortProbe(const PortNames& names, const UucpLocks& locks) : names_(names), locks_(locks) {}

  bool exists(int number) override;
  Access access(int number) override;
  std::string deviceName(int number) override;
  std::string trouble(int number) override;

 private:
  const PortNames& names_;
  const UucpLocks& locks_;
};

}  // namespace gsm
