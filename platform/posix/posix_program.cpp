#include "platform/posix/posix_program.h"

#include <unistd.h>

#include <cstdio>
#include <exception>
#include <utility>

namespace gsm {

PosixProgram::PosixProgram(std::function<void()> closeAll) : closeAll_(std::move(closeAll)) {}

// Handlers are waiting below, some of them with a trap for whatever comes; none of them may run
// again. So nothing is unwound: the process goes.
void PosixProgram::end() {
  try {
    closeAll_();
  } catch (const RuntimeFailure& failure) {
    std::fprintf(stderr, "closing port and files: %s\n", failure.what());
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "closing port and files: %s\n", failure.what());
  }
  std::fflush(nullptr);
  ::_exit(0);
}

}  // namespace gsm
