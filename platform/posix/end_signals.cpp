#include "platform/posix/end_signals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <system_error>

namespace gsm {
namespace {

constexpr std::array<int, 3> kEnding = {SIGTERM, SIGINT, SIGHUP};

// A signal's handler reaches nothing but what is global.
std::array<int, 2> pipeEnds{-1, -1};
std::array<struct sigaction, kEnding.size()> before{};
struct sigaction pipeBefore {};

void note(int) {
  const int error = errno;
  struct sigaction plain {};
  plain.sa_handler = SIG_DFL;
  for (const int ending : kEnding) ::sigaction(ending, &plain, nullptr);
  [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], "", 1);
  errno = error;
}

}  // namespace

EndSignals::EndSignals() {
  if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    throw std::system_error(errno, std::generic_category(), "pipe");
  }
  struct sigaction noting {};
  noting.sa_handler = note;
  noting.sa_flags = SA_RESTART;
  for (std::size_t each = 0; each < kEnding.size(); ++each) {
    ::sigaction(kEnding.at(each), nullptr, &before.at(each));
    if (before.at(each).sa_handler != SIG_IGN) ::sigaction(kEnding.at(each), &noting, nullptr);
  }
  struct sigaction ignoring {};
  ignoring.sa_handler = SIG_IGN;
  ::sigaction(SIGPIPE, &ignoring, &pipeBefore);
}

EndSignals::~EndSignals() {
  for (std::size_t each = 0; each < kEnding.size(); ++each) {
    ::sigaction(kEnding.at(each), &before.at(each), nullptr);
  }
  ::sigaction(SIGPIPE, &pipeBefore, nullptr);
  for (int& end : pipeEnds) {
    ::close(end);
    end = -1;
  }
}

int EndSignals::descriptor() const { return pipeEnds[0]; }

}  // namespace gsm
