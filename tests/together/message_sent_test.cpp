// When a message counts as sent: six seconds behind its text, which goes out one second behind the
// number, or two seconds past the last of the modem's prompt, whichever is later.

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "simulator/host/simulated_modem.h"
#include "tests/sms/message_window_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

class MessageSent : public MessageWindowTest {
 protected:
  void SetUp() override {
    MessageWindowTest::SetUp();
    modem_ = std::make_unique<SimulatedModem>(machine().time, machine().line,
                                              simulator::ModemOptions{.speed = 9600});
    inPanel([this] {
      form1().modem.exchange("AT+CMGF=1");
      form1().Text1.clear();
    });
    settle();
    sent();
    watch_.emplace(window().Label4, [this](PropertyId) {
      if (window().Label4.Caption.peek().starts_with("Message Sent")) sentAt_ = now();
    });
    // A time of day that single precision can tell to the thousandth of a second.
    run(20 - now());
  }
  void TearDown() override {
    watch_.reset();
    world().time().abandon();
    modem_.reset();
  }

  // Sends a message of 160 characters. Instants are told from the click on.
  void send() {
    compose("0146290800", std::string(160, 'x'));
    const double begin = now();
    press(window().Command1);
    for (const auto& write : sentWithTimes()) writtenAt_.push_back(toSeconds(write.at) - begin);
    if (sentAt_) *sentAt_ -= begin;
  }

  std::vector<double> writtenAt_;
  std::optional<double> sentAt_;

 private:
  std::unique_ptr<SimulatedModem> modem_;
  std::optional<PropertyWatch> watch_;
};

// The line at 9600 baud and the modem take 90 milliseconds until the prompt is there.
TEST_F(MessageSent, LastsAsLongAsTheTwoWaitsOnTheSimulatedModemsLine) {
  send();
  ASSERT_EQ(writtenAt_.size(), 2u);
  EXPECT_EQ(writtenAt_[0], 0);
  EXPECT_NEAR(writtenAt_[1], 2.090, 0.001);
  ASSERT_TRUE(sentAt_) << window().Label4.Caption.peek();
  EXPECT_NEAR(*sentAt_ - writtenAt_[1], 6, 0.001);
}

}  // namespace
}  // namespace gsm
