#include <gtest/gtest.h>

#include "tests/module/makers_features_test.h"

namespace gsm {
namespace {

class Indicators : public MakersFeaturesTest {
 protected:
  void SetUp() override {
    MakersFeaturesTest::SetUp();
    openWindow();
  }
  /// The user presses the button, and the modem tells `fields`.
  void read(const std::string& fields) {
    reply("AT+CIND?", information("+CIND: " + fields));
    press(form().Command6);
    sent();
  }
};

TEST_F(Indicators, AreReadAtOnceWhenThePageComesUp) {
  reply("AT+CIND?", information("+CIND: 5,3,1,0,0,0,0"));
  const std::string words =
      "BatteryChargeLevel->5,   signal level-3,   service Enabled,   No New Message,   "
      "No New Call,   Roam Disabled,   SMS Not FULL";
  closeWindow();
  openWindow();
  EXPECT_EQ(indicators(), words);
  inPanel([this] { form().Label14.Caption = ""; });
  press(form().Command1);
  EXPECT_EQ(indicators(), words);
}

TEST_F(Indicators, AreReadAgainOnEachPress) {
  for (int i = 0; i < 3; ++i) {
    click(form().Command6);
    EXPECT_EQ(indicators(), kWaiting);
    settle();
    EXPECT_EQ(sent(), Texts{"AT+CIND?\r"});
  }
}

struct IndicatorRow {
  std::string name;
  std::string fields;
  std::string shown;
};

class IndicatorReply : public Indicators, public ::testing::WithParamInterface<IndicatorRow> {};

TEST_P(IndicatorReply, IsShownInWords) {
  read(GetParam().fields);
  EXPECT_EQ(indicators(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

// The reply of a modem whose indicator number `place` (from 0) has this value, and its words.
IndicatorRow placed(int place, const std::string& name, const std::string& value,
                    const std::string& words) {
  Texts fields = {"0", "0", "0", "0", "0", "0", "0"};
  Texts shown = {"BatteryChargeLevel->0", "signal level-0", "service disabled", "No New Message",
                 "No New Call",           "Roam Disabled",  "SMS Not FULL"};
  fields[static_cast<std::size_t>(place)] = value;
  shown[static_cast<std::size_t>(place)] = words;
  IndicatorRow row{.name = name, .fields = fields[0], .shown = shown[0]};
  for (std::size_t i = 1; i < fields.size(); ++i) {
    row.fields += "," + fields[i];
    row.shown += ",   " + shown[i];
  }
  return row;
}

INSTANTIATE_TEST_SUITE_P(
    Is, IndicatorReply,
    ::testing::Values(
        placed(0, "AllZero", "0", "BatteryChargeLevel->0"),
        placed(0, "Battery1", "1", "BatteryChargeLevel->1"),
        placed(0, "Battery2", "2", "BatteryChargeLevel->2"),
        placed(0, "Battery3", "3", "BatteryChargeLevel->3"),
        placed(0, "Battery4", "4", "BatteryChargeLevel->4"),
        placed(0, "Battery5", "5", "BatteryChargeLevel->5"), placed(0, "Battery6", "6", ""),
        placed(1, "Signal1", "1", "signal level-1"), placed(1, "Signal2", "2", "signal level-2"),
        placed(1, "Signal3", "3", "signal level-3"), placed(1, "Signal4", "4", "signal level-4"),
        placed(1, "Signal5", "5", "signal level-5"), placed(1, "Signal6", "6", ""),
        placed(1, "Signal9", "9", ""), placed(2, "Service", "1", "service Enabled"),
        placed(2, "Service2", "2", ""), placed(3, "Message", "1", "Received New Message"),
        placed(3, "Message2", "2", ""), placed(4, "Call", "1", "Call Received"),
        placed(4, "Call2", "2", ""), placed(5, "Roaming", "1", "Roam Enabled"),
        placed(5, "Roaming2", "2", ""), placed(6, "Full", "1", "SMS  FULL"),
        placed(6, "Full2", "2", "")),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    OfAnotherKindIs, IndicatorReply,
    ::testing::Values(placed(0, "EmptyFirst", "", ""), placed(3, "EmptyInTheMiddle", "", ""),
                      placed(6, "EmptyLast", "", ""), placed(1, "BlankBefore", " 3", ""),
                      placed(1, "BlankBehind", "3 ", ""), placed(0, "LeadingZero", "05", ""),
                      placed(2, "Quoted", "\"1\"", ""), placed(4, "Word", "one", ""),
                      placed(6, "BlankBeforeTheLast", " 1", ""),
                      placed(6, "OnlyTheFirstCharacterOfTheLast", "12", "SMS  FULL"),
                      placed(6, "AnEighth", "1,5", "SMS  FULL"),
                      placed(6, "AnEighthAfterAnEmptyOne", ",5", ""),
                      placed(6, "TwelveFields", "0,1,1,1,1,1", "SMS Not FULL")),
    RowName());

TEST_F(Indicators, WithoutEchoAreReadTheSame) {
  replyWithoutEcho("AT+CIND?", information("+CIND: 1,1,1,1,1,1,1"));
  press(form().Command6);
  EXPECT_EQ(indicators(),
            "BatteryChargeLevel->1,   signal level-1,   service Enabled,   Received New Message,   "
            "Call Received,   Roam Enabled,   SMS  FULL");
}

// The first character behind the colon is taken for a blank whatever it is.
TEST_F(Indicators, WithoutABlankLoseTheFirst) {
  reply("AT+CIND?", information("+CIND:5,3,1,0,0,0,0"));
  press(form().Command6);
  EXPECT_EQ(indicators(),
            ",   signal level-3,   service Enabled,   No New Message,   No New Call,   "
            "Roam Disabled,   SMS Not FULL");
}

struct BrokenIndicatorsRow {
  std::string name;
  std::string reply;
};

class BrokenIndicators : public Indicators,
                         public ::testing::WithParamInterface<BrokenIndicatorsRow> {};

TEST_P(BrokenIndicators, KeepTheWaitAndTheTranscript) {
  reply("AT+CIND?", GetParam().reply);
  press(form().Command6);
  EXPECT_EQ(indicators(), kWaiting);
  EXPECT_EQ(transcript(), "AT+CIND?\r" + GetParam().reply);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, BrokenIndicators,
    ::testing::Values(
        BrokenIndicatorsRow{.name = "OneField", .reply = information("+CIND: 5")},
        BrokenIndicatorsRow{.name = "TwoFields", .reply = information("+CIND: 5,3")},
        BrokenIndicatorsRow{.name = "ThreeFields", .reply = information("+CIND: 5,3,1")},
        BrokenIndicatorsRow{.name = "FourFields", .reply = information("+CIND: 5,3,1,0")},
        BrokenIndicatorsRow{.name = "FiveFields", .reply = information("+CIND: 5,3,1,0,0")},
        BrokenIndicatorsRow{.name = "SixFields", .reply = information("+CIND: 5,3,1,0,0,0")},
        BrokenIndicatorsRow{.name = "NoField", .reply = information("+CIND: ")},
        BrokenIndicatorsRow{.name = "NoOk", .reply = "\r\n+CIND: 5,3,1,0,0,0,0\r\n"},
        BrokenIndicatorsRow{.name = "TheKeyAlone", .reply = "\r\n+CIND:"},
        BrokenIndicatorsRow{.name = "OkInFront",
                            .reply = "\r\nOK\r\n+CIND: 5,33333333333333333,1,0,0,0,0\r\n"}),
    RowName());

TEST_F(Indicators, AnErrorIsOfTheModemsKind) {
  reply("AT+CIND?", kError);
  press(form().Command6);
  EXPECT_EQ(indicators(), "Works Only For Sendari 100");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(Indicators, WithBothWordsTheReplyIsShown) {
  reply("AT+CIND?", "\r\nERROR\r\n" + information("+CIND: 5,3,1,0,0,0,0"));
  press(form().Command6);
  EXPECT_TRUE(indicators().starts_with("BatteryChargeLevel->5,   signal level-3,"));
  EXPECT_EQ(transcript(), "");
}

TEST_F(Indicators, AnErrorAndABrokenReplyLeaveTheWordsOfTheError) {
  reply("AT+CIND?", "\r\n+CIND: 5,3\r\n\r\nERROR\r\n");
  press(form().Command6);
  EXPECT_EQ(indicators(), "Works Only For Sendari 100");
  EXPECT_NE(transcript(), "");
}

TEST_F(Indicators, AnOkAloneKeepsTheWait) {
  reply("AT+CIND?", kOk);
  press(form().Command6);
  EXPECT_EQ(indicators(), kWaiting);
  EXPECT_EQ(transcript(), "");
}

TEST_F(Indicators, ASilentModemKeepsTheWaitAndTheTranscriptIsCleared) {
  leaveInTranscript("\r\n+CIND: 5,3,1,0,0,0,0\r\n\r\nOK\r\nERROR\r\n");
  click(form().Command6);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(indicators(), kWaiting);
  run(1);
  receive("nothing of that kind");
  settle();
  EXPECT_EQ(indicators(), kWaiting);
  EXPECT_EQ(transcript(), "");
}

TEST_F(Indicators, ASecondIsWaitedForAtLeast) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  click(form().Command6);
  run(0.99);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
}

TEST_F(Indicators, AClosedPortKeepsTheWait) {
  closePort();
  inPanel([this] { form().Label14.Caption = "old"; });
  press(form().Command6);
  EXPECT_EQ(indicators(), kWaiting);
  expectAtRest();
}

TEST_F(Indicators, TouchNoOtherLabel) {
  inPanel([this] {
    form().Label1.Caption = "Changes SuccessFul-WIND";
    form().Label5.Caption = "Network Lost Indication";
  });
  read("5,3,1,0,0,0,0");
  EXPECT_EQ(caption(form().Label1), "Changes SuccessFul-WIND");
  EXPECT_EQ(caption(form().Label5), "Network Lost Indication");
}

}  // namespace
}  // namespace gsm
