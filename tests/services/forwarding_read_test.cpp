#include <gtest/gtest.h>

#include <algorithm>

#include "tests/services/services_test.h"

namespace gsm {
namespace {

constexpr const char* kChecking = "Checking Current Status...";

class ForwardingLoad : public ServicesTest {
 protected:
  /// The modem tells `line` of the reason.
  void tell(int reason, const std::string& line) {
    reply("AT+CCFC=" + std::to_string(reason) + ",2", information(line));
  }
};

TEST_F(ForwardingLoad, ReadsOneReasonAfterTheOtherForThreeSecondsEach) {
  const double begin = now();
  beginLoad();
  run(30);
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), kForwardingReads.size());
  for (std::size_t i = 0; i < writes.size(); ++i) {
    EXPECT_EQ(writes[i].text, kForwardingReads[i]);
    EXPECT_NEAR(toSeconds(writes[i].at), begin + 3 * static_cast<double>(i), 0.01);
  }
}

TEST_F(ForwardingLoad, ShowsTheWindowAndThatItReadsAsLongAsItDoes) {
  for (int reason = 0; reason < 6; ++reason) tell(reason, "+CCFC: 0,7");
  beginLoad();
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(caption(form().Label2), kChecking);
  run(kLoad - 0.01);
  EXPECT_EQ(caption(form().Label2), kChecking);
  run(0.02);
  EXPECT_EQ(caption(form().Label2), "");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(ForwardingLoad, ShowsEachReasonOnItsLabelAsItComes) {
  for (int reason = 0; reason < 6; ++reason) tell(reason, "+CCFC: 0,7");
  beginLoad();
  const Texts all = {"UNCONDITIONAL-Call Forward Not Active For All Classes ",
                     "MOBILE BUSY-Call Forward Not Active For All Classes ",
                     "NO REPLY-Call Forward Not Active For All Classes ",
                     "NOT REACHABLE-Call Forward Not Active For All Classes ",
                     "ALL CALL FORWARDING-Call Forward Not Active For All Classes ",
                     "ALL CONDITON CALL FORWARDING-Call Forward Not Active For All Classes "};
  for (std::size_t told = 0; told <= all.size(); ++told) {
    Texts sofar = all;
    std::fill(sofar.begin() + static_cast<std::ptrdiff_t>(told), sofar.end(), "");
    EXPECT_EQ(forwardingShown(), sofar);
    run(told == 0 ? 3.01 : 3);
  }
}

TEST_F(ForwardingLoad, WithoutAnAnswerTakesItsTimeAndShowsNothing) {
  beginLoad();
  run(kLoad - 0.01);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(forwardingShown(), Texts(6));
}

TEST_F(ForwardingLoad, ClearsTheTranscriptBeforeEachRead) {
  leaveInTranscript("\r\n+CCFC: 4,8\r\n\r\nOK\r\n");
  tell(0, "+CCFC: 1,1");
  beginLoad();
  EXPECT_EQ(transcript(), "");
  settle();
  EXPECT_EQ(forwardingShown(),
            (Texts{"UNCONDITIONAL-Call Forward  Active For Voice ", "", "", "", "", ""}));
}

TEST_F(ForwardingLoad, TakesAReplyOfTheLastMomentAndNoneAfterIt) {
  reply("AT+CCFC=0,2", information("+CCFC: 1,1"), fromSeconds(2.99));
  beginLoad();
  settle();
  EXPECT_EQ(forwardingShown()[0], "UNCONDITIONAL-Call Forward  Active For Voice ");
  reply("AT+CCFC=0,2", information("+CCFC: 1,1"), fromSeconds(3.01));
  press(form().Command2);
  EXPECT_EQ(forwardingShown()[0], "");
  EXPECT_EQ(forwardingShown()[1], "MOBILE BUSY-Call Forward  Active For Voice ");
}

TEST_F(ForwardingLoad, RefreshRunsAllOfItAgain) {
  for (int reason = 0; reason < 6; ++reason) tell(reason, "+CCFC: 1,1,\"0146290800\",129");
  openWindow();
  for (int reason = 0; reason < 6; ++reason) reply("AT+CCFC=" + std::to_string(reason) + ",2", "");
  inPanel([this] {
    form().Frame9.Visible = true;
    form().Frame5.Visible = true;
    form().Frame10.Visible = true;
    form().Frame13.Visible = false;
    form().Text1.Text = "0146290800";
  });
  run(0);
  click(form().Command2);
  EXPECT_EQ(forwardingShown(), Texts(6));
  EXPECT_EQ(pages(), (Texts{"Frame1", "Frame13", "Frame11", "Command6"}));
  EXPECT_EQ(caption(form().Label2), kChecking);
  EXPECT_EQ(form().Text1.Text.peek(), "0146290800");
  settle();
  EXPECT_EQ(sent(), kForwardingReads);
  EXPECT_EQ(caption(form().Label2), "");
  EXPECT_EQ(form().Text1.Text.peek(), "");
}

TEST_F(ForwardingLoad, TakesBackWhatWasTypedAndChosen) {
  openWindow();
  OptionButton* const options[] = {
      &form().Option1,  &form().Option2,  &form().Option3,  &form().Option4,  &form().Option5,
      &form().Option6,  &form().Option7,  &form().Option8,  &form().Option12, &form().Option13,
      &form().Option14, &form().Option15, &form().Option16, &form().Option17, &form().Option29};
  for (OptionButton* option : options) {
    inPanel([this, option] {
      form().Text1.Text = "0146290800";
      option->Value = true;
      form().ClearForwardPage();
    });
    run(0);
    const bool ofThePage = option->container()->container() == &form().Frame1;
    EXPECT_EQ(option->Value.peek(), !ofThePage) << option->name();
    EXPECT_EQ(form().Text1.Text.peek(), "");
  }
}

TEST_F(ForwardingLoad, WithoutAPortEndsSilentlyAtItsFirstRead) {
  closePort();
  beginLoad();
  settle();
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(caption(form().Label2), kChecking);
  expectAtRest();
}

// What a reply to the first read shows; the modem's echo stands in front of it.
struct ReplyRow {
  std::string name;
  std::string reply;
  std::string shown;
};

class ForwardingReply : public ForwardingLoad, public ::testing::WithParamInterface<ReplyRow> {};

TEST_P(ForwardingReply, IsShown) {
  reply("AT+CCFC=0,2", GetParam().reply);
  tell(1, "+CCFC: 0,1");
  openWindow();
  EXPECT_EQ(forwardingShown()[0], GetParam().shown);
  EXPECT_EQ(forwardingShown()[1], "MOBILE BUSY-Call Forward Not Active For Voice ");
  EXPECT_EQ(caption(form().Label2), "");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, ForwardingReply,
    ::testing::Values(
        ReplyRow{"NotActive", information("+CCFC: 0,7"),
                 "UNCONDITIONAL-Call Forward Not Active For All Classes "},
        ReplyRow{"Active", information("+CCFC: 1,1"),
                 "UNCONDITIONAL-Call Forward  Active For Voice "},
        ReplyRow{"Interrogated", information("+CCFC: 2,2"),
                 "UNCONDITIONAL-Call Forward  Interrogated For Data "},
        ReplyRow{"Registered", information("+CCFC: 3,4"),
                 "UNCONDITIONAL-Call Forward  Registered For Fax "},
        ReplyRow{"Deleted", information("+CCFC: 4,8"),
                 "UNCONDITIONAL-Call Forward  Deleted For SMS "},
        ReplyRow{"AnotherState", information("+CCFC: 5,1"), "UNCONDITIONAL- Voice "},
        ReplyRow{"AnotherClass", information("+CCFC: 0,3"),
                 "UNCONDITIONAL-Call Forward Not Active For  "},
        ReplyRow{"NoDigitsAtAll", information("+CCFC: x,y"), "UNCONDITIONAL-  "},
        ReplyRow{"Number", information("+CCFC: 1,1,\"0146290800\",129"),
                 "UNCONDITIONAL-Call Forward  Active For Voice 0146290800"},
        ReplyRow{"InternationalNumber", information("+CCFC: 1,7,\"+33146290800\",145"),
                 "UNCONDITIONAL-Call Forward  Active For All Classes +33146290800"},
        ReplyRow{"EmptyNumber", information("+CCFC: 0,1,\"\",129"),
                 "UNCONDITIONAL-Call Forward Not Active For Voice "},
        ReplyRow{"SeveralClassesTheFirstWithANumber",
                 "\r\n+CCFC: 1,1,\"0146290800\",129\r\n+CCFC: 0,2\r\n+CCFC: 0,4\r\n\r\nOK\r\n",
                 "UNCONDITIONAL-Call Forward  Active For Voice 0146290800"},
        ReplyRow{"WithoutABlankBehindTheColon", information("+CCFC:1,1,\"0146\",129"),
                 "UNCONDITIONAL-  146"},
        ReplyRow{"Error", kError, ""}, ReplyRow{"OkAlone", kOk, ""},
        ReplyRow{"LineAlone", "\r\n+CCFC: 0,7\r\n", ""},
        ReplyRow{"LineAndError", "\r\n+CCFC: 0,7\r\n\r\nERROR\r\n", ""},
        ReplyRow{"LineOkAndError", "\r\n+CCFC: 0,7\r\n\r\nOK\r\nERROR\r\n",
                 "UNCONDITIONAL-Call Forward Not Active For All Classes "},
        ReplyRow{"NothingBehindTheColon", "\r\n+CCFC: OK\r\n", "UNCONDITIONAL-  "}),
    RowName());

// A reply longer than the shortest one, without a quote where a number's should end.
class ForwardingReplyWithoutNumber : public ForwardingLoad,
                                     public ::testing::WithParamInterface<ReplyRow> {};

TEST_P(ForwardingReplyWithoutNumber, EndsTheLoadWhereItStands) {
  tell(0, "+CCFC: 0,1");
  reply("AT+CCFC=1,2", GetParam().reply);
  openWindow();
  EXPECT_EQ(forwardingShown(),
            (Texts{"UNCONDITIONAL-Call Forward Not Active For Voice ", "", "", "", "", ""}));
  EXPECT_EQ(caption(form().Label2), kChecking);
  EXPECT_EQ(transcript(), "AT+CCFC=1,2\r" + GetParam().reply);
  expectAtRest();
}

TEST_P(ForwardingReplyWithoutNumber, LeavesTheReasonsAfterItUnread) {
  reply("AT+CCFC=1,2", GetParam().reply);
  beginLoad();
  settle();
  EXPECT_EQ(sent(), (Texts{kForwardingReads[0], kForwardingReads[1]}));
  EXPECT_TRUE(form().Visible.peek());
}

TEST_P(ForwardingReplyWithoutNumber, KeepsWhatStandsOnThePage) {
  openWindow();
  reply("AT+CCFC=1,2", GetParam().reply);
  form().Text1.Text = "0146290800";
  press(form().Command2);
  EXPECT_EQ(form().Text1.Text.peek(), "0146290800");
}

TEST_P(ForwardingReplyWithoutNumber, OnTheTabLeavesTheRestButClearsTheTranscript) {
  openWindow();
  reply("AT+CCFC=1,2", GetParam().reply);
  turnTo(forwarding);
  EXPECT_EQ(sent(), (Texts{kForwardingReads[0], kForwardingReads[1]}));
  EXPECT_EQ(caption(form().Label2), kChecking);
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Of, ForwardingReplyWithoutNumber,
    ::testing::Values(ReplyRow{"SeveralClasses",
                               "\r\n+CCFC: 0,1\r\n+CCFC: 0,2\r\n+CCFC: 0,4\r\n\r\nOK\r\n", ""},
                      ReplyRow{"AClassOfTwoDigits", information("+CCFC: 0,15"), ""},
                      ReplyRow{"ANumberWithoutItsEnd", information("+CCFC: 1,1,\"0146290800"), ""},
                      ReplyRow{"OkBeforeTheLine", "\r\nOK\r\n\r\n+CCFC: 0,7\r\n", ""}),
    RowName());

// Of a command without its echo, an earlier "OK" leaves nothing of the line.
TEST_F(ForwardingLoad, AnOkInFrontOfTheLineCutsItOff) {
  replyWithoutEcho("AT+CCFC=0,2", "\r\nOK\r\n\r\n+CCFC: 1,1\r\n\r\nOK\r\n");
  openWindow();
  EXPECT_EQ(forwardingShown()[0], "UNCONDITIONAL-  ");
}

TEST_F(ForwardingLoad, TheEchoDoesntMatter) {
  for (int reason = 0; reason < 6; ++reason) {
    replyWithoutEcho("AT+CCFC=" + std::to_string(reason) + ",2",
                     information("+CCFC: 1,4,\"0146290800\",129"));
  }
  openWindow();
  EXPECT_EQ(forwardingShown()[5],
            "ALL CONDITON CALL FORWARDING-Call Forward  Active For Fax 0146290800");
}

TEST_F(ForwardingLoad, AReplyOfThousandsOfBytesIsRead) {
  reply("AT+CCFC=0,2", information("+CCFC: 1,1,\"" + std::string(5000, '7') + "\",129"));
  openWindow();
  EXPECT_EQ(forwardingShown()[0],
            "UNCONDITIONAL-Call Forward  Active For Voice " + std::string(5000, '7'));
}

// The steps of the reader, each alone.
class ForwardingReader : public ServicesTest {
 protected:
  void SetUp() override {
    ServicesTest::SetUp();
    openWindow();
    form().Label16.Caption = "before";
    form().Label11.Caption = "old";
  }
};

TEST_F(ForwardingReader, OfTheFirstReasonEmptiesTheLastLabel) {
  inPanel([this] { form().ReadForwardReply(1); });
  run(0);
  EXPECT_EQ(caption(form().Label16), "before");
  inPanel([this] { form().ReadForwardReply(0); });
  run(0);
  EXPECT_EQ(caption(form().Label16), "");
  EXPECT_EQ(caption(form().Label11), "old");
}

TEST_F(ForwardingReader, PutsItsWordsBeforeWhatTheLabelHeld) {
  inPanel([this] { form().ShowForwardStatus(0, "1", "2"); });
  run(0);
  EXPECT_EQ(caption(form().Label11), "UNCONDITIONAL-Call Forward  Active For Data old");
}

TEST_F(ForwardingReader, PutsTheNumberInThePlaceOfWhatTheLabelHeld) {
  inPanel([this] { form().ParseForwardReply(0, "+CCFC: 1,1,\"0146\",129\r\n\r\nOK"); });
  run(0);
  EXPECT_EQ(caption(form().Label11), "UNCONDITIONAL-Call Forward  Active For Voice 0146");
}

TEST_F(ForwardingReader, KeepsWhatTheLabelHeldAfterAReplyWithoutANumber) {
  inPanel([this] { form().ParseForwardReply(0, "+CCFC: 0,7\r\n\r\nOK"); });
  run(0);
  EXPECT_EQ(caption(form().Label11), "UNCONDITIONAL-Call Forward Not Active For All Classes old");
}

}  // namespace
}  // namespace gsm
