#include "importer/child_process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "platform/sqlite/database_failure.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || \
    __has_feature(memory_sanitizer)
#define GSM_SANITIZED
#endif
#elif defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define GSM_SANITIZED
#endif

namespace gsm {

#ifdef GSM_SANITIZED
const bool kChildMemoryIsBounded = false;
#else
const bool kChildMemoryIsBounded = true;
#endif

namespace {

using Clock = std::chrono::steady_clock;

void bound(decltype(RLIMIT_CPU) resource, rlim_t most) {
  const rlimit limit{most, most};
  setrlimit(resource, &limit);
}

// Only what a child of a process with one thread may do, and never back to the caller's code.
[[noreturn]] void work(const std::function<void(int)>& job, int output, const ChildBounds& bounds) {
  const auto seconds = std::chrono::ceil<std::chrono::seconds>(bounds.time).count();
  bound(RLIMIT_CPU, static_cast<rlim_t>(seconds) + 1);  // ends it even when the parent is gone
  bound(RLIMIT_FSIZE, 0);
  bound(RLIMIT_CORE, 0);
  if (kChildMemoryIsBounded) bound(RLIMIT_AS, bounds.memory);
  if (const int nothing = open("/dev/null", O_RDWR); nothing >= 0) {
    for (int standard = 0; standard <= 2; ++standard) dup2(nothing, standard);
  }
  clearenv();  // libraries take options from it
  try {
    job(output);
  } catch (...) {
    _exit(1);
  }
  _exit(0);
}

// A running child and the end of the pipe from which it is heard; ended with the object.
class Child {
 public:
  Child(const std::function<void(int)>& job, const ChildBounds& bounds) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) fail();
    process_ = fork();
    if (process_ == 0) {
      close(ends[0]);
      // Out of the way of the standard descriptors, in case the caller has closed those.
      const int output = fcntl(ends[1], F_DUPFD, 3);
      close(ends[1]);
      if (output < 0) _exit(1);
      work(job, output, bounds);
    }
    close(ends[1]);
    input_ = ends[0];
    if (process_ < 0) {
      close(input_);
      fail();
    }
  }
  // By now it has either said all it has to say or isn't wanted any more.
  ~Child() {
    kill(process_, SIGKILL);
    while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {}
    close(input_);
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  // What there is to read now: nothing at the end of all. No value when `deadline` comes first.
  std::optional<std::string> hear(Clock::time_point deadline) const {
    for (;;) {
      const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
      if (left.count() <= 0) return std::nullopt;
      pollfd wait{input_, POLLIN, 0};
      const int milliseconds = static_cast<int>(std::min<long long>(left.count(), 60'000));
      if (poll(&wait, 1, milliseconds) <= 0) continue;
      std::array<char, 65536> bytes{};
      const ssize_t count = read(input_, bytes.data(), bytes.size());
      if (count < 0 && (errno == EINTR || errno == EAGAIN)) continue;
      return std::string(bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
  }

 private:
  [[noreturn]] static void fail() {
    throw databaseFailureSaying(DatabaseFault::cannotOpen,
                                std::string("Couldn't start a process: ") + std::strerror(errno));
  }

  pid_t process_ = -1;
  int input_ = -1;
};

}  // namespace

std::optional<std::string> runInChild(const std::function<void(int)>& job,
                                      const ChildBounds& bounds) {
  const auto deadline = Clock::now() + bounds.time;
  const Child child(job, bounds);
  std::string said;
  while (said.size() < bounds.output) {
    const auto more = child.hear(deadline);
    if (!more) return std::nullopt;
    if (more->empty()) break;
    said += *more;
  }
  said.resize(std::min(said.size(), bounds.output));
  return said;
}

}  // namespace gsm
