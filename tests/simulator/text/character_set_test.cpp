#include "simulator/text/character_set.h"

#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

constexpr int kFactorySet = 1;

TEST(CharacterSet, HexadecimalShowsTheCodesOfTheGsmAlphabet) {
  EXPECT_EQ(encoded("Anna", kHexadecimalSet), "416E6E61");
  EXPECT_EQ(encoded("a@$_", kHexadecimalSet), "61000211");
  EXPECT_EQ(encoded("[~", kHexadecimalSet), "1B3C1B3D");
  EXPECT_EQ(encoded("J\x81rg", kHexadecimalSet), "4A7E7267");
  EXPECT_EQ(encoded("", kHexadecimalSet), "");
}

TEST(CharacterSet, HexadecimalComesBack) {
  std::string all;
  for (char byte = ' '; byte != '\x7F'; ++byte) all += byte;
  EXPECT_EQ(decoded(encoded(all, kHexadecimalSet), kHexadecimalSet), all);
  EXPECT_EQ(decoded("416e6E61", kHexadecimalSet), "Anna");
}

TEST(CharacterSet, EveryCodeOfTheGsmAlphabetComesBack) {
  for (int code = 0; code < 128; ++code) {
    // Of those that the factory's set has no byte for, these look like another letter's byte.
    if (code == '$' || code == '@' || code == '_') continue;
    const std::string codes(1, static_cast<char>(code));
    EXPECT_EQ(toGsmAlphabet(fromGsmAlphabet(codes)), codes) << code;
  }
  EXPECT_EQ(toGsmAlphabet("\x9C\x90\xA5"), "\x01\x1F]");
  EXPECT_EQ(fromGsmAlphabet("\x15\x7D"), "\xEA\xA4");
}

TEST(CharacterSet, OddOrOtherDigitsAreNone) {
  for (const char* bad : {"4", "416", "4G", "+1", " 1", "Anna"}) {
    EXPECT_EQ(decoded(bad, kHexadecimalSet), std::nullopt) << bad;
  }
}

TEST(CharacterSet, OthersLeaveATextAsItIs) {
  EXPECT_EQ(encoded("a@[\x81", kFactorySet), "a@[\x81");
  EXPECT_EQ(decoded("41", kFactorySet), "41");
}

TEST(CharacterSet, NamesOfThePhoneBookFollowIt) {
  Bench bench({.phoneBook = {{1, {"112", "Anna"}}}});
  bench.ask("AT+CMEE=1;+CSCS=\"HEX\"");
  EXPECT_EQ(bench.ask("AT+CPBR=1"), withOk("+CPBR: 1,\"112\",129,\"416E6E61\""));
  EXPECT_EQ(bench.ask("AT+CPBW=2,\"113\",129,\"42656E00\""), kOk);
  EXPECT_EQ(bench.ask("AT+CPBW=3,\"113\",129,\"Ben\""), "\r\n+CME ERROR: 25\r\n");
  bench.ask("AT+CSCS=\"PCCP437\"");
  EXPECT_EQ(bench.ask("AT+CPBR=2"), withOk("+CPBR: 2,\"113\",129,\"Ben@\""));
}

}  // namespace
}  // namespace gsm::simulator
