#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/simulator/bench.h"

namespace gsm::simulator {

// A modem that is called from the console.
class Callers : public testing::Test {
 protected:
  // Does a line of the console and returns what arrives within a second.
  std::string after(const std::string& line) {
    EXPECT_EQ(bench_.modem.console(line), "");
    return bench_.listen();
  }

  // A call that is talked on.
  void talk() {
    after("ring 0111");
    EXPECT_EQ(bench_.ask("ATA"), kOk);
  }

  Bench bench_;
};

}  // namespace gsm::simulator
