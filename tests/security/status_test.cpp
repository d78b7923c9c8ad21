#include <gtest/gtest.h>

#include "tests/security/security_test.h"

namespace gsm {
namespace {

class LockStatus : public SecurityTest {
 protected:
  /// The window as it stands before a read, with its own words on the status lines.
  void openWithWords() {
    openWindow();
    inPanel([this] {
      form().Label2.Caption = "phone";
      form().Label6.Caption = "pin";
      form().Label10.Caption = "network";
    });
    run(0);
  }
};

TEST_F(LockStatus, IsReadWhenTheWindowOpens) {
  answerLocks(information("+CLCK:(\"PS\",1),(\"SC\",0),(\"PN\",1)"));
  leaveInTranscript("\r\n+CLCK: \"PS\",0\r\n");
  inPanel([this] { form().Show(); });
  run(0);
  EXPECT_EQ(caption(form().Label1), kReading);
  EXPECT_EQ(transcript(), "");
  EXPECT_FALSE(form().Visible.peek());
  settle();
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(sent(), Texts{"AT+CLCK?\r"});
  EXPECT_EQ(states(), (Texts{kPhoneLocked, kPinDeactivated, kNetworkLocked}));
  EXPECT_EQ(caption(form().Label1), "");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(LockStatus, OpeningShowsThePageOfThePhone) {
  openWindow();
  EXPECT_TRUE(form().Frame2.Visible.peek());
  EXPECT_FALSE(form().Frame3.Visible.peek());
  EXPECT_FALSE(form().Frame4.Visible.peek());
  EXPECT_EQ(form().TabStrip1.Value.peek(), phone);
}

TEST_F(LockStatus, IsReadAnewByRefreshWhichLeavesThePage) {
  openWithWords();
  turnTo(network);
  answerLocks(information("+CLCK:(\"PS\",0),(\"SC\",1),(\"PN\",0)"));
  leaveInTranscript("old");
  click(form().Command10);
  EXPECT_EQ(caption(form().Label1), kReading);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(states(), (Texts{"phone", "pin", "network"}));
  run(0.99);
  EXPECT_EQ(states(), (Texts{"phone", "pin", "network"}));
  EXPECT_GT(waiting(), 0);
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CLCK?\r"});
  EXPECT_EQ(states(), (Texts{kPhoneUnlocked, kPinActivated, kNetworkUnlocked}));
  EXPECT_EQ(caption(form().Label1), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_TRUE(form().Frame4.Visible.peek());
  EXPECT_FALSE(form().Frame2.Visible.peek());
}

struct StatusRow {
  std::string name;
  std::string reply;
  Texts states;
  std::string banner = "";
};

class LockReply : public LockStatus, public ::testing::WithParamInterface<StatusRow> {};

TEST_P(LockReply, IsShown) {
  openWithWords();
  answerLocks(GetParam().reply);
  press(form().Command10);
  EXPECT_EQ(states(), GetParam().states);
  EXPECT_EQ(caption(form().Label1), GetParam().banner);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, LockReply,
    ::testing::Values(
        StatusRow{"AllOff",
                  information("+CLCK:(\"PS\",0),(\"SC\",0),(\"PN\",0)"),
                  {kPhoneUnlocked, kPinDeactivated, kNetworkUnlocked}},
        StatusRow{"AllOn",
                  information("+CLCK:(\"PS\",1),(\"SC\",1),(\"PN\",1)"),
                  {kPhoneLocked, kPinActivated, kNetworkLocked}},
        StatusRow{"AnyOrder",
                  information("+CLCK: (\"PN\",1),(\"FD\",1),(\"SC\",0),(\"PS\",1)"),
                  {kPhoneLocked, kPinDeactivated, kNetworkLocked}},
        StatusRow{"LinesOfTheirOwn",
                  "\r\n+CLCK:\"PS\",1\r\n+CLCK:\"SC\",1\r\n+CLCK:\"PN\",0\r\n\r\nOK\r\n",
                  {kPhoneLocked, kPinActivated, kNetworkUnlocked}},
        StatusRow{"WithoutTheNetwork",
                  information("+CLCK:(\"PS\",1),(\"SC\",1)"),
                  {kPhoneLocked, kPinActivated, "network"}},
        StatusRow{
            "ThePhoneAlone", information("+CLCK:(\"PS\",0)"), {kPhoneUnlocked, "pin", "network"}},
        StatusRow{
            "ThePinAlone", information("+CLCK:(\"SC\",1)"), {"phone", kPinActivated, "network"}},
        StatusRow{
            "TheNetworkAlone", information("+CLCK:(\"PN\",1)"), {"phone", "pin", kNetworkLocked}},
        StatusRow{"AnotherDigit",
                  information("+CLCK:(\"PS\",2),(\"SC\",1),(\"PN\",9)"),
                  {"phone", kPinActivated, "network"}},
        StatusRow{
            "NoneOfThem", information("+CLCK:(\"FD\",0)"), {"phone", "pin", "network"}, kReading},
        StatusRow{"TheFirstPlaceCounts",
                  information("+CLCK:(\"PS\",1),(\"PS\",0),(\"PN\",0),(\"PN\",1)"),
                  {kPhoneLocked, "pin", kNetworkUnlocked}},
        StatusRow{"ANameWithinAnother",
                  information("+CLCK:(\"XPS0 1\",5),(\"PS\",0)"),
                  {kPhoneLocked, "pin", "network"}},
        StatusRow{"WithoutOk", "\r\n+CLCK:(\"PS\",1)\r\n", {kPhoneLocked, "pin", "network"}},
        StatusRow{"WithAnError",
                  "\r\n+CLCK:(\"PS\",1)\r\n\r\nERROR\r\n",
                  {kPhoneLocked, "pin", "network"}},
        StatusRow{"Error", kError, {"phone", "pin", "network"}, kReading},
        StatusRow{"OkAlone", kOk, {"phone", "pin", "network"}, kReading},
        StatusRow{
            "NamesAlone", "\r\n(\"PS\",1)\r\n\r\nOK\r\n", {"phone", "pin", "network"}, kReading},
        StatusRow{"Silence", "", {"phone", "pin", "network"}, kReading}),
    RowName());

class BrokenLockReply : public LockStatus, public ::testing::WithParamInterface<StatusRow> {};

TEST_P(BrokenLockReply, EndsTheReadWhereItStands) {
  openWithWords();
  answerLocks(GetParam().reply);
  press(form().Command10);
  EXPECT_EQ(states(), GetParam().states);
  EXPECT_EQ(caption(form().Label1), GetParam().banner);
  EXPECT_EQ(transcript(), "AT+CLCK?\r" + GetParam().reply);
  expectAtRest();
}

TEST_P(BrokenLockReply, LeavesTheWindowUpWhenItOpens) {
  answerLocks(GetParam().reply);
  openWindow();
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(caption(form().Label1), GetParam().banner);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, BrokenLockReply,
    ::testing::Values(
        StatusRow{"ALetterFirst",
                  information("+CLCK:(\"PS\",x),(\"SC\",1),(\"PN\",1)"),
                  {"phone", "pin", "network"}},
        StatusRow{"ALetterInTheMiddle",
                  information("+CLCK:(\"PS\",0),(\"SC\",x),(\"PN\",1)"),
                  {kPhoneUnlocked, "pin", "network"}},
        StatusRow{"ALetterLast",
                  information("+CLCK:(\"PS\",0),(\"SC\",1),(\"PN\",x)"),
                  {kPhoneUnlocked, kPinActivated, "network"}},
        StatusRow{
            "ABlankBeforeTheDigit", information("+CLCK:(\"PS\", 0)"), {"phone", "pin", "network"}},
        StatusRow{"NothingBehindTheName", "\r\n+CLCK:(\"PS\",", {"phone", "pin", "network"}}),
    RowName());

// Replies of which the line loses everything after some byte.
class CutLockReply : public LockStatus, public ::testing::WithParamInterface<int> {};

TEST_P(CutLockReply, IsReadAsFarAsItGoes) {
  openWithWords();
  const std::string whole = "AT+CLCK?\r\r\n+CLCK:(\"PS\",1),(\"SC\",1),(\"PN\",1)\r\n\r\nOK\r\n";
  const auto cut = static_cast<std::size_t>(GetParam());
  const std::string begin = whole.substr(0, cut);
  std::vector<ModemScript::Chunk> chunks;
  if (!begin.empty()) chunks.push_back({ModemScript::kDefaultDelay, begin});
  world().modem.add({.write = "AT+CLCK?\r", .replies = {chunks}, .echo = false});
  press(form().Command10);

  Texts expected = {"phone", "pin", "network"};
  const Texts words = {kPhoneLocked, kPinActivated, kNetworkLocked};
  const char* const names[] = {"PS\",", "SC\",", "PN\","};
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (cut > whole.find(names[i]) + 4) expected[i] = words[i];
  }
  EXPECT_EQ(states(), expected);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(AtByte, CutLockReply, ::testing::Range(0, 56));

TEST_F(LockStatus, AReplyOfThousandsOfBytesIsRead) {
  openWithWords();
  answerLocks(information("+CLCK:" + std::string(5000, '(') + "\"SC\",1)"));
  press(form().Command10);
  EXPECT_EQ(states(), (Texts{"phone", kPinActivated, "network"}));
}

TEST_F(LockStatus, WithoutAPortKeepsTheBanner) {
  openWithWords();
  closePort();
  press(form().Command10);
  EXPECT_EQ(states(), (Texts{"phone", "pin", "network"}));
  EXPECT_EQ(caption(form().Label1), kReading);
  expectAtRest();
}

TEST_F(LockStatus, WithoutAPortTheWindowComesUpAllTheSame) {
  closePort();
  openWindow();
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(caption(form().Label1), kReading);
  expectAtRest();
}

TEST_F(LockStatus, ARingTakesTheReplyThatItComesWith) {
  openWithWords();
  answerLocks(information("+CLCK:(\"PS\",1)") + unsolicited("RING"));
  press(form().Command10);
  EXPECT_EQ(states(), (Texts{"phone", "pin", "network"}));
  EXPECT_EQ(caption(form().Label1), kReading);
}

TEST_F(LockStatus, ClosingTheWindowMeanwhileLoadsItAnewForTheReply) {
  openWithWords();
  answerLocks(information("+CLCK:(\"PS\",1),(\"SC\",1),(\"PN\",1)"));
  click(form().Command10);
  run(0.5);
  closeWindow();
  EXPECT_FALSE(form().isLoaded());
  settle();
  EXPECT_TRUE(form().isLoaded());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_EQ(sent(), (Texts{"AT+CLCK?\r", "AT+CLCK?\r"}));
  EXPECT_EQ(caption(form().Label2), kPhoneLocked);
  expectAtRest();
}

TEST_F(LockStatus, ClosingTheWindowMeanwhileLeavesTheReplyThatWasTakenToBeRead) {
  openWithWords();
  const auto locks = [](const std::string& line) {
    return ModemScript::Reply{{ModemScript::kDefaultDelay, information(line)}};
  };
  world().modem.add({.write = "AT+CLCK?\r",
                     .replies = {locks("+CLCK:(\"PS\",0),(\"SC\",0),(\"PN\",0)"),
                                 locks("+CLCK:(\"PS\",1),(\"SC\",1),(\"PN\",1)")}});
  click(form().Command10);
  run(0.5);
  closeWindow();
  settle();
  EXPECT_EQ(caption(form().Label6), "Current Status:PIN Deactivated");
  EXPECT_EQ(caption(form().Label10), "Current Status:NetWork UNlocked");
}

class LockStatusAtMidnight : public LockStatus {
 protected:
  void SetUp() override { startWithOpenPort({2026, 3, 1, 23, 59, 50}); }
};

TEST_F(LockStatusAtMidnight, EndsTheReadAndKeepsTheBanner) {
  answerLocks(information("+CLCK:(\"PS\",1)"));
  run(9.5 - now());
  inPanel([this] { form().Show(); });
  run(1);
  EXPECT_EQ(caption(form().Label1), kReading);
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(states(), (Texts{"", "", ""}));
  EXPECT_EQ(transcript(), "AT+CLCK?\r" + information("+CLCK:(\"PS\",1)"));
  expectAtRest();
}

}  // namespace
}  // namespace gsm
