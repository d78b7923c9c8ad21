#include "simulator/host/line_splitter.h"

#include <gtest/gtest.h>

namespace gsm::pty {
namespace {

using Lines = std::vector<std::string>;

TEST(LineSplitter, JoinsPiecesIntoLines) {
  LineSplitter splitter;
  EXPECT_EQ(splitter.take("sta"), Lines{});
  EXPECT_EQ(splitter.take("te\n\nhelp\nqu"), (Lines{"state", "", "help"}));
  EXPECT_EQ(splitter.takeRest(), "qu");
  EXPECT_EQ(splitter.takeRest(), "");
}

TEST(LineSplitter, CutsALineThatNeverEnds) {
  LineSplitter splitter;
  const Lines lines = splitter.take(std::string(2 * LineSplitter::kLongest + 1, 'x'));
  EXPECT_EQ(lines, Lines(2, std::string(LineSplitter::kLongest, 'x')));
  EXPECT_EQ(splitter.takeRest(), "x");
}

}  // namespace
}  // namespace gsm::pty
