#include "simulator/text/phone_number.h"

#include <gtest/gtest.h>

namespace gsm::simulator {
namespace {

TEST(PhoneNumber, PlusDecidesTheType) {
  EXPECT_EQ(numberFields("+33639981201"), "\"+33639981201\",145");
  EXPECT_EQ(numberFields("0199001234"), "\"0199001234\",129");
  EXPECT_EQ(numberFields(""), "\"\",129");
}

TEST(PhoneNumber, ConsistsOfWhatAKeypadHas) {
  for (const char* good : {"1", "+1", "*100#", "0123456789"}) EXPECT_TRUE(isPhoneNumber(good));
  for (const char* bad : {"", "+", "++1", "1+1", "12a", " 1", "1;", "\"1\""}) {
    EXPECT_FALSE(isPhoneNumber(bad)) << bad;
  }
}

TEST(PhoneNumber, PlusDoesntCountTowardsTheLength) {
  EXPECT_EQ(lengthOfNumber("+123"), 3u);
  EXPECT_EQ(lengthOfNumber("123"), 3u);
  EXPECT_EQ(lengthOfNumber(""), 0u);
}

}  // namespace
}  // namespace gsm::simulator
