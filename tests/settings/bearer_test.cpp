#include <gtest/gtest.h>

#include "tests/settings/data_test.h"

namespace gsm {
namespace {

class Bearer : public DataTest {
 protected:
  void SetUp() override {
    DataTest::SetUp();
    openWindow();
  }
  /// The user turns to the page, and the modem answers its query.
  void read(const std::string& answer) {
    reply("AT+CBST?", answer);
    press(form().Command1);
    sent();
  }
};

TEST_F(Bearer, FillsItsDropDownsBeforeItReads) {
  closeWindow();
  beginLoad();
  EXPECT_EQ(bearer(), kChecking);
  EXPECT_EQ(form().Combo1.List.peek(),
            (Texts{"0 DeFault", "1 300bps", "2 1200bps", "3 1200/75bps", "4 2400bps", "5 2400bps",
                   "6 4800bps", "7 9600bps", "8 Specific", "12 9600bps", "14 1400bps", "65 300bps",
                   "66 1200bps", "68 2400bps", "70 4800bps", "71 9600bps", "75 1400bps"}));
  EXPECT_EQ(form().Combo2.List.peek(),
            (Texts{"0 Transparent Only", "1 Default", "2 Transparent Preferred",
                   "3 Non Transparent Preferred"}));
  EXPECT_EQ(form().Combo1.ListIndex.peek(), -1);
  EXPECT_EQ(form().Combo2.ListIndex.peek(), -1);
  EXPECT_EQ(sent(), Texts{"AT+CBST?\r"});
}

TEST_F(Bearer, PressedAgainFillsThemAnewAndReadsAgain) {
  pick(form().Combo1, 16);
  pick(form().Combo2, 3);
  EXPECT_EQ(form().Combo1.Text.peek(), "75 1400bps");
  form().Label1.Caption = "before";
  click(form().Command1);
  EXPECT_EQ(bearer(), kChecking);
  EXPECT_EQ(form().Combo1.Text.peek(), "");
  EXPECT_EQ(form().Combo2.Text.peek(), "");
  settle();
  EXPECT_EQ(form().Combo1.ListCount(), 17);
  EXPECT_EQ(form().Combo2.ListCount(), 4);
  EXPECT_EQ(sent(), Texts{"AT+CBST?\r"});
}

TEST_F(Bearer, TheListsTakeNoTyping) {
  EXPECT_FALSE(form().Combo1.isEditable());
  EXPECT_FALSE(form().Combo2.isEditable());
}

TEST_F(Bearer, AReadTakesOneSecondFromAnEmptyTranscript) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  leaveInTranscript("\r\n+CBST: 7,0,1\r\n\r\nOK\r\n");
  click(form().Command1);
  EXPECT_EQ(transcript(), "");
  run(0.99);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(bearer(), kChecking);
}

TEST_F(Bearer, AReadLeavesTheDropDownsWithoutAChoice) {
  read(information("+CBST: 71,0,1"));
  EXPECT_EQ(bearer(), "Speed:71 9600bps  CE:1 Default");
  EXPECT_EQ(form().Combo1.Text.peek(), "");
  EXPECT_EQ(form().Combo2.Text.peek(), "");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

struct BearerRow {
  std::string name;
  std::string fields;
  std::string shown;
};

class BearerReply : public Bearer, public ::testing::WithParamInterface<BearerRow> {};

TEST_P(BearerReply, IsShownInWords) {
  read(information("+CBST: " + GetParam().fields));
  EXPECT_EQ(bearer(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

BearerRow speedRow(const std::string& code, const std::string& words) {
  return {"Speed" + code, code + ",0,1", words + "  CE:1 Default"};
}
BearerRow elementRow(const std::string& code, const std::string& words) {
  return {"Element" + code, "7,0," + code, "Speed:7 9600bps  " + words};
}

INSTANTIATE_TEST_SUITE_P(
    Is, BearerReply,
    ::testing::Values(speedRow("0", "Speed:0-DeFault"), speedRow("1", "Speed:1 300bps"),
                      speedRow("2", "Speed:2 1200bps"), speedRow("3", "Speed:3 1200/75bps"),
                      speedRow("4", "Speed:4 2400bps"), speedRow("5", "Speed:5 2400bps"),
                      speedRow("6", "Speed:6 4800bps"), speedRow("7", "Speed:7 9600bps"),
                      speedRow("8", "Speed:8 Specific"), speedRow("12", "Speed:12 9600bps"),
                      speedRow("14", "Speed:14 1400bps"), speedRow("65", "Speed:65 300bps"),
                      speedRow("66", "Speed:66 1200bps"), speedRow("68", "Speed:68 2400bps"),
                      speedRow("70", "Speed:70 4800bps"), speedRow("71", "Speed:71 9600bps"),
                      speedRow("75", "Speed:75 1400bps"), speedRow("9", ""), speedRow("13", ""),
                      speedRow("69", ""), elementRow("0", "CE:0-Transparent Only"),
                      elementRow("1", "CE:1 Default"),
                      elementRow("2", "CE:2 Transparent Preferred"),
                      elementRow("3", "CE:3 NonTransparent Preferred"), elementRow("4", ""),
                      BearerRow{"SpeedWrittenOtherwise", "07,0,1", "  CE:1 Default"},
                      BearerRow{"SpeedBehindABlank", " 7,0,1", "  CE:1 Default"},
                      BearerRow{"EmptySpeed", ",0,1", "  CE:1 Default"},
                      BearerRow{"EmptyElement", "7,0,", "Speed:7 9600bps  "},
                      BearerRow{"OnlyTheLastDigitOfTheElement", "7,0,12",
                                "Speed:7 9600bps  CE:2 Transparent Preferred"},
                      BearerRow{"AnotherName", "7,1,1", "Speed:7 9600bps  CE:1 Default"},
                      BearerRow{"WithoutAName", "7,1", "Speed:7 9600bps  CE:1 Default"},
                      BearerRow{"AFourthField", "7,0,1,3",
                                "Speed:7 9600bps  CE:3 NonTransparent Preferred"}),
    RowName());

struct TailRow {
  std::string name;
  std::string answer;
  bool echo;
  std::string shown;
  bool clears;
};

class BearerTail : public Bearer, public ::testing::WithParamInterface<TailRow> {};

TEST_P(BearerTail, IsCountedFromTheEnd) {
  const TailRow& row = GetParam();
  if (row.echo) {
    reply("AT+CBST?", row.answer);
  } else {
    replyWithoutEcho("AT+CBST?", row.answer);
  }
  press(form().Command1);
  EXPECT_EQ(bearer(), row.shown);
  EXPECT_EQ(transcript().empty(), row.clears);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, BearerTail,
    ::testing::Values(
        TailRow{"WithoutEcho", information("+CBST: 70,0,3"), false,
                "Speed:70 4800bps  CE:3 NonTransparent Preferred", true},
        TailRow{"OneLineEndBeforeTheOk", "\r\n+CBST: 7,0,1\r\nOK\r\n", true,
                "Speed:7 9600bps  CE:0-Transparent Only", true},
        TailRow{"TextBehindTheOk", "\r\n+CBST: 7,0,1\r\n\r\nOK\r\n2", true, "Speed:7 9600bps  ",
                true},
        // Behind as many characters as "OK" stands at there is nothing: the tail is all there is.
        TailRow{"OkBeforeTheLine", "\r\nOK\r\n+CBST: 7,0,1\r\n", true, "Speed:7 9600bps  ", true},
        TailRow{"OkAtOnce", "OK+CBST: 1,0,2", false, kChecking, false},
        TailRow{"OkInTheThirdPlace", "\r\nOK+CBST: 1,0,2", false, "Speed:1 300bps  CE:1 Default",
                true},
        TailRow{"NoOkAtAll", "\r\n+CBST: 7,0,1\r\n", true, kChecking, false},
        TailRow{"ErrorBehindTheLine", "\r\n+CBST: 7,0,1\r\n\r\nERROR\r\n", true, kChecking, false},
        TailRow{"NoComma", "\r\n+CBST: 7\r\n\r\nOK\r\n", true, kChecking, false},
        TailRow{"NoBlankBehindTheColon", "\r\n+CBST:7,0,1\r\n\r\nOK\r\n", true, "  CE:1 Default",
                true},
        TailRow{"NoLine", kOk, true, kChecking, true},
        TailRow{"OtherWords", "\r\nCBST: 7,0,1\r\n\r\nOK\r\n", true, kChecking, true},
        TailRow{"Error", kError, true, kChecking, true},
        TailRow{"Nothing", "", true, kChecking, true}),
    RowName());

TEST_F(Bearer, AReadWithoutAPortLeavesTheListsAndTheCheck) {
  closePort();
  press(form().Command1);
  EXPECT_EQ(bearer(), kChecking);
  EXPECT_EQ(form().Combo1.ListCount(), 17);
  EXPECT_EQ(form().Combo2.ListCount(), 4);
  expectAtRest();
}

TEST_F(Bearer, CanBeSetAfterAReadThatFailed) {
  reply("AT+CBST?", information("+CBST: 7"));
  press(form().Command1);
  EXPECT_NE(transcript(), "");
  sent();
  reply("AT+CBST=7,0,1", kOk);
  pick(form().Combo1, 7);
  pick(form().Combo2, 1);
  press(form().Command6);
  EXPECT_EQ(sent(), Texts{"AT+CBST=7,0,1\r"});
  EXPECT_EQ(bearer(), "Changes SuccessFul");
  EXPECT_EQ(transcript(), "");
}

struct ChoiceRow {
  std::string name;
  int speed;
  int element;
  std::string sent;
};

class BearerChange : public Bearer, public ::testing::WithParamInterface<ChoiceRow> {};

TEST_P(BearerChange, SendsTheCodesOfTheItems) {
  if (GetParam().speed >= 0) pick(form().Combo1, GetParam().speed);
  if (GetParam().element >= 0) pick(form().Combo2, GetParam().element);
  press(form().Command6);
  EXPECT_EQ(sent(), GetParam().sent.empty() ? Texts{} : Texts{GetParam().sent + "\r"});
  expectAtRest();
}

ChoiceRow speedChoice(int index, const std::string& code) {
  return {"Speed" + code, index, 1, "AT+CBST=" + code + ",0,1"};
}

INSTANTIATE_TEST_SUITE_P(
    Is, BearerChange,
    ::testing::Values(
        speedChoice(0, "0"), speedChoice(1, "1"), speedChoice(2, "2"), speedChoice(3, "3"),
        speedChoice(4, "4"), speedChoice(5, "5"), speedChoice(6, "6"), speedChoice(7, "7"),
        speedChoice(8, "8"), speedChoice(9, "12"), speedChoice(10, "14"), speedChoice(11, "65"),
        speedChoice(12, "66"), speedChoice(13, "68"), speedChoice(14, "70"), speedChoice(15, "71"),
        speedChoice(16, "75"), ChoiceRow{"Element0", 9, 0, "AT+CBST=12,0,0"},
        ChoiceRow{"Element2", 9, 2, "AT+CBST=12,0,2"},
        ChoiceRow{"Element3", 9, 3, "AT+CBST=12,0,3"}, ChoiceRow{"NoSpeed", -1, 2, ""},
        ChoiceRow{"NoElement", 4, -1, ""}, ChoiceRow{"Neither", -1, -1, ""}),
    RowName());

TEST_F(Bearer, WithoutBothChoicesDoesNothingAtAll) {
  form().Label1.Caption = "before";
  leaveInTranscript("old");
  press(form().Command6);
  EXPECT_EQ(bearer(), "before");
  EXPECT_EQ(transcript(), "old");
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

struct BearerOutcomeRow {
  std::string name;
  std::string answer;
  std::string shown;
};

class BearerOutcome : public Bearer, public ::testing::WithParamInterface<BearerOutcomeRow> {};

TEST_P(BearerOutcome, IsShownAfterASecond) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  pick(form().Combo1, 15);
  pick(form().Combo2, 1);
  form().Label1.Caption = "before";
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  click(form().Command6);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(bearer(), "before");
  if (!GetParam().answer.empty()) {
    inPanel([this] { form1().Text1.append(GetParam().answer); }, 0.5);
  }
  run(0.99);
  EXPECT_EQ(bearer(), "before");
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(bearer(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{"AT+CBST=71,0,1\r"});
  EXPECT_EQ(form().Combo1.Text.peek(), "71 9600bps");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Is, BearerOutcome,
    ::testing::Values(BearerOutcomeRow{"Ok", kOk, "Changes SuccessFul"},
                      BearerOutcomeRow{"Error", kError, "Changes UnsuccessFul"},
                      BearerOutcomeRow{"Both", "\r\nERROR\r\n\r\nOK\r\n", "Changes SuccessFul"},
                      BearerOutcomeRow{"Neither", "\r\nok\r\n", "before"},
                      BearerOutcomeRow{"Silence", "", "before"}),
    RowName());

TEST_F(Bearer, AChangeWithoutAPortEndsSilently) {
  pick(form().Combo1, 1);
  pick(form().Combo2, 1);
  closePort();
  form().Label1.Caption = "before";
  press(form().Command6);
  EXPECT_EQ(bearer(), "before");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
