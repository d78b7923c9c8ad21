#pragma once

#include <functional>

#include "platform/program.h"

namespace gsm {

/// The run of the desktop program.
class PosixProgram : public Program {
 public:
  /// `closeAll` closes what must not be left open: port and files.
  explicit PosixProgram(std::function<void()> closeAll);

  [[noreturn]] void end() override;

 private:
  const std::function<void()> closeAll_;
};

}  // namespace gsm
