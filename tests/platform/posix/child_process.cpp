#include "tests/platform/posix/child_process.h"

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

namespace gsm {
namespace {

// The child must hold nothing of the test's open: neither the device nor what locks it.
void closeAllBut(int kept) {
  for (int descriptor = 3; descriptor < 1024; ++descriptor) {
    if (descriptor != kept) ::close(descriptor);
  }
}

}  // namespace

ChildProcess::ChildProcess(const std::string& device) {
  int ready[2] = {-1, -1};
  if (::pipe(ready) != 0) std::abort();
  id_ = ::fork();
  if (id_ < 0) std::abort();
  if (id_ == 0) {
    closeAllBut(ready[1]);
    if (!device.empty() && ::open(device.c_str(), O_RDWR | O_NOCTTY) < 0) ::_exit(1);
    if (::write(ready[1], "x", 1) != 1) ::_exit(1);
    ::close(ready[1]);
    for (;;) ::pause();
  }
  ::close(ready[1]);
  char up = 0;
  if (::read(ready[0], &up, 1) != 1) std::abort();
  ::close(ready[0]);
}

void ChildProcess::kill() {
  ::kill(id_, SIGKILL);
  siginfo_t info{};
  ::waitid(P_PID, static_cast<id_t>(id_), &info, WEXITED | WNOWAIT);
}

ChildProcess::~ChildProcess() {
  ::kill(id_, SIGKILL);
  ::waitpid(id_, nullptr, 0);
}

}  // namespace gsm
