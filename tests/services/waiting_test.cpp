#include <gtest/gtest.h>

#include "phonebook/form3.h"
#include "phonebook/form5.h"
#include "tests/services/services_test.h"

namespace gsm {
namespace {

class CallWaiting : public ServicesTest {
 protected:
  void SetUp() override {
    ServicesTest::SetUp();
    openWindow();
    form().Label6.Caption = "before";
  }
  std::string shown() { return caption(form().Label6); }
};

struct StateRow {
  std::string name;
  std::string reply;
  std::string shown;
};

class WaitingState : public CallWaiting, public ::testing::WithParamInterface<StateRow> {};

TEST_P(WaitingState, IsShownAfterThreeSeconds) {
  reply("AT+CCWA=1,2", GetParam().reply);
  leaveInTranscript("\r\n+CCWA: 1,1\r\n+CCWA: 0,7\r\nERROR\r\n");
  clickTab(waitingCalls);
  EXPECT_EQ(transcript(), "");
  run(2.99);
  EXPECT_EQ(shown(), "before");
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(shown(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{"AT+CCWA=1,2\r"});
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, WaitingState,
    ::testing::Values(
        StateRow{"Enabled", information("+CCWA: 1,1"), "Current Status:Call Waiting Enabled"},
        StateRow{"Disabled", information("+CCWA: 0,7"), "Current Status:Call Waiting Disabled"},
        StateRow{"Error", kError, "Error Occured.Please Try Later"},
        StateRow{"BothStates", "\r\n+CCWA: 0,7\r\n+CCWA: 1,1\r\n\r\nOK\r\n",
                 "Current Status:Call Waiting Enabled"},
        StateRow{"DisabledAndError", "\r\nERROR\r\n+CCWA: 0,7\r\n",
                 "Current Status:Call Waiting Disabled"},
        StateRow{"EnabledAndError", "\r\nERROR\r\n+CCWA: 1,1\r\n",
                 "Current Status:Call Waiting Enabled"},
        StateRow{"EnabledForMoreThanVoice", information("+CCWA: 1,15"),
                 "Current Status:Call Waiting Enabled"},
        StateRow{"DisabledForVoice", information("+CCWA: 0,1"), "before"},
        StateRow{"EnabledForData", information("+CCWA: 1,2"), "before"},
        StateRow{"EnabledForAll", information("+CCWA: 1,7"), "before"},
        StateRow{"WithoutABlank", information("+CCWA:1,1"), "before"},
        StateRow{"OkAlone", kOk, "before"}, StateRow{"Silence", "", "before"}),
    RowName());

TEST_F(CallWaiting, ItsReplyIsNoCallThatWaits) {
  reply("AT+CCWA=1,2", information("+CCWA: 1,1"));
  turnTo(waitingCalls);
  EXPECT_FALSE(panel().form3.isLoaded());
  EXPECT_FALSE(panel().form5.Visible.peek());
}

TEST_F(CallWaiting, WithoutAPortKeepsItsStatus) {
  closePort();
  turnTo(waitingCalls);
  EXPECT_EQ(shown(), "before");
  expectAtRest();
}

class WaitingChange : public CallWaiting {
 protected:
  void SetUp() override {
    CallWaiting::SetUp();
    turnTo(waitingCalls);
    press(form().Command5);
    sent();
    form().Label6.Caption = "before";
  }
};

TEST_F(WaitingChange, ComesUpWithItsButtonAndGoesWithTheTab) {
  EXPECT_EQ(pages(), (Texts{"Frame13", "Frame10", "Frame11", "Command6"}));
  turnTo(waitingCalls);
  EXPECT_EQ(pages(), (Texts{"Frame13", "Frame10"}));
  press(form().Command5);
  EXPECT_EQ(pages(), (Texts{"Frame13", "Frame10", "Frame11", "Command6"}));
  EXPECT_EQ(sent(), Texts{"AT+CCWA=1,2\r"});
}

TEST_F(WaitingChange, WantsAnOptionAndClearsTheTranscript) {
  leaveInTranscript("old");
  press(form().Command6);
  expectBox("Please Select the Option Correctly", "GSM");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(shown(), "before");
  EXPECT_EQ(transcript(), "");
}

TEST_F(WaitingChange, EnablesForVoiceAndDisablesForAll) {
  choose({&form().Option29});
  press(form().Command6);
  EXPECT_EQ(sent(), Texts{"AT+CCWA=1,1,1\r"});
  choose({&form().Option30});
  EXPECT_FALSE(form().Option29.Value.peek());
  press(form().Command6);
  EXPECT_EQ(sent(), Texts{"AT+CCWA=1,0,7\r"});
}

TEST_F(WaitingChange, KeepsItsOptionBetweenVisits) {
  choose({&form().Option30});
  turnTo(forwarding);
  turnTo(waitingCalls);
  EXPECT_TRUE(form().Option30.Value.peek());
}

class WaitingOutcome : public WaitingChange, public ::testing::WithParamInterface<StateRow> {};

TEST_P(WaitingOutcome, IsShownAfterThreeSeconds) {
  choose({&form().Option30});
  reply("AT+CCWA=1,0,7", GetParam().reply);
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  click(form().Command6);
  EXPECT_EQ(shown(), "Please Wait");
  EXPECT_EQ(transcript(), "");
  run(2.99);
  EXPECT_EQ(shown(), "Please Wait");
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(shown(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{"AT+CCWA=1,0,7\r"});
  EXPECT_TRUE(form().Option30.Value.peek());
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Is, WaitingOutcome,
    ::testing::Values(StateRow{"Ok", kOk, "Changes SuccessFul"},
                      StateRow{"Error", kError, "Changes UnsuccessFul"},
                      StateRow{"Both", "\r\nERROR\r\n\r\nOK\r\n", "Changes SuccessFul"},
                      StateRow{"Neither", "\r\nsomething else\r\n", "Please Wait"},
                      StateRow{"Silence", "", "Please Wait"}),
    RowName());

TEST_F(WaitingChange, WithoutAPortEndsSilently) {
  choose({&form().Option29});
  closePort();
  press(form().Command6);
  EXPECT_EQ(shown(), "Please Wait");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
