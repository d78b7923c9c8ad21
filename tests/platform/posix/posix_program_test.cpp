#include "platform/posix/posix_program.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <stdexcept>

namespace gsm {
namespace {

TEST(PosixProgramDeathTest, ClosesEverythingAndEndsTheProcess) {
  PosixProgram program([] { std::fprintf(stderr, "all closed"); });
  EXPECT_EXIT(program.end(), ::testing::ExitedWithCode(0), "all closed");
}

TEST(PosixProgramDeathTest, NoTrapCatchesTheEnd) {
  PosixProgram program([] {});
  const auto handler = [&program] {
    try {
      program.end();
    } catch (...) {
      std::abort();
    }
  };
  EXPECT_EXIT(handler(), ::testing::ExitedWithCode(0), "");
}

TEST(PosixProgramDeathTest, EndsEvenWhenClosingFails) {
  PosixProgram program([] { throw std::runtime_error("device gone"); });
  EXPECT_EXIT(program.end(), ::testing::ExitedWithCode(0), "device gone");
}

}  // namespace
}  // namespace gsm
