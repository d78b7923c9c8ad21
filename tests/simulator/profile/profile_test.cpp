#include "simulator/profile/profile.h"

#include <gtest/gtest.h>

#include "simulator/profile/settings.h"

namespace gsm::simulator {
namespace {

TEST(StoredSettings, ComeBackFromTheirTextFieldByField) {
  for (const ProfileField& field : kProfileFields) {
    StoredSettings settings;
    settings.profile.*field.member =
        settings.profile.*field.member == field.range.least ? field.range.most : field.range.least;
    settings.wind = 1023;
    EXPECT_EQ(parseStoredSettings(toText(settings)), settings) << field.key;
  }
}

TEST(StoredSettings, KeysLeftOutKeepTheirFactoryValues) {
  const auto settings = parseStoredSettings("+CRC=1\r\n\n  S0=3  \n");
  ASSERT_TRUE(settings);
  EXPECT_EQ(settings->profile.callTypes, 1);
  EXPECT_EQ(settings->profile.autoAnswer, 3);
  EXPECT_EQ(settings->profile.speed, 115200);
  EXPECT_EQ(parseStoredSettings(""), StoredSettings{});
}

TEST(StoredSettings, NoiseIsRefusedAsAWhole) {
  for (const char* noise :
       {"hello", "+CRC", "+CRC=", "+CRC=2", "+CRC=1x", "=1", "NONE=1", "+IPR=1234", "+CBST.speed=9",
        "\\N=3", "+IFC.host=1", "+WIND=40000", "+CRC=1\n\x01\xFF"}) {
    EXPECT_EQ(parseStoredSettings(noise), std::nullopt) << noise;
  }
}

TEST(StoredSettings, EveryByteOfATextMayBeAnyOther) {
  const std::string text = toText(StoredSettings{});
  for (std::size_t at = 0; at < text.size(); ++at) {
    for (int value = 0; value < 256; ++value) {
      std::string noisy = text;
      noisy[at] = static_cast<char>(value);
      const auto settings = parseStoredSettings(noisy);
      if (!settings) continue;
      for (const ProfileField& field : kProfileFields) {
        ASSERT_TRUE(field.accepts(settings->profile.*field.member)) << noisy;
      }
    }
  }
}

TEST(Settings, StartFromTheFactoryWhenTheStoreHoldsNoise) {
  MemoryProfileStore store;
  store.save("+CRC=1\nnoise");
  EXPECT_EQ(Settings(store).profile, Profile{});
}

TEST(Settings, AssumedSpeedIsWhereAReloadGoesBackTo) {
  MemoryProfileStore store;
  Settings settings(store);
  settings.assumeSpeed(4800);
  settings.profile.speed = 300;
  settings.reloadProfile();
  EXPECT_EQ(settings.profile.speed, 4800);
  EXPECT_EQ(store.load(), std::nullopt);
}

TEST(Range, ListsPairsAndRanges) {
  EXPECT_EQ((Range{0, 0}.listing()), "(0)");
  EXPECT_EQ((Range{0, 1}.listing()), "(0,1)");
  EXPECT_EQ((Range{0, 2, 2}.listing()), "(0,2)");
  EXPECT_EQ((Range{0, 3}.listing()), "(0-3)");
  EXPECT_FALSE((Range{0, 2, 2}.holds(1)));
}

}  // namespace
}  // namespace gsm::simulator
