#include <gtest/gtest.h>

#include "phonebook/form5.h"
#include "tests/module/makers_features_test.h"

namespace gsm {
namespace {

// What the user, the network and the timers do while the window waits.
class OvertakenFeatures : public MakersFeaturesTest {
 protected:
  void SetUp() override {
    MakersFeaturesTest::SetUp();
    openWindow();
  }
};

// Both read the same text, the poll first: it clears nothing.
TEST_F(OvertakenFeatures, APollInTheMiddleOfTheReadingSharesItsReply) {
  reply("AT+CIND?", information("+CIND: 5,3,1,0,0,0,0"));
  inPanel([this] {
    panel().form5.Show();
    form1().Timer2.Enabled = true;
  });
  run(1.5);
  click(form().Command6);
  run(0.6);
  EXPECT_EQ(sent(), (Texts{"AT+CIND?\r", "AT+CIND?\r"}));
  settle();
  EXPECT_TRUE(indicators().starts_with("BatteryChargeLevel->5,   signal level-3,"));
  EXPECT_FALSE(panel().form5.Visible.peek());
  EXPECT_FALSE(form1().Timer2.Enabled.peek());
  EXPECT_EQ(transcript(), "");
}

// The first one found is parsed, also when it is the older one.
TEST_F(OvertakenFeatures, OfTwoRepliesTheFirstIsRead) {
  reply("AT+CIND?", information("+CIND: 5,3,1,0,0,0,0"));
  click(form().Command6);
  receive(information("+CIND: 1,1,0,1,1,1,1"), 0.5);
  settle();
  EXPECT_TRUE(indicators().starts_with("BatteryChargeLevel->5,   signal level-3,"));
}

TEST_F(OvertakenFeatures, AnErrorToThePollIsTakenForTheReadings) {
  reply("AT+CIND?", kError);
  inPanel([this] { form1().Timer2.Enabled = true; });
  click(form().Command6);
  settle();
  EXPECT_EQ(indicators(), "Works Only For Sendari 100");
}

TEST_F(OvertakenFeatures, ARingTakesTheReplyThatItComesWith) {
  reply("AT+CIND?", information("+CIND: 5,3,1,0,1,0,0") + unsolicited("RING"));
  click(form().Command6);
  run(2.5);
  EXPECT_EQ(indicators(), kWaiting);
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
}

TEST_F(OvertakenFeatures, ANewMessageTakesTheOutcomeThatItComesWith) {
  reply("AT+WIND=64", kOk + unsolicited("+CMTI: \"SM\",1"));
  pick(form().Combo3, 7);
  press(form().Command8);
  EXPECT_EQ(caption(form().Label1), "");
}

TEST_F(OvertakenFeatures, AnotherReadingInTheMiddleIsMadeFirst) {
  reply("AT+CIND?", information("+CIND: 5,3,1,0,0,0,0"));
  click(form().Command6);
  run(0.5);
  click(form().Command6);
  EXPECT_EQ(sent(), (Texts{"AT+CIND?\r", "AT+CIND?\r"}));
  settle();
  // The one on top takes the reply and clears; the one beneath finds nothing.
  EXPECT_TRUE(indicators().starts_with("BatteryChargeLevel->5,"));
  expectAtRest();
}

TEST_F(OvertakenFeatures, AChangeInTheMiddleOfTheReadingTakesItsReplyAway) {
  reply("AT+CIND?", information("+CIND: 5,3,1,0,0,0,0"));
  reply("AT+WIND=64", kOk);
  pick(form().Combo3, 7);
  click(form().Command6);
  run(0.5);
  click(form().Command8);
  settle();
  EXPECT_EQ(indicators(), kWaiting);
  EXPECT_EQ(caption(form().Label1), "Changes SuccessFul-WIND");
}

TEST_F(OvertakenFeatures, AnotherPageInTheMiddleOfTheReadingStaysUp) {
  reply("AT+CIND?", information("+CIND: 5,3,1,0,0,0,0"));
  press(form().Command2);
  click(form().Command1);
  run(0.5);
  press(form().Command5);
  EXPECT_EQ(pages(), Texts{"Frame9"});
  EXPECT_TRUE(indicators().starts_with("BatteryChargeLevel->5,"));
}

// Nothing loads it anew, as nothing is shown any more.
TEST_F(OvertakenFeatures, AWindowClosedInASilentReadingStaysClosed) {
  click(form().Command6);
  run(0.5);
  closeWindow();
  settle();
  EXPECT_FALSE(form().isLoaded());
  EXPECT_TRUE(menu().Visible.peek());
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(OvertakenFeatures, AWindowClosedInItsLoadIsLoadedOnceMore) {
  closeWindow();
  beginLoad();
  sent();
  run(0.5);
  inPanel([this] { form().Show(); });
  run(0);
  closeWindow();
  settle();
  EXPECT_TRUE(form().isLoaded());
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(sent(), Texts{"AT+CIND?\r"});
  EXPECT_EQ(pages(), Texts{"Frame1"});
  expectAtRest();
}

// The reference to the label loads the window, hidden, which reads a reply of its own; then the
// reply that was taken is shown.
TEST_F(OvertakenFeatures, AWindowClosedInTheReadingIsLoadedAnewUnseenForTheReply) {
  reply("AT+CIND?", information("+CIND: 5,3,1,0,0,0,0"));
  click(form().Command6);
  run(1);
  closeWindow();
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CIND?\r", "AT+CIND?\r"}));
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_TRUE(indicators().starts_with("BatteryChargeLevel->5,   signal level-3,"));
  EXPECT_TRUE(menu().Visible.peek());
  expectAtRest();
}

// The words of the error load it, and its own reading takes the reply away.
TEST_F(OvertakenFeatures, AWindowClosedInTheReadingShowsTheErrorOfBothWords) {
  reply("AT+CIND?", "\r\nERROR\r\n" + information("+CIND: 5,3,1,0,0,0,0"));
  click(form().Command6);
  run(1);
  closeWindow();
  settle();
  EXPECT_EQ(indicators(), "Works Only For Sendari 100");
  EXPECT_EQ(form1().Text1.Text.peek(), "");
  expectAtRest();
}

struct OvertakenRow {
  std::string name;
  CommandButton Form17::*page;
  ComboBox Form17::*combo;
  CommandButton Form17::*button;
  std::string command;
  std::string reply;
  Label Form17::*status;
  std::string shown;
  std::string shownAfterPoll;  // whose "OK" is taken for the change's
};

class OvertakenChange : public OvertakenFeatures,
                        public ::testing::WithParamInterface<OvertakenRow> {
 protected:
  void begin() {
    const OvertakenRow& row = GetParam();
    reply(row.command, row.reply);
    press(form().*row.page);
    inPanel([this] { form().Combo2.ListIndex = 0; });
    pick(form().*row.combo, 2);
    sent();
    click(form().*row.button);
    EXPECT_EQ(sent(), Texts{row.command + "\r"});
    run(1);
  }
};

TEST_P(OvertakenChange, LoadsAWindowThatWasClosedAnewUnseenForItsWords) {
  begin();
  closeWindow();
  EXPECT_TRUE(menu().Visible.peek());
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CIND?\r"});
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_EQ(caption(form().*GetParam().status), GetParam().shown);
  EXPECT_EQ(pages(), Texts{"Frame1"});
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_P(OvertakenChange, TakesTheOkOfAPollForItsOwn) {
  reply("AT+CIND?", information("+CIND: 5,3,1,0,1,0,0"));
  begin();
  inPanel([this] { form1().pollCall(); });
  run(10);
  EXPECT_EQ(caption(form().*GetParam().status), GetParam().shownAfterPoll);
  expectAtRest();
}

TEST_P(OvertakenChange, IsJudgedByWhatHadComeWhenTheDeviceGoes) {
  begin();
  machine().ports.set({});
  settle();
  EXPECT_EQ(caption(form().*GetParam().status), GetParam().shown);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, OvertakenChange,
    ::testing::Values(OvertakenRow{.name = "TheDump",
                                   .page = &Form17::Command1,
                                   .combo = &Form17::Combo1,
                                   .button = &Form17::Command7,
                                   .command = "AT+CCED=2,1",
                                   .reply = kOk,
                                   .status = &Form17::Label1,
                                   .shown = "Changes SuccessFul-CCED",
                                   .shownAfterPoll = "Changes SuccessFul-CCED"},
                      OvertakenRow{.name = "TheLevel",
                                   .page = &Form17::Command1,
                                   .combo = &Form17::Combo3,
                                   .button = &Form17::Command8,
                                   .command = "AT+WIND=2",
                                   .reply = kError,
                                   .status = &Form17::Label1,
                                   .shown = "Changes UnSuccessFul-WIND",
                                   .shownAfterPoll = "Changes SuccessFul-WIND"},
                      OvertakenRow{.name = "TheVoiceMail",
                                   .page = &Form17::Command2,
                                   .combo = &Form17::Combo4,
                                   .button = &Form17::Command9,
                                   .command = "AT+CPHS=2,1",
                                   .reply = kOk,
                                   .status = &Form17::Label6,
                                   .shown = "Changes SuccessFul-CPHS",
                                   .shownAfterPoll = "Changes SuccessFul-CPHS"},
                      OvertakenRow{.name = "ThePins",
                                   .page = &Form17::Command3,
                                   .combo = &Form17::Combo5,
                                   .button = &Form17::Command10,
                                   .command = "AT+WIOR=2",
                                   .reply = kError,
                                   .status = &Form17::Label9,
                                   .shown = "Not Supported",
                                   .shownAfterPoll = ""}),
    RowName());

// No wait carries over midnight: the handler ends there, and what it has done stays.
class FeaturesAtMidnight : public MakersFeaturesTest {
 protected:
  void SetUp() override { startWithOpenPort({2026, 3, 1, 23, 59, 0}); }
  void passMidnight() {
    run(60.01 - now());
    EXPECT_EQ(waiting(), 0);
    expectAtRest();
  }
  void startAt(double second) { run(second - now()); }
};

TEST_F(FeaturesAtMidnight, ALoadEndsAndTheWindowComesUp) {
  startAt(59.5);
  inPanel([this] { menu().Show(); });
  run(0);
  click(menu().Command1);
  passMidnight();
  EXPECT_EQ(indicators(), kWaiting);
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_FALSE(menu().Visible.peek());
  EXPECT_EQ(caption(menu().Label1), "");
}

TEST_F(FeaturesAtMidnight, AChangeEndsWithItsStatusEmptyAndItsReplyThere) {
  reply("AT+WIND=64", kOk);
  reply("AT+CPHS=0,1", kOk);
  reply("AT+WIOR=0", kError);
  startAt(50);
  openWindow();
  press(form().Command2);
  press(form().Command3);
  inPanel([this] {
    for (Frame* page : {&form().Frame1, &form().Frame5, &form().Frame6}) page->Visible = true;
    form().Label1.Caption = "old";
    form().Label6.Caption = "old";
    form().Label9.Caption = "old";
  });
  pick(form().Combo3, 7);
  pick(form().Combo4, 0);
  pick(form().Combo5, 0);
  startAt(59.5);
  click(form().Command8);
  click(form().Command9);
  click(form().Command10);
  passMidnight();
  EXPECT_EQ(sent().size(), 3U);
  EXPECT_EQ(caption(form().Label1), "");
  EXPECT_EQ(caption(form().Label6), "old");
  EXPECT_EQ(caption(form().Label9), "");
  EXPECT_NE(transcript(), "");
}

TEST_F(FeaturesAtMidnight, ThePowerStaysOnWhenItComesBeforeTheSecondCommand) {
  reply("AT+CPOF", kOk);
  startAt(50);
  openWindow();
  press(form().Command5);
  startAt(59.5);
  click(form().Command4);
  passMidnight();
  EXPECT_EQ(sent(), Texts{"AT&W\r"});
}

TEST_F(FeaturesAtMidnight, TheProgramGoesOnWhenItComesBeforeTheResultIsRead) {
  reply("AT+CPOF", kOk);
  startAt(50);
  openWindow();
  press(form().Command5);
  startAt(57);
  click(form().Command4);
  passMidnight();
  EXPECT_EQ(sent(), (Texts{"AT&W\r", "AT+CPOF\r"}));
  EXPECT_EQ(caption(form().Label13), "");
  EXPECT_NE(transcript(), "");
}

}  // namespace
}  // namespace gsm
