#include <gtest/gtest.h>

#include <algorithm>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "tests/support/phone_book_test.h"
#include "tests/support/property_watch.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

class CallWatch : public PhoneBookTest {
 protected:
  void SetUp() override {
    PhoneBookTest::SetUp();
    layEntries({{"1", "112", "HELP"}});
    openCalls();
    calls().Text1.Text = "123";
  }
};

TEST_F(CallWatch, DialsInOneWriteAndSaysSoOnceItHasWaited) {
  leaveInTranscript("old");
  click(calls().Command1);
  EXPECT_EQ(sent(), Texts{"ATD123;\r"});
  EXPECT_EQ(transcript(), "");
  run(1.9);
  EXPECT_EQ(callStatus(), "");
  run(0.2);
  EXPECT_EQ(callStatus(), "Dialing....123");
}

TEST_F(CallWatch, OfASilentModemKeepsDialingForNinePasses) {
  click(calls().Command1);
  run(19.9);
  EXPECT_EQ(waiting(), 1);
  run(0.2);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(callStatus(), "Dialing....123");
}

struct WordRow {
  std::string name;
  std::string text;
  std::string status;
  std::string redialStatus;
};

class WordInTheWatch : public CallWatch, public ::testing::WithParamInterface<WordRow> {};

TEST_P(WordInTheWatch, OfADialSetsTheStatusUntilItsEnd) {
  reply("ATD123;", GetParam().text);
  click(calls().Command1);
  settle();
  EXPECT_EQ(callStatus(), GetParam().status);
  EXPECT_EQ(transcript(), "ATD123;\r" + GetParam().text);
  EXPECT_EQ(dialBox(), "123");
}

TEST_P(WordInTheWatch, OfARedialSetsTheStatusAndClears) {
  reply("ATDL", "\r\n45678;\r\n" + GetParam().text);
  click(calls().Command8);
  settle();
  EXPECT_EQ(sent(), Texts{"ATDL\r"});
  EXPECT_EQ(callStatus(), GetParam().redialStatus);
  EXPECT_EQ(dialBox(), "45678");
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WordInTheWatch,
    ::testing::Values(
        WordRow{"Ok", kOk, "Connected SuccessFully-123", "Connected SuccessFully-45678"},
        WordRow{"NoAnswer", "\r\nNO ANSWER\r\n", "NO ANSWER.Plz Disconnect",
                "NO ANSWER.Plz Disconnect"},
        WordRow{"NoCarrier", "\r\nNO CARRIER\r\n", "No Carrier.Plz Disconnect",
                "No Carrier.Plz Disconnect"},
        WordRow{"Busy", "\r\nBUSY\r\n", "Busy.Plz Disconnect", "Busy.Plz Disconnect"},
        WordRow{"ErrorInARedialOnly", kError, "Dialing....123", "Error Occurred.Plz Disconnect"},
        WordRow{"OkBeforeTheOthers", "BUSY NO CARRIER NO ANSWER OK", "Connected SuccessFully-123",
                "Connected SuccessFully-45678"},
        WordRow{"NoAnswerBeforeNoCarrier", "NO CARRIER NO ANSWER", "NO ANSWER.Plz Disconnect",
                "NO ANSWER.Plz Disconnect"},
        WordRow{"BusyBeforeAnError", "ERROR BUSY", "Busy.Plz Disconnect", "Busy.Plz Disconnect"}),
    RowName());

TEST_F(CallWatch, OfAConnectedCallIsOverwrittenByTheDispatcherUntilItsNextPass) {
  reply("ATD123;", kOk);
  click(calls().Command1);
  receive(unsolicited("NO CARRIER"), 10);
  Texts seen;
  PropertyWatch watch(calls().Label3, [&](PropertyId) { seen.push_back(callStatus()); });
  run(11.9);
  EXPECT_EQ(callStatus(), "Connected SuccessFully-123");
  settle();
  EXPECT_EQ(callStatus(), "Connected SuccessFully-123");
  EXPECT_EQ(std::count(seen.begin(), seen.end(), "No Carrier.Plz Disconnect"), 1);
}

TEST_F(CallWatch, LeavesTheDispatchersWordOfACallThatEndsAfterIt) {
  reply("ATD123;", kOk);
  click(calls().Command1);
  settle();
  route(unsolicited("NO ANSWER"));
  EXPECT_EQ(callStatus(), "No Answer.Plz Disconnect");
}

TEST_F(CallWatch, KeepsTheHangUpsWord) {
  reply("ATD123;", kOk);
  reply("ATH", kOk);
  click(calls().Command1);
  run(6);
  click(calls().Command4);
  settle();
  EXPECT_EQ(sent(), (Texts{"ATD123;\r", "ATH\r"}));
  EXPECT_EQ(callStatus(), "DisConnected ");
  EXPECT_EQ(dialBox(), "");
  EXPECT_EQ(transcript(), "");
}

TEST_F(CallWatch, FindsNothingBehindAKeyPress) {
  click(calls().Command1);
  receive(kOk, 5);
  run(5.5);
  EXPECT_EQ(callStatus(), "Dialing....123");
  EXPECT_EQ(transcript(), kOk);
  click(calls().Image[1]);
  settle();
  EXPECT_EQ(callStatus(), "Dialing....123");
  EXPECT_EQ(dialBox(), "1231");
}

TEST_F(CallWatch, OfASecondDialRunsOnTopOfTheFirst) {
  click(calls().Command1);
  run(5);
  click(calls().Command1);
  EXPECT_EQ(sent(), (Texts{"ATD123;\r", "ATD123;\r"}));
  EXPECT_EQ(waiting(), 2);
  settle();
  EXPECT_EQ(waiting(), 0);
}

TEST_F(CallWatch, OfARedialSaysTheModemsNumber) {
  reply("ATDL", "\r\n0146290800;\r\n");
  click(calls().Command8);
  settle();
  EXPECT_EQ(callStatus(), "Redialing 0146290800");
  EXPECT_EQ(dialBox(), "0146290800");
}

TEST_F(CallWatch, OfARedialWithoutASemicolonDoesntBegin) {
  reply("ATDL", kError);
  click(calls().Command8);
  run(3);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(callStatus(), "");
  EXPECT_EQ(dialBox(), "123");
  EXPECT_EQ(transcript(), "ATDL\r" + std::string(kError));
}

TEST_F(CallWatch, OfARedialWithoutTheEchoCutsTheNumber) {
  world().modem.add({.write = "ATDL\r",
                     .replies = {{{ModemScript::kDefaultDelay, "\r\n0146290800;\r\n"}}},
                     .echo = false});
  click(calls().Command8);
  settle();
  EXPECT_EQ(callStatus(), "Redialing 90800");
  EXPECT_EQ(dialBox(), "90800");
}

TEST_F(CallWatch, OfARedialWhoseSemicolonStandsTooEarlyDoesntBegin) {
  world().modem.add({.write = "ATDL\r",
                     .replies = {{{ModemScript::kDefaultDelay, "\r\n112;\r\n"}}},
                     .echo = false});
  click(calls().Command8);
  settle();
  EXPECT_EQ(callStatus(), "");
  EXPECT_EQ(dialBox(), "123");
  EXPECT_EQ(transcript(), "\r\n112;\r\n");
}

TEST_F(CallWatch, OfADialOnAClosedPortDoesntBegin) {
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  run(0);
  click(calls().Command1);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(callStatus(), "");
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

}  // namespace
}  // namespace gsm
