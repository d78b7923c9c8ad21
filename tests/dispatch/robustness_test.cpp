#include <gtest/gtest.h>

#include <array>
#include <random>

#include "panel/form1.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/routing_test.h"
#include "tests/support/seed.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;

// Whatever comes down the line, the program goes on.
class LineNoise : public RoutingTest {
 protected:
  void expectAlive() {
    EXPECT_FALSE(ended());
    EXPECT_EQ(boxes(), Texts{});
    form1().Timer2.Enabled = false;  // a ring among the noise has started it
    run(10);
    EXPECT_EQ(waiting(), 0);
    clearTranscript();
    route(information("+CSQ: 31,99"));
    EXPECT_EQ(signal(), "31,99");
    EXPECT_EQ(transcript(), "");
  }
};

TEST_F(LineNoise, OfEachByteAloneIsKeptInTheTranscript) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string chunk(1, static_cast<char>(byte));
    receive(chunk, byte * 0.01);
    all += chunk;
  }
  run(10);
  EXPECT_EQ(transcript(), all);
  expectAlive();
}

TEST_F(LineNoise, OfRandomBytesForMinutesIsSurvived) {
  std::mt19937 random(newSeed());
  double at = 0;
  while (at < 600) {
    std::string chunk(1 + random() % 40, ' ');
    for (char& byte : chunk) byte = static_cast<char>(random() & 0xFFU);
    receive(chunk, at);
    at += static_cast<double>(random() % 3000) / 1000;
  }
  run(620);
  expectAlive();
}

TEST_F(LineNoise, OfKeysAndScrapsOfRepliesForMinutesIsSurvived) {
  static constexpr std::array kScraps = {
      "RING",  "+CREG:", "+CSQ:",   "+VGR:",     "+VGT:",    "+SIDET:",    "+ECHO:",
      "CMTI",  "+CDS:",  "BUSY",    "NO ANSWER", "ATI0",     "ATI3",       "NO CARRIER",
      "OK",    "ERROR",  "AT+VGR=", "AT+VGT=",   "AT+ECHO=", "AT+SIDET=",  "AT+CSCA?",
      "+CCWA", "\"",     ",",       "\r",        "\r\n",     " ",          "0",
      "1",     "31",     "99",      "-1",        "1e9",      "2147483648", "\xFF"};
  std::mt19937 random(newSeed());
  double at = 0;
  while (at < 600) {
    std::string chunk;
    for (auto left = random() % 12; left > 0; --left) chunk += kScraps[random() % kScraps.size()];
    receive(chunk, at);
    at += static_cast<double>(random() % 3000) / 1000;
  }
  run(640);
  expectAlive();
}

TEST_F(LineNoise, InOneChunkOfAMegabyteIsSurvived) {
  std::mt19937 random(newSeed());
  std::string chunk(1'000'000, ' ');
  for (char& byte : chunk) byte = static_cast<char>(random() & 0xFFU);
  route(chunk);
  expectAlive();
}

}  // namespace
}  // namespace gsm
