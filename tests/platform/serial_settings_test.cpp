#include "platform/serial_settings.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace gsm {
namespace {

TEST(SerialSettings, EverySpeedThatALineCanHaveIsRead) {
  for (const int speed : {110, 300, 600, 1200, 2400, 4800, 9600, 14400, 19200, 28800, 38400, 56000,
                          57600, 115200, 128000, 256000}) {
    const auto line = parseLineSettings(std::to_string(speed) + ",n,8,1");
    ASSERT_TRUE(line) << speed;
    EXPECT_EQ(line->baud, speed);
  }
}

TEST(SerialSettings, EveryParityIsReadInEitherCase) {
  const std::vector<std::pair<std::string, Parity>> parities = {
      {"n", Parity::none},  {"N", Parity::none}, {"e", Parity::even}, {"E", Parity::even},
      {"o", Parity::odd},   {"O", Parity::odd},  {"m", Parity::mark}, {"M", Parity::mark},
      {"s", Parity::space}, {"S", Parity::space}};
  for (const auto& [letter, parity] : parities) {
    const auto line = parseLineSettings("9600," + letter + ",8,1");
    ASSERT_TRUE(line) << letter;
    EXPECT_EQ(line->parity, parity) << letter;
  }
}

TEST(SerialSettings, DataBitsAreFourToEight) {
  for (int bits = 0; bits <= 10; ++bits) {
    const auto line = parseLineSettings("9600,n," + std::to_string(bits) + ",1");
    EXPECT_EQ(line.has_value(), bits >= 4 && bits <= 8) << bits;
    EXPECT_EQ(line ? line->dataBits : bits, bits);
  }
}

TEST(SerialSettings, StopBitsAreOneOneAndAHalfOrTwo) {
  EXPECT_EQ(parseLineSettings("9600,n,8,1")->stopBits, StopBits::one);
  EXPECT_EQ(parseLineSettings("9600,n,8,1.5")->stopBits, StopBits::oneAndHalf);
  EXPECT_EQ(parseLineSettings("9600,n,8,2")->stopBits, StopBits::two);
}

TEST(SerialSettings, BlanksAroundTheFieldsDoNotMatter) {
  EXPECT_EQ(parseLineSettings(" 9600 , n , 8 , 1 "), LineSettings{});
}

TEST(SerialSettings, WhatNoLineCanHaveIsRefused) {
  for (const char* text : {"",
                           " ",
                           ",",
                           ",,,",
                           "9600",
                           "9600,n",
                           "9600,n,8",
                           "9600,n,8,",
                           "9600,n,8,1,",
                           "9600,n,8,1,1",
                           ",n,8,1",
                           "9600,,8,1",
                           "9600,n,,1",
                           "0,n,8,1",
                           "9601,n,8,1",
                           "-9600,n,8,1",
                           "09600,n,8,1",
                           "9600.0,n,8,1",
                           "96 00,n,8,1",
                           "9600,x,8,1",
                           "9600,none,8,1",
                           "9600,n,8,0",
                           "9600,n,8,3",
                           "9600,n,8,1.50",
                           "9600;n;8;1",
                           "9600 n 8 1",
                           "9600,n,8,1\r",
                           "9600,n,8,1\n",
                           "\t9600,n,8,1",
                           "nonsense",
                           "9600,8,n,1",
                           "4294976896,n,8,1"}) {
    EXPECT_FALSE(parseLineSettings(text)) << '"' << text << '"';
  }
  EXPECT_FALSE(parseLineSettings(std::string("9600,n,8,1\0", 11)));
  EXPECT_FALSE(parseLineSettings(std::string(100'000, ',')));
}

}  // namespace
}  // namespace gsm
