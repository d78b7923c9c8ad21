#include "platform/line_record.h"

#include <sstream>

#include "tests/support/platform_fixture.h"

namespace gsm {
namespace {

const std::string kBegin = "{\"record\":1,\"started\":\"01/03/2026 10:00:00\"}\n";

class LineRecordTest : public PlatformTest {
 protected:
  /// What the record has gained since the last call.
  std::string gained() {
    const std::string all = file_.str();
    const std::string text = all.substr(seen_);
    seen_ = all.size();
    return text;
  }

  std::ostringstream file_;

 private:
  std::size_t seen_ = 0;
};

TEST_F(LineRecordTest, BeginsWithItsKindAndTheTimeOfDay) {
  const LineRecord record(file_, time());
  EXPECT_EQ(gained(), kBegin);
}

TEST_F(LineRecordTest, TellsWhatHappensWithTheTimeSinceItsBeginning) {
  run(5);
  LineRecord record(file_, time());
  gained();
  run(0.25);
  record.opened(3, {.baud = 9600}, Handshaking::none);
  record.sent("AT\r");
  run(12.000000001);
  record.received("AT\r\r\nOK\r\n");
  record.event(CommEvent::cd);
  record.configured({115200, Parity::even, 7, StopBits::oneAndHalf}, Handshaking::rts);
  record.closed(3);
  EXPECT_EQ(gained(),
            "{\"at\":0.250000000,\"open\":3,\"settings\":\"9600,N,8,1\",\"handshaking\":0}\n"
            "{\"at\":0.250000000,\"out\":\"AT\\r\"}\n"
            "{\"at\":12.250000001,\"in\":\"AT\\r\\r\\nOK\\r\\n\"}\n"
            "{\"at\":12.250000001,\"event\":5}\n"
            "{\"at\":12.250000001,\"configured\":\"115200,E,7,1.5\",\"handshaking\":2}\n"
            "{\"at\":12.250000001,\"close\":3}\n");
}

TEST_F(LineRecordTest, TellsWhyAnOpeningOrAWriteFailed) {
  LineRecord record(file_, time());
  gained();
  record.opened(4, {}, Handshaking::none, "Port already open");
  record.sent("AT\r", "Device I/O error");
  EXPECT_EQ(gained(),
            "{\"at\":0.000000000,\"open\":4,\"settings\":\"9600,N,8,1\",\"handshaking\":0,"
            "\"failed\":\"Port already open\"}\n"
            "{\"at\":0.000000000,\"out\":\"AT\\r\",\"failed\":\"Device I/O error\"}\n");
}

TEST_F(LineRecordTest, HasAnyByteAsTheCharacterOfTheCodePage) {
  LineRecord record(file_, time());
  gained();
  record.received({"\0\x1A\"\\\x80\xE9\x81\x7F", 8});
  EXPECT_EQ(gained(),
            "{\"at\":0.000000000,\"in\":\"\\u0000\\u001a\\\"\\\\\u20AC\u00E9\u0081\u007F\"}\n");
}

TEST_F(LineRecordTest, BlotsSecretsOutInBothDirectionsAndSaysWhere) {
  LineRecord record(file_, time());
  gained();
  record.sent("AT+CPIN=1234\r");
  record.received("AT+CPIN=12");
  record.received("34\r\r\nERROR\r\n");
  EXPECT_EQ(gained(),
            "{\"at\":0.000000000,\"out\":\"AT+CPIN=****\\r\",\"blotted\":[[8,4]]}\n"
            "{\"at\":0.000000000,\"in\":\"AT+CPIN=**\",\"blotted\":[[8,2]]}\n"
            "{\"at\":0.000000000,\"in\":\"**\\r\\r\\nERROR\\r\\n\",\"blotted\":[[0,2]]}\n");
}

TEST_F(LineRecordTest, ASecretThatWasCutOffByTheClosingOfThePortHidesNothingAfterIt) {
  LineRecord record(file_, time());
  record.received("AT+CPIN=");
  record.closed(3);
  record.opened(3, {}, Handshaking::none);
  gained();
  record.received("RING\r\n");
  EXPECT_EQ(gained(), "{\"at\":0.000000000,\"in\":\"RING\\r\\n\"}\n");
}

TEST_F(LineRecordTest, NeverGetsLargerThanItMayAndSaysThatItIsFull) {
  constexpr std::size_t kFullSize = 14;
  for (std::size_t most = 0; most < 500; ++most) {
    std::ostringstream file;
    LineRecord record(file, time(), most);
    for (int i = 0; i < 20; ++i) record.received("\r\nRING\r\n");
    EXPECT_LE(file.str().size(), most);
    if (most >= kFullSize) {
      EXPECT_TRUE(file.str().ends_with("{\"full\":true}\n")) << most;
    }
  }
}

TEST_F(LineRecordTest, WhatComesWhenItIsFullLeavesNoGap) {
  LineRecord record(file_, time(), 150);
  gained();
  record.received(std::string(200, 'a'));
  EXPECT_EQ(gained(), "{\"full\":true}\n");
  record.received("b");
  EXPECT_EQ(gained(), "");
}

}  // namespace
}  // namespace gsm
