#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/sms/message_window_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

const std::string kRead =
    "\r\n+CMGR: \"REC READ\",\"0146290800\",,\"98/10/01,18:22:11+00\"\r\nABCdefGHI\r\n\r\nOK\r\n";
const std::string kUnsent =
    "\r\n+CMGR: \"STO UNSENT\",\"+33146290800\",\r\nABCdefGHI\r\n\r\nOK\r\n";
constexpr const char* kReadShown = "From:0146290800  ,READMSG: ABCdefGHI\r\n\r\n";

class ReadEntry : public MessageWindowTest {
 protected:
  void read(const std::string& entry = "3") {
    choose(window().Combo1, entry);
    press(window().Command3);
  }
  void load(const std::string& entry = "3") {
    click(window().Command5);
    choose(window().Combo2, entry);
    settle();
  }
};

struct EntryRow {
  std::string name;
  std::string reply;
  std::string shown;   // by "Read"
  std::string loaded;  // into the message
  bool isCleared = true;
};

class StoreEntry : public ReadEntry, public ::testing::WithParamInterface<EntryRow> {
 protected:
  void expectTranscript() {
    EXPECT_EQ(transcript(), GetParam().isCleared ? "" : "AT+CMGR= 3\r" + GetParam().reply);
  }
};

TEST_P(StoreEntry, IsShownWithItsSender) {
  reply("AT+CMGR= 3", GetParam().reply);
  window().Text3.Text = "before";
  compose("112", "text", "header");
  read();
  EXPECT_EQ(sent(), Texts{"AT+CMGR= 3\r"});
  EXPECT_EQ(messageRead(), GetParam().shown);
  EXPECT_EQ(number() + message() + header(), "112textheader");
  expectTranscript();
  expectAtRest();
}

TEST_P(StoreEntry, IsLoadedIntoTheMessageWithoutItsSender) {
  reply("AT+CMGR= 3", GetParam().reply);
  window().Text3.Text = "before";
  window().Label4.Caption = "note";
  compose("112", "text");
  load();
  EXPECT_EQ(sent(), Texts{"AT+CMGR= 3\r"});
  EXPECT_EQ(message(), GetParam().loaded);
  EXPECT_EQ(messageRead(), "before");
  EXPECT_EQ(number(), "112");
  EXPECT_EQ(note(), "note");
  expectTranscript();
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Received, StoreEntry,
    ::testing::Values(
        EntryRow{"Read", kRead, kReadShown, "ABCdefGHI\r\n\r\n"},
        EntryRow{"Unread",
                 "\r\n+CMGR: \"REC UNREAD\",\"+33146290800\",,\"98/10/01,18:22:11+00\"\r\nABC\r\n"
                 "\r\nOK\r\n",
                 "From:+33146290800  ,UNREADMSG: ABC\r\n\r\n", "ABC\r\n\r\n"},
        EntryRow{"Empty", "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\n\r\n\r\nOK\r\n",
                 "From:112  ,READMSG: \r\n\r\n", "\r\n\r\n"},
        EntryRow{"OfSeveralLines",
                 "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\none\r\ntwo\r\n\r\nOK\r\n",
                 "From:112  ,READMSG: one\r\ntwo\r\n\r\n", "one\r\ntwo\r\n\r\n"},
        EntryRow{"WithoutANumber", "\r\n+CMGR: \"REC READ\",\"\",,\"t\"\r\none\r\n\r\nOK\r\n",
                 "From:  ,READMSG: one\r\n\r\n", "one\r\n\r\n"},
        EntryRow{"WithOkInTheText",
                 "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\nIt is OK now\r\n\r\nOK\r\n",
                 "From:112  ,READMSG: It is ", "It is "},
        EntryRow{"WithErrorInTheText",
                 "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\nno ERROR\r\n\r\nOK\r\n",
                 "From:112  ,READMSG: no ERROR\r\n\r\n", "no ERROR\r\n\r\n"},
        EntryRow{"BesideAnError",
                 "\r\nERROR\r\n\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\none\r\n\r\nOK\r\n",
                 "From:112  ,READMSG: one\r\n\r\n", "one\r\n\r\n"},
        EntryRow{"WithTheReplysWordInTheText",
                 "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\n+CMGR: one\r\n\r\nOK\r\n",
                 "From:112  ,READMSG: +CMGR: one\r\n\r\n", "+CMGR: one\r\n\r\n"},
        EntryRow{"WithoutALineEnd", "\r\n+CMGR: \"REC READ\",\"0146\",,xOK",
                 "From:0146  ,READMSG: 0146\",,x", "0146\",,x"},
        EntryRow{"FromANamedSenderHasNoNumber",
                 "\r\n+CMGR: \"REC READ\",\"112\",\"Help\",\"t\"\r\none\r\n\r\nOK\r\n", "", "",
                 false},
        EntryRow{"FromANamedSenderWithCommasInTheText",
                 "\r\n+CMGR: \"REC READ\",\"+331\",\"Bob\",\"t\"\r\na,,b\r\n\r\nOK\r\n",
                 "From:+331\",\"Bob\",\"t\"\r\n  ,READMSG: a,,b\r\n\r\n", "a,,b\r\n\r\n"},
        EntryRow{"UnreadFromANamedSenderHasNoNumber",
                 "\r\n+CMGR: \"REC UNREAD\",\"112\",\"Help\",\"t\"\r\none\r\n\r\nOK\r\n", "", "",
                 false},
        EntryRow{"WithoutAResult", "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\none\r\n", "", "",
                 false},
        EntryRow{"BehindAnotherResult",
                 "\r\nOK\r\n\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\none\r\n\r\nOK\r\n", "", "",
                 false}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Unsent, StoreEntry,
    ::testing::Values(
        EntryRow{"Stored", kUnsent, "From:+33146290800  ,UNSENTMSG: ABCdefGHI\r\n\r\n",
                 "ABCdefGHI\r\n\r\n"},
        EntryRow{"WithoutANumber", "\r\n+CMGR: \"STO UNSENT\",\"\",\r\nABC\r\n\r\nOK\r\n",
                 "From:  ,UNSENTMSG: ABC\r\n\r\n", "ABC\r\n\r\n"},
        EntryRow{"WithoutALineEnd", "\r\n+CMGR: \"STO UNSENT\",\"112\",OK\r\n", "", "", false},
        EntryRow{"WithoutAQuotedAddress", "\r\n+CMGR: \"STO UNSENT\",,\r\nABC\r\n\r\nOK\r\n", "",
                 "", false},
        EntryRow{"WithoutAResult", "\r\n+CMGR: \"STO UNSENT\",\"112\",\r\nABC\r\n", "", "", false}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Sent, StoreEntry,
    ::testing::Values(
        EntryRow{"ShowsNothing", "\r\n+CMGR: \"STO SENT\",\"+33146290800\",\r\nABC\r\n\r\nOK\r\n",
                 "", ""},
        EntryRow{"ToTwoDigits", "\r\n+CMGR: \"STO SENT\",\"11\",\r\nABC\r\n\r\nOK\r\n", "", ""},
        EntryRow{"ToOneDigitHasNoneLeft", "\r\n+CMGR: \"STO SENT\",\"1\",\r\nABC\r\n\r\nOK\r\n", "",
                 "", false},
        EntryRow{"ToNobody", "\r\n+CMGR: \"STO SENT\",\"\",\r\nABC\r\n\r\nOK\r\n", "", "", false},
        EntryRow{"ToALetter", "\r\n+CMGR: \"STO SENT\",\"0146x\",\r\nABC\r\n\r\nOK\r\n", "", "",
                 false},
        EntryRow{"ToALetterInFront", "\r\n+CMGR: \"STO SENT\",\"x0146\",\r\nABC\r\n\r\nOK\r\n", "",
                 ""},
        EntryRow{"ToALetterThatIsAnExponent",
                 "\r\n+CMGR: \"STO SENT\",\"01e5\",\r\nABC\r\n\r\nOK\r\n", "", ""},
        EntryRow{"ToASignInSecondPlace", "\r\n+CMGR: \"STO SENT\",\"0+146\",\r\nABC\r\n\r\nOK\r\n",
                 "", ""},
        EntryRow{"ToAPoint", "\r\n+CMGR: \"STO SENT\",\"01.5\",\r\nABC\r\n\r\nOK\r\n", "", ""},
        EntryRow{"ToBlanksAround", "\r\n+CMGR: \"STO SENT\",\"0 14 \",\r\nABC\r\n\r\nOK\r\n", "",
                 ""},
        EntryRow{"ToANumberInPieces", "\r\n+CMGR: \"STO SENT\",\"0 1 4\",\r\nABC\r\n\r\nOK\r\n", "",
                 "", false},
        EntryRow{"WithoutAResult", "\r\n+CMGR: \"STO SENT\",\"0146\",\r\nABC\r\n", "", "", false},
        // What is cut out for the number goes on beyond the result.
        EntryRow{"WithAResultInTheNumber", "\r\n+CMGR: \"STO SENT\",\"01OK\r\n", "", ""},
        EntryRow{"WithoutALineEnd", "\r\n+CMGR: \"STO SENT\",\"0146\",OK", "", "", false},
        EntryRow{"BesideAnErrorSaysNoMessage",
                 "\r\nERROR\r\n\r\n+CMGR: \"STO SENT\",\"0146\",\r\nABC\r\n\r\nOK\r\n",
                 "No Message", "No Message"}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    WordsInTheText, StoreEntry,
    ::testing::Values(
        EntryRow{"SentOneThatFails",
                 "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\nSTO SENT\r\n\r\nOK\r\n", "", "", false},
        EntryRow{"SentOneThatPasses",
                 "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\nSTO SENT,  912345678\r\n\r\nOK\r\n", "",
                 ""},
        EntryRow{"SentBeforeUnsent",
                 "\r\n+CMGR: \"STO UNSENT\",\"112\",\r\nSTO SENT,  912345678\r\n\r\nOK\r\n", "",
                 ""},
        EntryRow{"UnsentBeforeRead",
                 "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\nSTO UNSENT  \"345\",\r\nmore\r\n\r\nOK",
                 "From:345  ,UNSENTMSG: more\r\n\r\n", "more\r\n\r\n"},
        EntryRow{
            "ReadBeforeUnread",
            "\r\n+CMGR: \"REC UNREAD\",\"112\",,\"t\"\r\nREC READ  \"345\",, x\r\nmore\r\n\r\nOK",
            "From:345  ,READMSG: more\r\n\r\n", "more\r\n\r\n"}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    None, StoreEntry,
    ::testing::Values(EntryRow{"Error", kError, "No Message", "No Message"},
                      EntryRow{"CodedError", "\r\n+CMS ERROR: 321\r\n", "No Message", "No Message"},
                      EntryRow{"OkAlone", kOk, "", ""}, EntryRow{"NothingButTheEcho", "", "", ""},
                      EntryRow{"ANumberedStatus", "\r\n+CMGR: 1,,24\r\n0791\r\n\r\nOK\r\n", "", ""},
                      EntryRow{"ANumberedStatusBesideAnError",
                               "\r\n+CMGR: 1,,24\r\n0791\r\n\r\nERROR\r\n", "No Message",
                               "No Message"},
                      EntryRow{"AStatusWithoutTheReplysWord",
                               "\r\n\"REC READ\",\"112\",,\"t\"\r\na\r\n\r\nOK", "", ""},
                      EntryRow{"AStatusInAnotherCase",
                               "\r\n+CMGR: \"Rec Read\",\"112\",,\"t\"\r\na\r\n\r\nOK", "", ""},
                      EntryRow{"TheReplysWordInAnotherCase",
                               "\r\n+cmgr: \"REC READ\",\"112\",,\"t\"\r\na\r\n\r\nOK", "", ""}),
    RowName());

TEST_F(ReadEntry, TakesASecondWithASilentModem) {
  stopSendEvents();
  const double start = now();
  read("12");
  EXPECT_NEAR(now() - start, 1, 0.01);
  EXPECT_EQ(sent(), Texts{"AT+CMGR= 12\r"});
  EXPECT_EQ(messageRead(), "");
  load("1");
  EXPECT_NEAR(now() - start, 2, 0.01);
  EXPECT_EQ(sent(), Texts{"AT+CMGR= 1\r"});
  EXPECT_EQ(message(), "");
}

TEST_F(ReadEntry, EmptiesTheBoxTheTranscriptAndTheStatusLabelFirst) {
  window().Text3.Text = "before";
  window().Label4.Caption = "before";
  leaveInTranscript(kRead);
  click(window().Command3);
  EXPECT_EQ(messageRead() + note() + transcript(), "");
  settle();
  EXPECT_EQ(messageRead(), "");
}

TEST_F(ReadEntry, LoadingEmptiesTheMessageAndTheTranscriptFirst) {
  compose("112", "before", "header");
  window().Label4.Caption = "note";
  leaveInTranscript(kRead);
  click(window().Command5);
  choose(window().Combo2, "2");
  EXPECT_EQ(message() + transcript(), "");
  EXPECT_EQ(note(), "note");
  settle();
  EXPECT_EQ(message(), "");
  EXPECT_EQ(header(), "header");
  EXPECT_TRUE(window().Combo2.Visible.peek());
}

TEST_F(ReadEntry, WithNothingPickedAsksForNoEntry) {
  reply("AT+CMGR= ", kError);
  press(window().Command3);
  EXPECT_EQ(sent(), Texts{"AT+CMGR= \r"});
  EXPECT_EQ(messageRead(), "No Message");
}

TEST_F(ReadEntry, PickingAnEntryToReadSendsNothingYet) {
  choose(window().Combo1, "7");
  settle();
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(ReadEntry, TypingAnIndexLoadsNothing) {
  click(window().Command5);
  inPanel([this] { window().Combo2.userType("5"); });
  settle();
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(ReadEntry, PickingTheSameEntryAgainLoadsItAgain) {
  reply("AT+CMGR= 3", kUnsent);
  load();
  window().Text2.Text = "changed";
  load();
  EXPECT_EQ(message(), "ABCdefGHI\r\n\r\n");
  EXPECT_EQ(sent(), (Texts{"AT+CMGR= 3\r", "AT+CMGR= 3\r"}));
}

TEST_F(ReadEntry, ShowsAMessageOfAnyLengthAndLoadsWhatThereIsRoomFor) {
  const std::string text(160, 'x');
  reply("AT+CMGR= 3", "\r\n+CMGR: \"STO UNSENT\",\"112\",\r\n" + text + "\r\n\r\nOK\r\n");
  read();
  EXPECT_EQ(messageRead(), "From:112  ,UNSENTMSG: " + text + "\r\n\r\n");
  load();
  EXPECT_EQ(message(), text);
  window().Text5.Text = std::string(20, 'h');
  load();
  EXPECT_EQ(message(), std::string(140, 'x'));
}

TEST_F(ReadEntry, ShowsEachOfTheCodePagesBytes) {
  std::string text;
  for (int byte = 0; byte < 256; ++byte) text += static_cast<char>(byte);
  reply("AT+CMGR= 3", "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\n" + text + "\r\n\r\nOK\r\n");
  read();
  EXPECT_EQ(messageRead(), "From:112  ,READMSG: " + text + "\r\n\r\n");
}

TEST_F(ReadEntry, ShowsAReplyOfFiveThousandBytes) {
  const std::string text(5000, 'x');
  reply("AT+CMGR= 3", "\r\n+CMGR: \"REC READ\",\"112\",,\"t\"\r\n" + text + "\r\n\r\nOK\r\n");
  read();
  EXPECT_EQ(messageRead(), "From:112  ,READMSG: " + text + "\r\n\r\n");
}

TEST_F(ReadEntry, CanBeSentOnToAnotherNumber) {
  reply("AT+CMGR= 3", kUnsent);
  load();
  window().Text1.Text = "999";
  press(window().Command1);
  EXPECT_EQ(sent(), (Texts{"AT+CMGR= 3\r", "AT+CMGS=999\r", "ABCdefGHI\r\n\r\n\x1A"}));
}

// A reply of which the line loses or delays everything after some byte.
class CutEntry : public ReadEntry, public ::testing::WithParamInterface<int> {
 protected:
  static std::string whole() { return "AT+CMGR= 3\r" + kRead; }
  void answerInPieces(double restAfter) {
    const auto cut = static_cast<std::size_t>(GetParam());
    std::vector<ModemScript::Chunk> chunks;
    if (cut > 0) chunks.push_back({ModemScript::kDefaultDelay, whole().substr(0, cut)});
    if (restAfter > 0) chunks.push_back({fromSeconds(restAfter), whole().substr(cut)});
    world().modem.add({.write = "AT+CMGR= 3\r", .replies = {chunks}, .echo = false});
  }
  std::string begun() { return whole().substr(0, static_cast<std::size_t>(GetParam())); }
  void expectHealed() {
    reply("AT+CMGR= 3", kRead);
    read();
    EXPECT_EQ(messageRead(), kReadShown);
    expectAtRest();
  }
};

TEST_P(CutEntry, ShowsAllOrNothing) {
  answerInPieces(0);
  read();
  const bool isWhole = begun().find("OK") != std::string::npos;
  const bool hasStatus = begun().find("REC READ") != std::string::npos;
  EXPECT_EQ(messageRead(), isWhole ? kReadShown : "");
  EXPECT_EQ(transcript(), hasStatus && !isWhole ? begun() : "");
  expectAtRest();
  expectHealed();
}

TEST_P(CutEntry, IsWholeWhenTheRestFollowsShortly) {
  answerInPieces(0.5);
  read();
  EXPECT_EQ(messageRead(), kReadShown);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_P(CutEntry, WhoseRestComesLateIsForgottenByTheNext) {
  answerInPieces(20);
  read();
  expectHealed();
}

INSTANTIATE_TEST_SUITE_P(AtEachByte, CutEntry,
                         ::testing::Range(0, static_cast<int>(kRead.size()) + 11));

}  // namespace
}  // namespace gsm
