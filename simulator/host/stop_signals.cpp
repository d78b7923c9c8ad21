#include "simulator/host/stop_signals.h"

#include <pthread.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace gsm::pty {

StopSignals::StopSignals() {
  sigset_t stopping;
  sigemptyset(&stopping);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&stopping, signal);
  ::pthread_sigmask(SIG_BLOCK, &stopping, &before_);
  descriptor_ = Descriptor(::signalfd(-1, &stopping, SFD_CLOEXEC | SFD_NONBLOCK));
  if (!descriptor_.isOpen()) throwSystemError("no signal descriptor");
}

StopSignals::~StopSignals() {
  signalfd_siginfo taken{};
  while (::read(descriptor_.number(), &taken, sizeof taken) > 0) {}
  ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

}  // namespace gsm::pty
