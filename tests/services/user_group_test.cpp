#include <gtest/gtest.h>

#include "tests/services/services_test.h"

namespace gsm {
namespace {

class UserGroup : public ServicesTest {
 protected:
  void SetUp() override {
    ServicesTest::SetUp();
    openWindow();
  }
  /// The user turns to the page, and the modem tells `fields` of the group.
  void read(const std::string& fields) {
    reply("AT+CCUG?", information("+CCUG: " + fields));
    turnTo(userGroup);
    sent();
  }
  void pick(ComboBox& combo, int index) {
    inPanel([&combo, index] { combo.userSelect(index); });
    run(0);
  }
  std::string shown() { return caption(form().Label7); }
  /// The texts of the three drop-downs.
  Texts combos() {
    return {form().Combo1.Text.peek(), form().Combo2.Text.peek(), form().Combo3.Text.peek()};
  }
};

TEST_F(UserGroup, FillsItsDropDownsBeforeItReads) {
  clickTab(userGroup);
  EXPECT_EQ(shown(), "Plz wait...");
  EXPECT_EQ(form().Combo1.List.peek(), (Texts{"Disable CUG Mode", "Enable CUG Mode"}));
  EXPECT_EQ(form().Combo2.List.peek(),
            (Texts{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
  EXPECT_EQ(form().Combo3.List.peek(), (Texts{"Default", "Supress OA", "Supress Preferential CUG",
                                              "Supress OA and Prefer.CUG"}));
  EXPECT_EQ(combos(), (Texts{"", "", ""}));
  EXPECT_EQ(sent(), Texts{"AT+CCUG?\r"});
}

TEST_F(UserGroup, EachVisitFillsThemAnewAndLosesTheSelection) {
  turnTo(userGroup);
  pick(form().Combo1, 1);
  pick(form().Combo2, 10);
  pick(form().Combo3, 3);
  EXPECT_EQ(combos(), (Texts{"Enable CUG Mode", "10", "Supress OA and Prefer.CUG"}));
  turnTo(userGroup);
  EXPECT_EQ(combos(), (Texts{"", "", ""}));
  EXPECT_EQ(form().Combo1.ListIndex.peek(), -1);
  EXPECT_EQ(form().Combo1.ListCount(), 2);
  EXPECT_EQ(form().Combo2.ListCount(), 11);
  EXPECT_EQ(form().Combo3.ListCount(), 4);
}

TEST_F(UserGroup, TakesOneSecondWhenTheModemIsSilentAndKeepsTheWait) {
  leaveInTranscript("\r\n+CCUG: 0,0,0\r\n\r\nOK\r\n");
  clickTab(userGroup);
  EXPECT_EQ(transcript(), "");
  run(1.99);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(shown(), "Plz wait...");
  EXPECT_EQ(transcript(), "");
}

TEST_F(UserGroup, WaitsASecondAtLeast) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  clickTab(userGroup);
  run(0.99);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
}

TEST_F(UserGroup, AnErrorKeepsTheWait) {
  reply("AT+CCUG?", kError);
  turnTo(userGroup);
  EXPECT_EQ(shown(), "Plz wait...");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(combos(), (Texts{"", "", ""}));
}

struct GroupRow {
  std::string name;
  std::string fields;
  std::string shown;
  Texts combos;
};

class GroupReply : public UserGroup, public ::testing::WithParamInterface<GroupRow> {};

TEST_P(GroupReply, IsShownInWordsAndDropDowns) {
  read(GetParam().fields);
  EXPECT_EQ(shown(), GetParam().shown);
  EXPECT_EQ(combos(), GetParam().combos);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

GroupRow indexRow(const std::string& index) {
  return {"Index" + index,
          "1," + index + ",0",
          "Current Status: CUG Mode Enabled    ,CUG Index " + index + "   ,Default",
          {"Enable CUG Mode", index, "Default"}};
}

INSTANTIATE_TEST_SUITE_P(
    Is, GroupReply,
    ::testing::Values(
        indexRow("0"), indexRow("1"), indexRow("2"), indexRow("3"), indexRow("4"), indexRow("5"),
        indexRow("6"), indexRow("7"), indexRow("8"), indexRow("9"), indexRow("10"),
        GroupRow{"Disabled",
                 "0,0,1",
                 "Current Status: CUG Mode Disabled    ,CUG Index 0   ,Suppress Outgoing Access",
                 {"Disable CUG Mode", "0", "Supress OA"}},
        GroupRow{"SuppressPreferential",
                 "0,1,2",
                 "Current Status: CUG Mode Disabled    ,CUG Index 1   ,Suppress Preferential CUG",
                 {"Disable CUG Mode", "1", "Supress Preferential CUG"}},
        GroupRow{"SuppressBoth",
                 "0,1,3",
                 "Current Status: CUG Mode Disabled    ,CUG Index 1   ,"
                 "Suppress Outgoing Access And Preferential CUG",
                 {"Disable CUG Mode", "1", "Supress OA and Prefer.CUG"}},
        GroupRow{"IndexEleven",
                 "1,11,0",
                 "Current Status: CUG Mode Enabled    ,   ,Default",
                 {"Enable CUG Mode", "", "Default"}},
        GroupRow{"NothingKnown", "2,11,4", "Current Status:     ,   ,", {"", "", ""}},
        GroupRow{"EmptyFields", ",,", "Current Status:     ,   ,", {"", "", ""}},
        GroupRow{"NumbersWrittenOtherwise",
                 "01, 1,0",
                 "Current Status:     ,   ,Default",
                 {"", "", "Default"}},
        GroupRow{"OnlyTheFirstCharacterOfTheInfo",
                 "0,0,12",
                 "Current Status: CUG Mode Disabled    ,CUG Index 0   ,Suppress Outgoing Access",
                 {"Disable CUG Mode", "0", "Supress OA"}},
        GroupRow{"AFourthField",
                 "0,0,3,7",
                 "Current Status: CUG Mode Disabled    ,CUG Index 0   ,"
                 "Suppress Outgoing Access And Preferential CUG",
                 {"Disable CUG Mode", "0", "Supress OA and Prefer.CUG"}}),
    RowName());

TEST_F(UserGroup, ADropDownOfAnUnknownValueStaysAsItIs) {
  turnTo(userGroup);
  pick(form().Combo2, 7);
  inPanel([this] { form().ShowCugStatus("1", "11", "9"); });
  run(0);
  EXPECT_EQ(combos(), (Texts{"Enable CUG Mode", "7", ""}));
}

TEST_F(UserGroup, AReplyWithoutEchoIsReadTheSame) {
  replyWithoutEcho("AT+CCUG?", information("+CCUG: 1,10,2"));
  turnTo(userGroup);
  EXPECT_EQ(shown(),
            "Current Status: CUG Mode Enabled    ,CUG Index 10   ,Suppress Preferential CUG");
}

// As many characters are read as the first "OK" stands at, which with the echo in front of it is
// just enough.
TEST_F(UserGroup, AnOkInFrontOfTheLineIsAsFarAsItIsRead) {
  reply("AT+CCUG?", "\r\nOK\r\n" + information("+CCUG: 1,3,0"));
  turnTo(userGroup);
  EXPECT_EQ(shown(), "Current Status: CUG Mode Enabled    ,CUG Index 3   ,Default");
  EXPECT_EQ(transcript(), "");
  const std::string early = "\r\nOK\r\n" + information("+CCUG: 1,3,0");
  replyWithoutEcho("AT+CCUG?", early);
  turnTo(userGroup);
  EXPECT_EQ(shown(), "Plz wait...");
  EXPECT_EQ(transcript(), early);
  expectAtRest();
}

struct BrokenGroupRow {
  std::string name;
  std::string reply;
};

class BrokenGroup : public UserGroup, public ::testing::WithParamInterface<BrokenGroupRow> {};

TEST_P(BrokenGroup, KeepsTheWaitAndTheTranscript) {
  reply("AT+CCUG?", GetParam().reply);
  turnTo(userGroup);
  EXPECT_EQ(shown(), "Plz wait...");
  EXPECT_EQ(transcript(), "AT+CCUG?\r" + GetParam().reply);
  EXPECT_EQ(combos(), (Texts{"", "", ""}));
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(Of, BrokenGroup,
                         ::testing::Values(BrokenGroupRow{"NoComma", information("+CCUG: 1")},
                                           BrokenGroupRow{"OneComma", information("+CCUG: 1,2")},
                                           BrokenGroupRow{"NoOk", "\r\n+CCUG: 1,2,0\r\n"},
                                           BrokenGroupRow{"Nothing", "\r\n+CCUG:"}),
                         RowName());

class UserGroupChange : public UserGroup {
 protected:
  void SetUp() override {
    UserGroup::SetUp();
    read("1,5,3");
  }
};

TEST_F(UserGroupChange, SendsWhatTheReadSelected) {
  press(form().Command7);
  EXPECT_EQ(sent(), Texts{"AT+CCUG=1,5,3\r"});
}

TEST_F(UserGroupChange, SendsEachPositionsValueAndNothingForTheGap) {
  for (int index = 0; index <= 10; ++index) {
    pick(form().Combo1, index % 2);
    pick(form().Combo2, index);
    pick(form().Combo3, index % 4);
    press(form().Command7);
    const std::string value = index == 2 ? "" : std::to_string(index);
    EXPECT_EQ(sent(), Texts{"AT+CCUG=" + std::to_string(index % 2) + "," + value + "," +
                            std::to_string(index % 4) + "\r"});
  }
}

TEST_F(UserGroupChange, SendsNothingForATypedText) {
  for (ComboBox* combo : {&form().Combo1, &form().Combo2, &form().Combo3}) {
    read("1,5,3");
    inPanel([combo] { combo->userEdit("3"); });
    press(form().Command7);
    Texts values = {"1", "5", "3"};
    if (combo == &form().Combo1) values[0] = "";
    if (combo == &form().Combo2) values[1] = "";
    if (combo == &form().Combo3) values[2] = "";
    EXPECT_EQ(sent(), Texts{"AT+CCUG=" + values[0] + "," + values[1] + "," + values[2] + "\r"});
  }
}

TEST_F(UserGroupChange, WithAnEmptyDropDownEndsWithoutAWord) {
  for (ComboBox* combo : {&form().Combo1, &form().Combo2, &form().Combo3}) {
    read("1,5,3");
    combo->Text = "";
    leaveInTranscript("old");
    press(form().Command7);
    EXPECT_EQ(sent(), Texts{});
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(transcript(), "old");
    expectAtRest();
  }
}

TEST_F(UserGroupChange, AfterAFailedReadDoesNothing) {
  reply("AT+CCUG?", kError);
  turnTo(userGroup);
  sent();
  press(form().Command7);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(shown(), "");
  expectAtRest();
}

class UserGroupOutcome : public UserGroupChange, public ::testing::WithParamInterface<GroupRow> {};

TEST_P(UserGroupOutcome, IsShown) {
  reply("AT+CCUG=1,5,3", GetParam().fields);
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  click(form().Command7);
  EXPECT_EQ(shown(), "");
  EXPECT_EQ(transcript(), "");
  run(0.99);
  EXPECT_EQ(shown(), "");
  EXPECT_GT(waiting(), 0);
  settle();
  EXPECT_EQ(shown(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{"AT+CCUG=1,5,3\r"});
  EXPECT_EQ(combos(), (Texts{"Enable CUG Mode", "5", "Supress OA and Prefer.CUG"}));
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Is, UserGroupOutcome,
    ::testing::Values(GroupRow{"Ok", kOk, "Changes SuccessFul", {}},
                      GroupRow{"Error", kError, "Changes UNSuccessFul", {}},
                      GroupRow{"Both", "\r\nERROR\r\n\r\nOK\r\n", "Changes SuccessFul", {}},
                      GroupRow{"Neither", "\r\nsomething else\r\n", "", {}},
                      GroupRow{"Silence", "", "", {}}),
    RowName());

TEST_F(UserGroupChange, WithoutAPortEndsSilently) {
  closePort();
  press(form().Command7);
  EXPECT_EQ(shown(), "");
  EXPECT_EQ(combos(), (Texts{"Enable CUG Mode", "5", "Supress OA and Prefer.CUG"}));
  expectAtRest();
}

TEST_F(UserGroup, WithoutAPortKeepsTheWait) {
  closePort();
  turnTo(userGroup);
  EXPECT_EQ(shown(), "Plz wait...");
  EXPECT_EQ(form().Combo2.ListCount(), 11);
  expectAtRest();
}

}  // namespace
}  // namespace gsm
