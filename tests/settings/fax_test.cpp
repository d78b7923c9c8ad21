#include <gtest/gtest.h>

#include "tests/settings/data_test.h"

namespace gsm {
namespace {

class Fax : public DataTest {
 protected:
  void SetUp() override {
    DataTest::SetUp();
    openWindow();
  }
};

const Texts kSpeeds = {"24", "48", "72", "73", "74", "96", "97", "98", "121", "122", "145", "146"};

TEST_F(Fax, FillsItsListsBeforeItReads) {
  leaveInTranscript("\r\n+FCLASS: 2\r\n");
  click(form().Command3);
  EXPECT_EQ(pages(), Texts{"Frame3"});
  EXPECT_EQ(fax(), kChecking);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(form().Combo5.List.peek(),
            (Texts{"0-Data Mode", "1-Fax Class 1 Mode", "2-Fax Class 2 Mode"}));
  EXPECT_EQ(form().Combo6.List.peek(), kSpeeds);
  EXPECT_EQ(form().Combo7.List.peek(), kSpeeds);
  EXPECT_EQ(sent(), Texts{"AT+FCLASS?\r"});
}

TEST_F(Fax, AReadWaitsASecond) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  click(form().Command3);
  run(0.99);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(fax(), kChecking);
}

TEST_F(Fax, PressedAgainFillsTheListsAnewAndLosesWhatIsInThem) {
  press(form().Command3);
  pick(form().Combo5, 2);
  pick(form().Combo6, 11);
  type(form().Combo7, "33");
  press(form().Command3);
  for (const ComboBox* combo : {&form().Combo5, &form().Combo6, &form().Combo7}) {
    EXPECT_EQ(combo->Text.peek(), "") << combo->name();
    EXPECT_EQ(combo->ListIndex.peek(), -1) << combo->name();
  }
  EXPECT_EQ(form().Combo5.ListCount(), 3);
  EXPECT_EQ(form().Combo6.List.peek(), kSpeeds);
  EXPECT_EQ(form().Combo7.List.peek(), kSpeeds);
}

TEST_F(Fax, OnlyTheSpeedsTakeTyping) {
  EXPECT_FALSE(form().Combo5.isEditable());
  EXPECT_TRUE(form().Combo6.isEditable());
  EXPECT_TRUE(form().Combo7.isEditable());
}

struct ClassRow {
  std::string name;
  std::string answer;
  std::string shown;
};

class FaxClass : public Fax, public ::testing::WithParamInterface<ClassRow> {};

TEST_P(FaxClass, IsShownInWords) {
  reply("AT+FCLASS?", GetParam().answer);
  press(form().Command3);
  EXPECT_EQ(fax(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(form().Combo5.Text.peek(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Is, FaxClass,
    ::testing::Values(
        ClassRow{"Data", information("+FCLASS: 0"), "Currently In Data Mode"},
        ClassRow{"ClassOne", information("+FCLASS: 1"), "Currently In Fax Class 1 Mode"},
        ClassRow{"ClassTwo", information("+FCLASS: 2"), "Currently in Fax Class 2 Mode"},
        ClassRow{"ClassTwoPointZero", information("+FCLASS: 2.0"), "Currently In Data Mode"},
        ClassRow{"ClassTwoPointOne", information("+FCLASS: 2.1"), "Currently In Fax Class 1 Mode"},
        ClassRow{"ADigitElsewhere", "\r\n+FCLASS: 2\r\n\r\n+CREG: 0\r\n\r\nOK\r\n",
                 "Currently In Data Mode"},
        ClassRow{"ADigitBeforeIt", "\r\n0\r\n+FCLASS: 2\r\n\r\nOK\r\n", "Currently In Data Mode"},
        ClassRow{"AnotherDigit", information("+FCLASS: 8"), kChecking},
        ClassRow{"NoDigit", information("+FCLASS:"), kChecking},
        ClassRow{"WithoutItsName", information("1"), kChecking},
        ClassRow{"Error", kError, kChecking}, ClassRow{"Silence", "", kChecking}),
    RowName());

TEST_F(Fax, AReadWithoutAPortKeepsTheCheck) {
  closePort();
  press(form().Command3);
  EXPECT_EQ(fax(), kChecking);
  EXPECT_EQ(pages(), Texts{"Frame3"});
  EXPECT_EQ(form().Combo7.ListCount(), 12);
  expectAtRest();
}

struct FaxChoiceRow {
  std::string name;
  ComboBox Form14::*choice;
  CommandButton Form14::*button;
  int index;          // of the item that the user picks,
  std::string typed;  // or, without one, what he types
  std::string sent;
  std::string success;
};

class FaxChange : public Fax, public ::testing::WithParamInterface<FaxChoiceRow> {
 protected:
  void SetUp() override {
    Fax::SetUp();
    press(form().Command3);
    sent();
    form().Label5.Caption = "before";
    leaveInTranscript("\r\nOK\r\nERROR\r\n");
  }
  void choose() {
    ComboBox& combo = form().*GetParam().choice;
    if (GetParam().index >= 0) pick(combo, GetParam().index);
    if (!GetParam().typed.empty()) type(combo, GetParam().typed);
  }
  void expectOutcome(const std::string& answer, const std::string& shown) {
    choose();
    reply(GetParam().sent, answer);
    click(form().*GetParam().button);
    EXPECT_EQ(fax(), "");
    EXPECT_EQ(transcript(), "");
    settle();
    EXPECT_EQ(fax(), shown);
    EXPECT_EQ(transcript(), "");
    EXPECT_EQ(sent(), Texts{GetParam().sent + "\r"});
    expectAtRest();
  }
};

TEST_P(FaxChange, IsSentAndReportedAsTaken) { expectOutcome(kOk, GetParam().success); }
TEST_P(FaxChange, IsReportedAsRefused) { expectOutcome(kError, "Changes UnsuccessFul"); }
TEST_P(FaxChange, IsReportedAsTakenWithBothWords) {
  expectOutcome("\r\nERROR\r\n\r\nOK\r\n", GetParam().success);
}
TEST_P(FaxChange, EmptiesTheStatusWithNeitherWord) { expectOutcome("\r\nCONNECT\r\n", ""); }

TEST_P(FaxChange, WaitsASecond) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  choose();
  click(form().*GetParam().button);
  run(0.99);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(fax(), "");
}

TEST_P(FaxChange, WithoutATextDoesNothing) {
  press(form().*GetParam().button);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(fax(), "before");
  EXPECT_EQ(transcript(), "\r\nOK\r\nERROR\r\n");
  expectAtRest();
}

TEST_P(FaxChange, WithoutAPortEndsWithAnEmptyStatus) {
  choose();
  closePort();
  press(form().*GetParam().button);
  EXPECT_EQ(fax(), "");
  expectAtRest();
}

FaxChoiceRow classRow(const std::string& name, int index, const std::string& code) {
  return {name, &Form14::Combo5,     &Form14::Command4,          index,
          "",   "AT+FCLASS=" + code, "Changes SuccessFul-FCLASS"};
}
FaxChoiceRow transmitRow(const std::string& name, int index, const std::string& typed,
                         const std::string& value) {
  return {name,
          &Form14::Combo6,
          &Form14::Command5,
          index,
          typed,
          "AT+FTM=" + value,
          "Changes SuccessFul-Transmit "};
}
FaxChoiceRow receiveRow(const std::string& name, int index, const std::string& typed,
                        const std::string& value) {
  return {name,  &Form14::Combo7,   &Form14::Command9,           index,
          typed, "AT+FRM=" + value, "Changes SuccessFul-Receive"};
}

INSTANTIATE_TEST_SUITE_P(
    Of, FaxChange,
    ::testing::Values(classRow("DataMode", 0, "0"), classRow("ClassOne", 1, "1"),
                      classRow("ClassTwo", 2, "2"), transmitRow("TransmitFirst", 0, "", "24"),
                      transmitRow("TransmitLast", 11, "", "146"),
                      transmitRow("TransmitTyped", -1, "33", "33"),
                      transmitRow("TransmitTypedAsItStands", -1, " 9 6,x", " 9 6,x"),
                      receiveRow("ReceiveFirst", 0, "", "24"),
                      receiveRow("ReceiveSixth", 5, "", "96"),
                      receiveRow("ReceiveTyped", -1, "\"24\"", "\"24\"")),
    RowName());

TEST_F(Fax, ALineBreakInATypedSpeedStartsNoSecondCommand) {
  press(form().Command3);
  sent();
  type(form().Combo6, "24\rATD112;");
  press(form().Command5);
  EXPECT_EQ(sent(), Texts{"AT+FTM=24\r"});
}

}  // namespace
}  // namespace gsm
