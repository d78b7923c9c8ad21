#include "platform/posix/core_files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

// As on a machine that keeps core files of any size, as far as this one lets a process.
rlim_t allowCoreFiles() {
  rlimit limit{};
  ::getrlimit(RLIMIT_CORE, &limit);
  limit.rlim_cur = limit.rlim_max;
  ::setrlimit(RLIMIT_CORE, &limit);
  return limit.rlim_max;
}

bool abortedWithoutCore(int status) {
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT && !WCOREDUMP(status);
}

TEST(CoreFilesDeathTest, AreNotWrittenWhenTheProgramCrashes) {
  const TemporaryFolder folder;
  const auto crash = [&folder] {
    std::filesystem::current_path(folder.path());
    allowCoreFiles();
    leaveNoCoreFile();
    std::abort();
  };
  EXPECT_EXIT(crash(), abortedWithoutCore, "");
}

TEST(CoreFilesDeathTest, AreLimitedToWhatNoneFitsIntoForGood) {
  const auto tellLimit = [] {
    const rlim_t before = allowCoreFiles();
    leaveNoCoreFile();
    rlimit limit{};
    ::getrlimit(RLIMIT_CORE, &limit);
    std::_Exit(
        limit.rlim_cur == limit.rlim_max && limit.rlim_max == std::min<rlim_t>(1, before) ? 0 : 1);
  };
  EXPECT_EXIT(tellLimit(), ::testing::ExitedWithCode(0), "");
}

// A user who has switched them off altogether is left alone.
TEST(CoreFilesDeathTest, SwitchedOffAlreadyStayOff) {
  const auto tellLimit = [] {
    const rlimit off{};
    ::setrlimit(RLIMIT_CORE, &off);
    leaveNoCoreFile();
    rlimit limit{};
    ::getrlimit(RLIMIT_CORE, &limit);
    std::_Exit(limit.rlim_max == 0 ? 0 : 1);
  };
  EXPECT_EXIT(tellLimit(), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace gsm
