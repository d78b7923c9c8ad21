#include <gtest/gtest.h>

#include "modem/form11.h"
#include "panel/form1.h"
#include "phonebook/form5.h"
#include "tests/sms/message_window_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

const std::string kBody = std::string("HiHello") + kEnd;

/// What stands in the window.
struct State {
  std::string note = "note";
  std::string reports = "reports";
  std::string message = "Hello";
  std::string messageRead = "read";
  Texts names = {};
  bool centreUp = false;

  bool operator==(const State&) const = default;
};

std::ostream& operator<<(std::ostream& out, const State& state) {
  return out << state.note << '|' << state.reports << '|' << state.message << '|'
             << state.messageRead << '|' << state.names.size() << '|' << state.centreUp;
}

struct ActRow {
  std::string name;
  CommandButton Form8::*button;  // null: the pick of a stored message
  std::string command;
  State state;  // when it ends at its first command
};

// Each handler that talks to the modem, with all that it could change set to something.
class Interrupted : public MessageWindowTest {
 protected:
  void SetUp() override {
    MessageWindowTest::SetUp();
    stopSendEvents();
    layEntries({{"1", "112", "HELP"}});
  }
  void prepare() {
    compose("12345", "Hello", "Hi");
    choose(window().Combo1, "3");
    click(window().Command5);
    window().Option1.Value = true;
    window().Option3.Value = true;
    window().Text3.Text = "read";
    window().Label4.Caption = "note";
    window().Label6.Caption = "reports";
    leaveInTranscript("old");
  }
  State state() {
    return {.note = note(),
            .reports = reports(),
            .message = message(),
            .messageRead = messageRead(),
            .names = names(),
            .centreUp = window().Label3.Visible.peek() || window().Text4.Visible.peek()};
  }
  /// The user sets the handler off.
  void begin(const ActRow& act) {
    if (act.button != nullptr) {
      click(window().*act.button);
    } else {
      choose(window().Combo2, "3");
    }
  }
};

class EachAct : public Interrupted, public ::testing::WithParamInterface<ActRow> {};

TEST_P(EachAct, OnAClosedPortEndsSilently) {
  prepare();
  closePort();
  begin(GetParam());
  settle();
  EXPECT_EQ(state(), GetParam().state);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(number() + header(), "12345Hi");
  EXPECT_TRUE(window().Combo2.Visible.peek());
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

TEST_P(EachAct, OnAPortThatIsPulledOutEndsSilently) {
  prepare();
  machine().ports.set({});
  begin(GetParam());
  settle();
  EXPECT_EQ(state(), GetParam().state);
  expectAtRest();
}

TEST_P(EachAct, EndsSilentlyAtMidnight) {
  startWithOpenPort({2026, 3, 1, 23, 59, 59});
  stopSendEvents();
  open();
  prepare();
  run(0.5 - now());
  begin(GetParam());
  receive("x", 0.2);
  run(0.4);
  EXPECT_GT(waiting(), 0);
  run(0.2);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(sent(), Texts{GetParam().command});
  EXPECT_EQ(state(), GetParam().state);
  EXPECT_EQ(transcript(), "x");
  EXPECT_TRUE(window().Combo2.Visible.peek());
  run(30);
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

TEST_P(EachAct, GoesOnInAWindowLoadedAnewWhenItIsClosed) {
  prepare();
  begin(GetParam());
  run(0.5);
  close();
  ASSERT_FALSE(window().isLoaded());
  settle();
  EXPECT_FALSE(window().Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  // What was typed has gone with the window, which a reference of the handler's has loaded anew.
  open();
  EXPECT_EQ(number() + message() + header(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EachAct,
    ::testing::Values(
        ActRow{"Send", &Form8::Command1, "AT+CMGS=12345\r", {.note = ""}},
        ActRow{"Save", &Form8::Command2, "AT+CMGW=12345\r", {.note = ""}},
        ActRow{"Read", &Form8::Command3, "AT+CMGR= 3\r", {.note = "", .messageRead = ""}},
        ActRow{"Load", nullptr, "AT+CMGR= 3\r", {.message = ""}},
        ActRow{"Delete", &Form8::Command4, "AT+CMGD=3\r", {.messageRead = ""}},
        ActRow{"Broadcast", &Form8::Command8, "AT+CSCB=1\r", {.note = ""}},
        ActRow{"Reports",
               &Form8::Command9,
               "AT+CSMP=33,167,0,0\r",
               {.note = "Please Wait", .reports = ""}},
        ActRow{"Names", &Form8::Command6, "AT+CSCA?\r", {.names = {"HELP"}}}),
    RowName());

struct SecondWaitRow {
  std::string name;
  CommandButton Form8::*button;
  Texts sent;
  State state;
};

class SecondWait : public Interrupted, public ::testing::WithParamInterface<SecondWaitRow> {};

TEST_P(SecondWait, EndsSilentlyAtMidnight) {
  startWithOpenPort({2026, 3, 1, 23, 59, 58});
  stopSendEvents();
  open();
  prepare();
  run(0.5 - now());
  click(window().*GetParam().button);
  receive("OK +CMGS: +CMGW:", 1.2);
  run(1.4);
  EXPECT_GT(waiting(), 0);
  run(0.2);
  EXPECT_EQ(sent(), GetParam().sent);
  EXPECT_EQ(state(), GetParam().state);
  EXPECT_EQ(transcript(), "OK +CMGS: +CMGW:");
  EXPECT_TRUE(window().Combo2.Visible.peek());
  expectAtRest();
}

TEST_P(SecondWait, IsNotReachedOnAPortThatWasClosedInTheFirst) {
  prepare();
  click(window().*GetParam().button);
  run(0.5);
  closePort();
  settle();
  EXPECT_EQ(sent(), Texts{GetParam().sent.front()});
  EXPECT_EQ(state(), GetParam().state);
  EXPECT_TRUE(window().Combo2.Visible.peek());
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SecondWait,
    ::testing::Values(
        SecondWaitRow{"Send", &Form8::Command1, {"AT+CMGS=12345\r", kBody}, {.note = ""}},
        SecondWaitRow{"Save",
                      &Form8::Command2,
                      {"AT+CMGW=12345\r", std::string("Hello") + kEnd},
                      {.note = ""}},
        SecondWaitRow{"Reports",
                      &Form8::Command9,
                      {"AT+CSMP=33,167,0,0\r", "AT+CNMI=0,1,0,1,0\r"},
                      {.note = "Please Wait", .reports = ""}}),
    RowName());

TEST_F(Interrupted, ASendWhoseWindowIsClosedGivesAnEmptyMessage) {
  prepare();
  click(window().Command1);
  run(0.5);
  close();
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CMGS=12345\r", kEnd}));
  EXPECT_EQ(note(), "Message Not Sent.Error Occurred");
  open();
  EXPECT_EQ(note(), "Message Not Sent.Error Occurred") << "which the next opening shows";
}

TEST_F(Interrupted, ADeleteWhoseWindowIsClosedSaysSoAtTheNextOpening) {
  prepare();
  click(window().Command4);
  run(0.5);
  close();
  settle();
  open();
  EXPECT_EQ(messageRead(), "Message Deleted");
}

TEST_F(Interrupted, ANewMessageDuringASendTakesItsResultAway) {
  compose("12345", "Hello");
  answerWithPrompt();
  answerBody("Hello", information("+CMGS: 13"));
  click(window().Command1);
  receive(unsolicited("+CMTI: \"SM\",7"), 3.5);
  Texts notes;
  run(7);
  notes.push_back(note());
  settle();
  notes.push_back(note());
  EXPECT_EQ(notes, (Texts{"", "Message Not Sent.Error Occurred"}));
  EXPECT_EQ(form1().Command3.BackColor.peek(), 0xC0C0FF);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(Interrupted, ANewMessageBeforeTheResultShowsItsIndexUntilTheSendEnds) {
  compose("12345", "Hello");
  answerWithPrompt();
  answerBody("Hello", information("+CMGS: 13"), 5.5);
  click(window().Command1);
  receive(unsolicited("+CMTI: \"SM\",12"), 0.5);
  run(5.8);
  EXPECT_EQ(note(), "New Message Received.12");
  settle();
  EXPECT_EQ(note().substr(0, 29), "Message Sent SuccessFully At ");
  expectAtRest();
}

TEST_F(Interrupted, ANewMessageDuringAReadTakesTheEntryAway) {
  choose(window().Combo1, "3");
  reply("AT+CMGR= 3", "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\none\r\n\r\nOK\r\n");
  click(window().Command3);
  receive(unsolicited("+CMTI: \"SM\",12"), 0.5);
  settle();
  EXPECT_EQ(messageRead(), "");
  EXPECT_EQ(note(), "New Message Received.12");
  press(window().Command3);
  EXPECT_EQ(note(), "");
  EXPECT_EQ(messageRead(), "From:112  ,READMSG: one\r\n\r\n");
}

TEST_F(Interrupted, AMessageWithTheWordOfANewOneIsTakenForIt) {
  choose(window().Combo1, "3");
  reply("AT+CMGR= 3", "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\nCMTI\r\n\r\nOK\r\n");
  press(window().Command3);
  EXPECT_EQ(messageRead(), "");
  EXPECT_EQ(note().substr(0, 21), "New Message Received.");
}

TEST_F(Interrupted, AMessageWithTheWordOfARingIsTakenForIt) {
  choose(window().Combo1, "3");
  reply("AT+CMGR= 3", "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\nRING me\r\n\r\nOK\r\n");
  press(window().Command3);
  EXPECT_EQ(messageRead(), "");
  EXPECT_TRUE(polls());
}

TEST_F(Interrupted, ARingDuringASendTakesItsResultAwayAndIsPolledInTheMiddle) {
  compose("12345", "Hello");
  reply("AT+CIND?", information("+CIND: 5,4,1,0,0,0,0"));
  answerBody("Hello", information("+CMGS: 13"), 0.1);
  receive(unsolicited("RING") + unsolicited("+CLIP: \"112\",129"), 0.5);
  click(window().Command1);
  settle();
  EXPECT_TRUE(prompt().isLoaded());
  EXPECT_EQ(sent(), (Texts{"AT+CMGS=12345\r", std::string("Hello") + kEnd, "AT+CIND?\r"}));
  EXPECT_EQ(note().substr(0, 29), "Message Sent SuccessFully At ");
  EXPECT_EQ(waiting(), 0);
}

TEST_F(Interrupted, APollMayFallBetweenTheNumberAndTheMessage) {
  route(unsolicited("RING"));
  ASSERT_TRUE(polls());
  run(1.5);
  compose("12345", "Hello");
  press(window().Command1);
  const Texts all = sent();
  ASSERT_GE(all.size(), 3U);
  EXPECT_EQ(all[0], "AT+CMGS=12345\r");
  EXPECT_EQ(all[1], "AT+CIND?\r");
  form1().Timer2.Enabled = false;
}

TEST_F(Interrupted, ASecondSendInTheWaitRunsOnTopOfTheFirst) {
  compose("12345", "Hello");
  click(window().Command1);
  run(0.5);
  click(window().Command1);
  EXPECT_EQ(waiting(), 2);
  const double start = now();
  settle();
  EXPECT_NEAR(now() - start, 7 + 6, 0.01) << "the first goes on once the second has ended";
  const std::string body = std::string("Hello") + kEnd;
  EXPECT_EQ(sent(), (Texts{"AT+CMGS=12345\r", "AT+CMGS=12345\r", body, body}));
  expectAtRest();
}

TEST_F(Interrupted, AReadDuringASendClearsItsResult) {
  compose("12345", "Hello");
  answerBody("Hello", information("+CMGS: 13"), 1);
  click(window().Command1);
  run(5);
  ASSERT_TRUE(form1().Text1.holds("+CMGS:"));
  click(window().Command3);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CMGS=12345\r", std::string("Hello") + kEnd, "AT+CMGR= \r"}));
  EXPECT_EQ(note(), "Message Not Sent.Error Occurred");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
