#include "platform/posix/core_files.h"

#include <sys/resource.h>

#include <algorithm>

namespace gsm {

// A byte is too little for any file, as nothing would be; but with a limit of nothing the kernel
// still calls a collector, which may keep all of it. With a byte it doesn't.
void leaveNoCoreFile() {
  constexpr rlim_t kLeast = 1;
  rlimit limit{};
  ::getrlimit(RLIMIT_CORE, &limit);
  limit.rlim_max = std::min(kLeast, limit.rlim_max);
  limit.rlim_cur = limit.rlim_max;
  ::setrlimit(RLIMIT_CORE, &limit);
}

}  // namespace gsm
