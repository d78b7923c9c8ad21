#include "platform/qt/qt_program.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <stdexcept>

namespace gsm {
namespace {

TEST(QtProgramDeathTest, ClosesEverythingAndEndsTheProcess) {
  QtProgram program([] { std::fprintf(stderr, "all closed"); });
  EXPECT_EXIT(program.end(), ::testing::ExitedWithCode(0), "all closed");
}

TEST(QtProgramDeathTest, NoTrapCatchesTheEnd) {
  QtProgram program([] {});
  const auto handler = [&program] {
    try {
      program.end();
    } catch (...) {
      std::abort();
    }
  };
  EXPECT_EXIT(handler(), ::testing::ExitedWithCode(0), "");
}

TEST(QtProgramDeathTest, EndsEvenWhenClosingFails) {
  QtProgram program([] { throw std::runtime_error("device gone"); });
  EXPECT_EXIT(program.end(), ::testing::ExitedWithCode(0), "device gone");
}

}  // namespace
}  // namespace gsm
