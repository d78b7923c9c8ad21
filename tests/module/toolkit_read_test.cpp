#include <gtest/gtest.h>

#include "tests/module/toolkit_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

class ToolkitRead : public ToolkitTest {};

const Texts kNothing = {"(Plz Wait.Checking Current Values)", "()", "()"};

TEST_F(ToolkitRead, SaysThatItChecksOnALabelThatIsStillHidden) {
  leaveInTranscript("\r\n+STSF: " + kActive + "\r\n\r\nOK\r\n");
  beginLoad();
  EXPECT_EQ(status(), kNothing);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{"AT+STSF?\r"});
  EXPECT_EQ(form().Combo1.List.peek(), (Texts{"DeActivate", "Activate", "Configure"}));
  EXPECT_EQ(mode(), "");
  EXPECT_FALSE(form().Visible.peek());
  settle();
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(status(), kNothing);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(ToolkitRead, WaitsASecond) {
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  beginLoad();
  run(0.99);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
}

TEST_F(ToolkitRead, ShowsModeTimeoutAndResponse) {
  loadActive();
  EXPECT_EQ(status(), (Texts{"Current Status: Mode:  Activate SIM ToolKit Functionalities",
                             "TIMEOUT: 3", "Automatic Response  Activated"}));
  EXPECT_EQ(mode(), "Activate");
  EXPECT_EQ(form().Combo1.ListIndex.peek(), activate);
  EXPECT_EQ(transcript(), "");
  EXPECT_FALSE(wantsReset());
  expectAtRest();
}

TEST_F(ToolkitRead, AModeThatWasReadOpensNoConfiguration) {
  load(information("+STSF: 2,\"160060C01F\",3,1"));
  EXPECT_EQ(mode(), "Configure");
  EXPECT_FALSE(asksForConfiguration());
}

struct ReadRow {
  std::string name;
  std::string fields;
  Texts status;
  std::string mode;
};

class ToolkitReply : public ToolkitRead, public ::testing::WithParamInterface<ReadRow> {};

TEST_P(ToolkitReply, IsShownByItsPlaces) {
  load(information("+STSF: " + GetParam().fields));
  EXPECT_EQ(status(), GetParam().status);
  EXPECT_EQ(mode(), GetParam().mode);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

constexpr const char* kOff = "Current Status: Mode:  DeActivate SIM ToolKit Functionalities";
constexpr const char* kOn = "Current Status: Mode:  Activate SIM ToolKit Functionalities";
constexpr const char* kSetUp = "Current Status: Mode:  Configure SIM ToolKit Functionalities";
constexpr const char* kNoResponse = "Automatic Response Not Activated";
constexpr const char* kResponse = "Automatic Response  Activated";

INSTANTIATE_TEST_SUITE_P(
    Is, ToolkitReply,
    ::testing::Values(
        ReadRow{
            "DeActivate", "0,\"160060C01F\",3,0", {kOff, "TIMEOUT: 3", kNoResponse}, "DeActivate"},
        ReadRow{"Activate", "1,\"160060C01F\",5,0", {kOn, "TIMEOUT: 5", kNoResponse}, "Activate"},
        ReadRow{
            "Configure", "2,\"160060C01F\",0,1", {kSetUp, "TIMEOUT: 0", kResponse}, "Configure"},
        ReadRow{"TimeoutOfTwoDigits",
                "1,\"160060C01F\",12,1",
                {kOn, "TIMEOUT: 12", kResponse},
                "Activate"},
        ReadRow{"EmptyTimeout", "1,\"160060C01F\",,1", {kOn, "TIMEOUT: ", kResponse}, "Activate"},
        ReadRow{"UnknownMode",
                "3,\"160060C01F\",3,1",
                {"Current Status: ", "TIMEOUT: 3", kResponse},
                ""},
        ReadRow{
            "EmptyMode", ",\"160060C01F\",30,1", {"Current Status: ", "TIMEOUT: 0", kResponse}, ""},
        ReadRow{"UnknownResponse", "0,\"160060C01F\",3,2", {kOff, "TIMEOUT: 3", ""}, "DeActivate"},
        ReadRow{"EmptyResponse", "0,\"160060C01F\",3,", {kOff, "TIMEOUT: 3", ""}, "DeActivate"},
        ReadRow{"OnlyTheFirstCharacterOfTheResponse",
                "0,\"160060C01F\",3,10",
                {kOff, "TIMEOUT: 3", kResponse},
                "DeActivate"},
        // A shorter configuration moves the fields out of their places.
        ReadRow{"ConfigurationOfNineCharacters",
                "1,\"160060C01\",33,1",
                {kOn, "TIMEOUT: 3", kResponse},
                "Activate"},
        ReadRow{"ConfigurationWithoutQuotes",
                "1,160060C01F,3333,1",
                {kOn, "TIMEOUT: 33", kResponse},
                "Activate"}),
    RowName());

struct BrokenStatusRow {
  std::string name;
  std::string fields;
};

class BrokenToolkitReply : public ToolkitRead,
                           public ::testing::WithParamInterface<BrokenStatusRow> {};

TEST_P(BrokenToolkitReply, EndsTheReadSilently) {
  load(information("+STSF: " + GetParam().fields));
  EXPECT_EQ(status(), kNothing);
  EXPECT_EQ(mode(), "");
  EXPECT_NE(transcript(), "");
  EXPECT_TRUE(form().Visible.peek());
  expectAtRest();
}

// With the "OK" beyond the twenty-five characters there is nothing to look for the timeout in; nor
// is there with fields so short that their end lies before its place.
INSTANTIATE_TEST_SUITE_P(
    With, BrokenToolkitReply,
    ::testing::Values(BrokenStatusRow{"TimeoutOfThreeDigits", "1,\"160060C01F\",120,1"},
                      BrokenStatusRow{"ConfigurationOfTwentyCharacters",
                                      "1,\"160060C01F160060C01F\",3,1"},
                      BrokenStatusRow{"NoResponse", "1,\"160060C01F\",3"},
                      BrokenStatusRow{"EmptyConfiguration", "1,\"\",3,1"},
                      BrokenStatusRow{"ModeAlone", "1"}, BrokenStatusRow{"Nothing", ""}),
    RowName());

TEST_F(ToolkitRead, WithoutEchoShowsTheSame) {
  replyWithoutEcho("AT+STSF?", information("+STSF: " + kActive));
  openWindow();
  EXPECT_EQ(status(), (Texts{kOn, "TIMEOUT: 3", kResponse}));
}

TEST_F(ToolkitRead, AnErrorIsSaidOnTheHiddenLabel) {
  load(kError);
  EXPECT_EQ(status(), (Texts{"(Cannot Get The Current Status)", "()", "()"}));
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(ToolkitRead, AnErrorBesideTheStatusTakesItsFirstLine) {
  load("\r\n+STSF: " + kActive + "\r\n\r\nOK\r\n\r\nERROR\r\n");
  EXPECT_EQ(status(), (Texts{"Cannot Get The Current Status", "TIMEOUT: 3", kResponse}));
  EXPECT_EQ(mode(), "Activate");
  EXPECT_EQ(transcript(), "");
}

TEST_F(ToolkitRead, AnErrorInTheReplysPlaceEndsItSilently) {
  load("\r\n+STSF: " + kActive + "\r\n\r\nERROR\r\n");
  EXPECT_EQ(status(), kNothing);
  EXPECT_NE(transcript(), "");
}

TEST_F(ToolkitRead, AnOkAloneShowsNothing) {
  load(kOk);
  EXPECT_EQ(status(), kNothing);
  EXPECT_EQ(transcript(), "");
}

TEST_F(ToolkitRead, WithoutAPortComesUpWithItsList) {
  closePort();
  openWindow();
  EXPECT_EQ(status(), kNothing);
  EXPECT_EQ(form().Combo1.ListCount(), 3);
  EXPECT_TRUE(form().Visible.peek());
  expectAtRest();
}

TEST_F(ToolkitRead, RefreshReadsAnewUnderTheWordsOfTheWait) {
  loadActive();
  pick(form().Combo1, configure);
  fill(form().Text1, "160060C01F");
  inPanel([this] { form().Label6.Visible = true; });
  run(0);
  click(form().Command2);
  EXPECT_EQ(status(), (Texts{"Plz Wait.Checking Current Values", "TIMEOUT: 3", kResponse}));
  EXPECT_FALSE(asksForConfiguration());
  EXPECT_EQ(form().Text1.Text.peek(), "");
  EXPECT_FALSE(wantsReset());
  EXPECT_EQ(mode(), "");
  EXPECT_EQ(sent(), Texts{"AT+STSF?\r"});
  settle();
  EXPECT_EQ(status(), (Texts{kOn, "TIMEOUT: 3", kResponse}));
  EXPECT_EQ(mode(), "Activate");
  EXPECT_EQ(form().Combo1.ListCount(), 3);
  expectAtRest();
}

TEST_F(ToolkitRead, ARefreshTakesTheOldStatusDownBeforeItSaysThatItChecks) {
  loadActive();
  Texts words;
  const PropertyWatch watch(form().Label2, [&](PropertyId property) {
    if (property == PropertyId::Caption) words.push_back(form().Label2.Caption.peek());
  });
  click(form().Command2);
  EXPECT_EQ(words, (Texts{"", "Plz Wait.Checking Current Values"}));
}

TEST_F(ToolkitRead, ARefusedRefreshIsOnView) {
  loadActive();
  reply("AT+STSF?", kError);
  press(form().Command2);
  EXPECT_EQ(status(), (Texts{"Cannot Get The Current Status", "TIMEOUT: 3", kResponse}));
}

TEST_F(ToolkitRead, ARingTakesTheReplyThatItComesWith) {
  load(information("+STSF: " + kActive) + unsolicited("RING"));
  EXPECT_EQ(status(), kNothing);
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
}

TEST_F(ToolkitRead, APollInTheMiddleSharesTheTranscript) {
  loadActive();
  reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
  reply("AT+STSF?", information("+STSF: " + kActive), fromSeconds(1.5));
  inPanel([this] { form1().Timer2.Enabled = true; });
  run(1);
  click(form().Command2);
  run(10);
  EXPECT_EQ(status(), (Texts{kOn, "TIMEOUT: 3", kResponse}));
}

TEST_F(ToolkitRead, ClosingTheWindowInARefreshLoadsItAnewWithWhatWasTold) {
  loadActive();
  click(form().Command2);
  run(0.5);
  closeWindow();
  EXPECT_FALSE(form().isLoaded());
  settle();
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_EQ(sent(), (Texts{"AT+STSF?\r", "AT+STSF?\r"}));
  EXPECT_EQ(status(), (Texts{kOn, "TIMEOUT: 3", kResponse}));
  expectAtRest();
}

// Its own reading clears the error that the first one had seen by then.
TEST_F(ToolkitRead, ClosingTheWindowInARefreshDoesntMakeTheFirstReadingForgetTheError) {
  load("\r\n+STSF: " + kActive + "\r\n\r\nOK\r\n\r\nERROR\r\n");
  click(form().Command2);
  run(0.5);
  reply("AT+STSF?", information("+STSF: " + kActive));
  closeWindow();
  settle();
  EXPECT_EQ(status(), (Texts{"Cannot Get The Current Status", "TIMEOUT: 3", kResponse}));
  EXPECT_EQ(mode(), "Activate");
  expectAtRest();
}

TEST_F(ToolkitRead, MidnightEndsItWhereItIs) {
  startWithOpenPort({2026, 3, 1, 23, 59, 0});
  reply("AT+STSF?", information("+STSF: " + kActive));
  run(59.5 - now());
  beginLoad();
  run(1);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(status(), kNothing);
  EXPECT_TRUE(form().Visible.peek());
  expectAtRest();
}

// A reply of which the line loses everything behind some byte.
class CutToolkitReply : public ToolkitRead, public ::testing::WithParamInterface<int> {};

TEST_P(CutToolkitReply, IsShownWholeOrNotAtAll) {
  const int line = 9 + 2;        // echo and line end
  const int ok = line + 25 + 4;  // two line ends
  replyCut("AT+STSF?", information("+STSF: " + kActive), GetParam());
  openWindow();
  EXPECT_EQ(status(), GetParam() < ok + 2 ? kNothing : (Texts{kOn, "TIMEOUT: 3", kResponse}));
  EXPECT_EQ(transcript().empty(), GetParam() < line + 6 || GetParam() >= ok + 2);
  expectAtRest();
}

TEST_P(CutToolkitReply, IsWholeAgainWhenTheRestFollowsShortly) {
  replyCut("AT+STSF?", information("+STSF: " + kActive), GetParam(), 0.5);
  openWindow();
  EXPECT_EQ(status(), (Texts{kOn, "TIMEOUT: 3", kResponse}));
}

INSTANTIATE_TEST_SUITE_P(AtByte, CutToolkitReply, ::testing::Range(0, 45));

}  // namespace
}  // namespace gsm
