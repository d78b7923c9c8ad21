#include "simulator/line/transmitter.h"

#include <gtest/gtest.h>

#include "simulator/line/line_speed.h"
#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

class TransmitterTest : public testing::Test {
 protected:
  VirtualTimeline time_;
  std::string received_;
  Transmitter transmitter_{time_, [this](std::string_view chunk) { received_ += chunk; },
                           Cutter::every(1), FaultChain(1)};
};

TEST_F(TransmitterTest, SendsInTheOrderGiven) {
  transmitter_.send(Source::kReply, "one");
  transmitter_.send(Source::kUnsolicited, "two");
  transmitter_.send(Source::kEcho, "three");
  time_.advance(seconds(1));
  EXPECT_EQ(received_, "onetwothree");
}

TEST_F(TransmitterTest, NeverLetsOneTransmissionIntoAnother) {
  transmitter_.send(Source::kReply, "\r\n+CSQ: 17,0\r\n");
  time_.advance(lineTime(5, 9600));
  transmitter_.send(Source::kUnsolicited, "\r\nRING\r\n");
  time_.advance(seconds(1));
  EXPECT_EQ(received_, "\r\n+CSQ: 17,0\r\n\r\nRING\r\n");
}

TEST_F(TransmitterTest, ReportsWhenTheLastByteHasLeft) {
  std::string atEnd = "not yet";
  transmitter_.send(Source::kReply, "abc", [&] { atEnd = received_; });
  time_.advance(lineTime(2, 9600));
  EXPECT_EQ(atEnd, "not yet");
  time_.advance(lineTime(1, 9600));
  EXPECT_EQ(atEnd, "abc");
}

TEST_F(TransmitterTest, ReportsTheEndOfNothingToo) {
  bool told = false;
  transmitter_.send(Source::kReply, "", [&] { told = true; });
  time_.advance(seconds(0));
  EXPECT_TRUE(told);
}

TEST_F(TransmitterTest, LosesWhatOverflowsButReportsItsEnd) {
  int told = 0;
  for (int i = 0; i < 100; ++i) {
    transmitter_.send(Source::kEcho, std::string(1024, 'x'), [&] { ++told; });
  }
  time_.advance(seconds(200));
  EXPECT_EQ(received_.size(), 64u * 1024);
  EXPECT_EQ(told, 100);
}

TEST_F(TransmitterTest, NewSpeedCountsFromTheNextChunk) {
  transmitter_.send(Source::kReply, "ab");
  transmitter_.setSpeed(300);
  time_.advance(lineTime(1, 9600));
  EXPECT_EQ(received_, "a");
  time_.advance(lineTime(1, 300) - std::chrono::nanoseconds(1));
  EXPECT_EQ(received_, "a");
  time_.advance(std::chrono::nanoseconds(1));
  EXPECT_EQ(received_, "ab");
}

TEST(LineTime, IsTenBitsAByte) {
  EXPECT_EQ(lineTime(960, 9600), seconds(1));
  EXPECT_EQ(lineTime(3, 300), milliseconds(100));
}

}  // namespace
}  // namespace gsm::simulator
