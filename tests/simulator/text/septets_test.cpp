#include "simulator/text/septets.h"

#include <gtest/gtest.h>

#include <random>

#include "simulator/text/hexadecimal.h"

namespace gsm::simulator {
namespace {

struct Packing {
  const char* codes;
  const char* octets;
};

TEST(Septets, LieInTheOctetsFromTheLowestBitUp) {
  constexpr Packing kPackings[] = {
      {"", ""},
      {"h", "68"},
      {"he", "E832"},
      {"hellohe", "E8329BFD469701"},
      {"hellohel", "E8329BFD4697D9"},
      {"hellohello", "E8329BFD4697D9EC37"},
      {"\x7F\x7F\x7F\x7F\x7F\x7F\x7F\x7F", "FFFFFFFFFFFFFF"},
  };
  for (const auto& [codes, octets] : kPackings) {
    EXPECT_EQ(toHexadecimal(packed(codes)), octets) << codes;
  }
}

TEST(Septets, EighthBitIsCutOff) { EXPECT_EQ(packed("\xE8\xE5"), packed("he")); }

TEST(Septets, ComeBackAtEveryLength) {
  std::mt19937 random(1);
  for (std::size_t count = 0; count <= 160; ++count) {
    std::string codes;
    while (codes.size() < count) codes += static_cast<char>(random() % 128);
    EXPECT_EQ(packed(codes).size(), octetsFor(count));
    EXPECT_EQ(unpacked(packed(codes), count), codes) << count;
  }
  EXPECT_EQ(octetsFor(160), 140u);
}

TEST(Septets, WithoutBitsAreLeftOut) {
  EXPECT_EQ(unpacked("", 3), "");
  EXPECT_EQ(unpacked(packed("hello"), 9).size(), 5u);
}

}  // namespace
}  // namespace gsm::simulator
