#include "simulator/messages/pdu.h"

#include <gtest/gtest.h>

#include <random>

// Messages as they travel, beside the octets that the standard's fields make.
namespace gsm::simulator {
namespace {

constexpr const char* kPduTime = "99/03/29,15:16:59+08";

TEST(Pdu, DeliveryHasTheSenderTheTimeAndTheText) {
  EXPECT_EQ(deliveryPdu("+27381000015", "+27838890001", kPduTime, "hellohello"),
            (Pdu{"07917283010010F5"
                 "04"
                 "0B917238880900F1"
                 "0000"
                 "99309251619580"
                 "0AE8329BFD4697D9EC37",
                 28}));
}

TEST(Pdu, SubmissionHasTheReceiverAndTheText) {
  EXPECT_EQ(submissionPdu("", "+46708251358", "hellohello"), (Pdu{"00"
                                                                  "1100"
                                                                  "0B916407281553F8"
                                                                  "0000A7"
                                                                  "0AE8329BFD4697D9EC37",
                                                                  23}));
}

TEST(Pdu, NumbersMayBePlainOrEmptyAndHaveStarsAndHashes) {
  EXPECT_EQ(submissionPdu("123", "*9#", "").digits,
            "0381"
            "21F3"
            "1100"
            "0381"
            "9AFB"
            "0000A700");
  EXPECT_EQ(submissionPdu("", "", "").digits,
            "0011000081"
            "0000A700");
}

struct Time {
  const char* told;
  const char* octets;
};

TEST(Pdu, TimeHasItsZoneAndIsZerosWhenItIsNone) {
  constexpr Time kTimes[] = {
      {"26/01/31,18:22:11+04", "62101381221140"}, {"26/01/31,18:22:11-04", "62101381221148"},
      {"26/01/31,18:22:11-32", "6210138122112B"}, {"26/01/31,18:22:11+00", "62101381221100"},
      {"26/01/31,18:22:11", "00000000000000"},    {"26/01/31 18:22:11+04", "00000000000000"},
      {"2x/01/31,18:22:11+04", "00000000000000"}, {"later", "00000000000000"},
      {"26/01/31,18:22:11+041", "00000000000000"}};
  for (const auto& [told, octets] : kTimes) {
    EXPECT_EQ(deliveryPdu("", "1", told, "").digits, "00040181F10000" + std::string(octets) + "00")
        << told;
  }
}

struct Text {
  const char* bytes;
  const char* octets;  // with their count in front
};

TEST(Pdu, TextIsInTheGsmAlphabet) {
  constexpr Text kTexts[] = {{"a{b", "04E10D4A0C"},  // the brace has two codes
                             {"@", "0100"},
                             {"\x82", "0105"},  // e acute
                             {"\xFE", "013F"},  // no letter: a question mark
                             {"a\r\n", "03E18602"}};
  for (const auto& [bytes, octets] : kTexts) {
    EXPECT_EQ(submissionPdu("", "", bytes).digits, "00110000810000A7" + std::string(octets))
        << bytes;
  }
}

TEST(Pdu, TextIsCutWhereTheMessageIsFull) {
  const std::string full = submissionPdu("", "", std::string(160, 'a')).digits;
  EXPECT_EQ(submissionPdu("", "", std::string(160, 'a') + "b").digits, full);
  EXPECT_EQ(full.substr(16, 2), "A0");
  const std::string almost = submissionPdu("", "", std::string(159, 'a')).digits;
  EXPECT_EQ(submissionPdu("", "", std::string(159, 'a') + "{").digits, almost)
      << "half a letter is none";
}

TEST(Pdu, ReportHasTheReferenceBothTimesAndTheStatus) {
  EXPECT_EQ(reportPdu("", {.reference = 160,
                           .number = "+33639981201",
                           .sent = "26/01/31,12:00:00+04",
                           .arrived = "26/01/31,12:00:05+04",
                           .status = 70}),
            (Pdu{"00"
                 "06A0"
                 "0B913336991802F1"
                 "62101321000040"
                 "62101321005040"
                 "46",
                 25}));
}

TEST(Pdu, PageIsFilledUp) {
  const Pdu page = pagePdu(258, 50, "Hello");
  EXPECT_EQ(page.length, 88u);
  EXPECT_EQ(page.digits.size(), 176u);
  EXPECT_TRUE(
      page.digits.starts_with("0102"
                              "0032"
                              "0111"
                              "C8329BFD6E341A8D46A3D168"))
      << page.digits;
  EXPECT_TRUE(page.digits.ends_with("341A8D46A3D100")) << page.digits;
  EXPECT_EQ(pagePdu(258, 50, std::string(100, 'a')).length, 88u);
}

// A submission as the digits with its length counted.
std::optional<Submission> read(const std::string& digits, int centre = 0) {
  return readSubmission(digits, static_cast<int>(digits.size() / 2) - 1 - centre);
}

TEST(PduReading, TakesWhatIsWritten) {
  std::mt19937 random(7);
  for (std::size_t count = 0; count <= 160; ++count) {
    std::string text;
    while (text.size() < count) text += static_cast<char>('a' + random() % 26);
    const Pdu pdu = submissionPdu("+33639980000", "+4670*#1", text);
    const auto message = readSubmission(pdu.digits, static_cast<int>(pdu.length));
    ASSERT_TRUE(message) << count;
    EXPECT_EQ(message->number, "+4670*#1");
    EXPECT_EQ(message->text, text);
    EXPECT_TRUE(message->namesCentre);
    EXPECT_FALSE(message->wantsReport);
  }
}

struct Form {
  const char* digits;
  const char* text;
  bool wantsReport = false;
};

TEST(PduReading, TakesEveryFormOfASubmission) {
  constexpr Form kForms[] = {{"0001000281100000"
                              "0149",
                              "I"},
                             {"0031000281100000A7"
                              "0149",
                              "I", true},
                             {"0019000281100000"
                              "62101381221140"
                              "0149",
                              "I"},
                             {"0009000281100000"
                              "00000000000000"
                              "0149",
                              "I"},
                             {"000100028110"
                              "7F00"
                              "0149",
                              "I"},
                             {"000100028110"
                              "0011"
                              "0149",
                              "I"},
                             {"000100028110"
                              "00F1"
                              "0149",
                              "I"},
                             {"00a1000281100000"
                              "0149",
                              "I", true},
                             {"0001000281100000"
                              "00",
                              ""},
                             {"0001000281100000"
                              "021B65",
                              "\x1B"
                              "J"}};
  for (const auto& [digits, text, wantsReport] : kForms) {
    const auto message = read(digits);
    ASSERT_TRUE(message) << digits;
    EXPECT_EQ(message->number, "01") << digits;
    EXPECT_EQ(message->text, text) << digits;
    EXPECT_EQ(message->wantsReport, wantsReport) << digits;
    EXPECT_FALSE(message->namesCentre) << digits;
  }
  EXPECT_EQ(read("0001001481103254769810325476980000"
                 "0149")
                ->number,
            "01234567890123456789");
  const auto message = read("0001000081000000");
  ASSERT_TRUE(message);
  EXPECT_EQ(message->number, "");
  EXPECT_EQ(read("00010000910000"
                 "00")
                ->number,
            "")
      << "a plus alone is no number";
}

TEST(PduReading, RefusesWhatIsNoSubmissionOrNotPlainText) {
  constexpr const char* kBad[] = {
      "",
      "00",
      "0x01000281100000"
      "0149",
      "0001000281100000"
      "014",
      "0000000281100000"
      "0149",  // a delivery
      "0002000281100000"
      "0149",  // a report
      "0041000281100000"
      "0149",  // a header in the text
      "000100028110"
      "0004"
      "0149",  // octets
      "000100028110"
      "0008"
      "020049",  // wide letters
      "000100028110"
      "0020"
      "0149",  // packed tighter
      "000100028110"
      "00F5"
      "0149",  // octets of a class
      "000100028110"
      "0080"
      "0149",  // nobody knows
      "00010002D0100000"
      "0149",  // letters as number
      "0001000281C00000"
      "0149",  // a digit that no keypad has
      "0001000281F00000"
      "0149",  // a digit missing
      "000100158110325476981032547698F10000"
      "0149",  // 21 digits
      "0001000281100000"
      "0249",  // fewer octets than codes
      "0001000281100000"
      "014949",  // more
      "0001000281100000",
      "0C1122334455667788990011220001000281100000"
      "0149",  // too long a centre
  };
  for (const char* digits : kBad) {
    const std::string text = digits;
    const int octets = static_cast<int>(text.size() / 2);
    for (const int centre : {0, 12}) {
      EXPECT_FALSE(readSubmission(text, octets - 1 - centre)) << digits;
    }
  }
  std::string overlong = "0001000281100000A1";
  overlong.append(282, '0');
  EXPECT_FALSE(read(overlong)) << "161 codes";
}

TEST(PduReading, RefusesAnotherLengthThanTold) {
  const std::string digits =
      "07917283010010F50001000281100000"
      "0149";
  const std::string good =
      "07917283010010F501000281100000"
      "0149";
  EXPECT_TRUE(read(good, 7));
  EXPECT_FALSE(read(good, 6));
  EXPECT_FALSE(read(good, 8));
  EXPECT_FALSE(readSubmission(good, -1));
  EXPECT_FALSE(read(digits, 7));
}

// Nothing that is cut short is taken, and nothing crashes.
TEST(PduReading, RefusesEveryBeginning) {
  const std::string digits = submissionPdu("+33639980000", "0123", "Hello you").digits;
  for (std::size_t size = 0; size < digits.size(); size += 2) {
    EXPECT_FALSE(read(digits.substr(0, size), 7)) << size;
    EXPECT_FALSE(read(digits.substr(0, size), 0)) << size;
  }
}

TEST(PduReading, StandsNoise) {
  std::mt19937 random(11);
  for (int round = 0; round < 20000; ++round) {
    std::string digits = submissionPdu("", "0123", "Hello you").digits;
    for (int spoilt = 0; spoilt < 3; ++spoilt) {
      digits[random() % digits.size()] = "0123456789ABCDEF"[random() % 16];
    }
    const auto message = read(digits);
    EXPECT_TRUE(!message || message->text.size() <= 160) << digits;
  }
}

}  // namespace
}  // namespace gsm::simulator
