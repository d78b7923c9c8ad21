#include <gtest/gtest.h>

#include <memory>

#include "platform/headless/simulated_modem.h"
#include "tests/phonebook/phone_book_test.h"

namespace gsm {
namespace {

// The call window against a modem that has a phone book and calls of its own.
class SimulatedBook : public PhoneBookTest {
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

  std::unique_ptr<SimulatedModem> modem_;
};

TEST_F(SimulatedBook, KeepsAnAddedEntryThroughAReload) {
  openCalls();
  const std::string before = used();
  ASSERT_FALSE(before.empty());
  click(calls().Command2);
  panel().form4.Text3.Text = "0146290899";
  panel().form4.Text4.Text = "Zed";
  click(panel().form4.Command1);
  settle();
  EXPECT_EQ(used(), std::to_string(std::stoi(before) + 1));
  click(calls().Command5);
  settle();
  EXPECT_EQ(used(), std::to_string(std::stoi(before) + 1));
  ASSERT_FALSE(storedEntries().empty());
  EXPECT_EQ(storedEntries().back(), (BookRow{used(), "0146290899", " Zed"}));
  EXPECT_EQ(rows().back(), used() + "  0146290899           Zed");
}

TEST_F(SimulatedBook, RedialsTheNumberOfTheLastCall) {
  openCalls();
  calls().Text1.Text = "0146290800";
  click(calls().Command1);
  settle();
  click(calls().Command4);
  settle();
  EXPECT_EQ(dialBox(), "");
  click(calls().Command8);
  run(3);
  EXPECT_EQ(dialBox(), "0146290800");
}

}  // namespace
}  // namespace gsm
