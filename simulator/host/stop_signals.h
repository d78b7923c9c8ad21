#pragma once

#include <csignal>

#include "simulator/host/descriptor.h"

namespace gsm::pty {

// Turns SIGINT, SIGTERM and SIGHUP into a descriptor that becomes readable, so that a server can
// end in its own time. While the object lives these signals interrupt nothing, and those that came
// are forgotten with it.
class StopSignals {
 public:
  // Throws std::system_error when the system can't.
  StopSignals();
  ~StopSignals();
  StopSignals(const StopSignals&) = delete;
  StopSignals& operator=(const StopSignals&) = delete;

  int descriptor() const { return descriptor_.number(); }

 private:
  sigset_t before_{};
  Descriptor descriptor_;
};

}  // namespace gsm::pty
