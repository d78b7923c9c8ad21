#pragma once

#include "platform/runtime_failure.h"

namespace gsm {

/// The run of the program as a whole.
class Program {
 public:
  virtual ~Program() = default;

  /// Ends the program at once, with port and files closed. No trap of a handler catches it.
  [[noreturn]] virtual void end() = 0;
};

}  // namespace gsm
