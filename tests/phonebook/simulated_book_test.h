#pragma once

#include <memory>
#include <string>

#include "simulator/host/simulated_modem.h"
#include "tests/support/phone_book_test.h"

namespace gsm {

/// The phone book's windows against a modem that has a phone book and calls of its own.
class SimulatedBookTest : public PhoneBookTest {
 protected:
  void SetUp() override {
    PhoneBookTest::SetUp();
    modem_ = std::make_unique<SimulatedModem>(machine().time, machine().line,
                                              simulator::ModemOptions{.speed = 9600});
  }
  // The modem goes after the panel's handlers have been unwound, and before the line.
  void TearDown() override {
    world().time().abandon();
    modem_.reset();
  }

  /// The other side of the calls does something, by a line of the modem's console.
  void console(const std::string& line) {
    inPanel([this, line] { EXPECT_EQ(modem_->console(line), "") << line; });
    run(0);
  }

  std::unique_ptr<SimulatedModem> modem_;
};

}  // namespace gsm
