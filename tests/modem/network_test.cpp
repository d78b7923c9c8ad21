#include <gtest/gtest.h>

#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/routing_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;

class Network : public RoutingTest {
 protected:
  void answer(const std::string& signalLine, const std::string& registrationLine) {
    reply("AT", kOk);
    reply("AT+CSQ", information(signalLine));
    reply("AT+CREG?", information(registrationLine));
  }

  void refresh() {
    click(form1().Label8);
    settle();
  }
};

TEST_F(Network, AsksForSignalAndRegistrationAndShowsThem) {
  answer("+CSQ: 15,99", "+CREG: 0,1");
  refresh();
  EXPECT_EQ(sent(), (Texts{"AT\r", "AT+CSQ\r", "AT+CREG?\r"}));
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(bars(), "###..");
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(registration(), "Registered/Home Network");
  EXPECT_EQ(transcript(), "");
}

TEST_F(Network, ShowsTheWindowWithEmptyLabelsAndItsOldBarsBeforeItAsks) {
  setBars("##...");
  panel().form7.Label4.Caption = "1,0";
  panel().form7.Label5.Caption = "Unknown";
  leaveInTranscript("old");
  click(form1().Label8);
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(signal() + registration(), "");
  EXPECT_EQ(bars(), "##...");
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_EQ(transcript(), "old");
}

TEST_F(Network, SpendsTwoSecondsOnEachExchange) {
  answer("+CSQ: 15,99", "+CREG: 0,1");
  click(form1().Label8);
  run(20);
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), 3U);
  EXPECT_NEAR(toSeconds(writes[1].at), 2.05, 0.01);
  EXPECT_NEAR(toSeconds(writes[2].at), 4.1, 0.02);
}

TEST_F(Network, OfASilentModemStopsAfterTheFirstQuestion) {
  setBars("###..");
  refresh();
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(signal() + registration(), "");
  EXPECT_EQ(bars(), "###..");
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(Network, OfAModemThatAnswersErrorStopsAfterTheFirstQuestion) {
  reply("AT", kError);
  refresh();
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_EQ(transcript(), "AT\r\r\nERROR\r\n");
}

TEST_F(Network, TakesAnOkThatWasLeftInTheTranscriptForTheAnswer) {
  leaveInTranscript("\r\nOK\r\n");
  refresh();
  EXPECT_EQ(sent(), (Texts{"AT\r", "AT+CSQ\r", "AT+CREG?\r"}));
}

TEST_F(Network, ClearsTheTranscriptBeforeTheSecondQuestionOnly) {
  reply("AT", kOk);
  reply("AT+CSQ", kError);
  reply("AT+CREG?", kError);
  leaveInTranscript("old");
  refresh();
  EXPECT_EQ(transcript(), "AT+CSQ\r\r\nERROR\r\nAT+CREG?\r\r\nERROR\r\n");
  EXPECT_EQ(signal() + registration(), "");
}

TEST_F(Network, AsksForTheRegistrationThoughTheSignalStaysUnknown) {
  reply("AT", kOk);
  reply("AT+CREG?", information("+CREG: 0,3"));
  refresh();
  EXPECT_EQ(sent(), (Texts{"AT\r", "AT+CSQ\r", "AT+CREG?\r"}));
  EXPECT_EQ(signal(), "");
  EXPECT_EQ(registration(), "Registration Denied");
}

TEST_F(Network, LeavesTheRegistrationEmptyWhereNoReplyComes) {
  reply("AT", kOk);
  reply("AT+CSQ", information("+CSQ: 31,0"));
  refresh();
  EXPECT_EQ(bars(), "####.");
  EXPECT_EQ(signal(), "31,0");
  EXPECT_EQ(registration(), "");
}

TEST_F(Network, ShowsALateSignalThoughTheQuestionsAreOver) {
  reply("AT", kOk);
  reply("AT+CSQ", information("+CSQ: 15,99"), std::chrono::seconds(30));
  refresh();
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(bars(), "###..");
}

TEST_F(Network, ShowsALateRegistrationThoughTheQuestionsAreOver) {
  reply("AT", kOk);
  reply("AT+CSQ", information("+CSQ: 15,99"));
  reply("AT+CREG?", information("+CREG: 0,5"), std::chrono::seconds(30));
  click(form1().Label8);
  run(20);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(registration(), "");
  settle();
  EXPECT_EQ(registration(), "Registered/Roaming");
}

TEST_F(Network, LosesARegistrationThatComesTogetherWithTheSignal) {
  reply("AT", kOk);
  reply("AT+CSQ", information("+CSQ: 15,99"), std::chrono::milliseconds(2500));
  reply("AT+CREG?", information("+CREG: 0,1"));
  refresh();
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(registration(), "");
}

TEST_F(Network, OfASignalThatCantBeReadShowsNoRegistrationEither) {
  answer("+CSQ: x,0", "+CREG: 0,1");
  setBars("##...");
  refresh();
  EXPECT_EQ(sent(), (Texts{"AT\r", "AT+CSQ\r", "AT+CREG?\r"}));
  EXPECT_EQ(bars(), "##...");
  EXPECT_EQ(signal() + registration(), "");
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(Network, OfARegistrationWithTheCellLeavesItEmpty) {
  answer("+CSQ: 15,99", "+CREG: 2,1,\"00C3\",\"7066\"");
  refresh();
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(registration(), "");
}

TEST_F(Network, WithAClosedPortShowsTheEmptyWindowAndEndsSilently) {
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  panel().form7.Label4.Caption = "1,0";
  panel().form7.Label5.Caption = "Unknown";
  refresh();
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(signal() + registration(), "");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

TEST_F(Network, OfAPortThatIsClosedMeanwhileEndsSilently) {
  reply("AT", kOk);
  click(form1().Label8);
  inPanel([this] { form1().MSComm1.PortOpen = false; }, 1);
  settle();
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

TEST_F(Network, AcrossMidnightEndsSilently) {
  startWithOpenPort({2026, 3, 1, 23, 59, 59});
  answer("+CSQ: 15,99", "+CREG: 0,1");
  refresh();
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

TEST_F(Network, AskedForTwiceAtOnceAnswersTheNewerFirst) {
  answer("+CSQ: 15,99", "+CREG: 0,1");
  click(form1().Label8);
  run(0.5);
  click(form1().Label8);
  settle();
  // The newer questions run to their end on top of the older ones, which go on where they waited
  // and find the transcript cleared.
  EXPECT_EQ(sent(), (Texts{"AT\r", "AT\r", "AT+CSQ\r", "AT+CREG?\r"}));
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(registration(), "Registered/Home Network");
}

TEST_F(Network, OpensTheStatusWindowAnewWhenTheUserHasClosedIt) {
  answer("+CSQ: 15,99", "+CREG: 0,1");
  refresh();
  inPanel([this] { panel().form7.userClose(); });
  run(0);
  EXPECT_FALSE(panel().form7.isLoaded());
  answer("+CSQ: 32,0", "+CREG: 0,6");
  refresh();
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(bars(), ".....");
  EXPECT_EQ(signal() + registration(), "");
}

TEST_F(Network, IsNotPolledInTheBackground) {
  answer("+CSQ: 15,99", "+CREG: 0,1");
  refresh();
  sent();
  run(3600);
  EXPECT_EQ(sent(), Texts{});
}

struct ReplyRow {
  std::string name;
  std::string signalLine;
  std::string registrationLine;
  std::string bars;
  std::string signal;
  std::string registration;
};

class NetworkReplies : public Network, public ::testing::WithParamInterface<ReplyRow> {};

TEST_P(NetworkReplies, AreShown) {
  setBars("#.#.#");
  answer(GetParam().signalLine, GetParam().registrationLine);
  refresh();
  EXPECT_EQ(bars(), GetParam().bars);
  EXPECT_EQ(signal(), GetParam().signal);
  EXPECT_EQ(registration(), GetParam().registration);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NetworkReplies,
    ::testing::Values(ReplyRow{"OfTheWeakestSignal", "+CSQ: 0,0", "+CREG: 0,2", "#....", "0,0",
                               "Not Registered.Searching Operator"},
                      ReplyRow{"OfTheStrongestSignal", "+CSQ: 31,0", "+CREG: 0,5", "####.", "31,0",
                               "Registered/Roaming"},
                      ReplyRow{"OfNoSignal", "+CSQ: 99,99", "+CREG: 0,0", ".....",
                               "Unknown/Undetectable", "Not Registered"},
                      ReplyRow{"OfASignalOutsideTheTable", "+CSQ: 32,0", "+CREG: 0,4", "#.#.#", "",
                               "Unknown"},
                      ReplyRow{"OfARegistrationOutsideTheTable", "+CSQ: 15,99", "+CREG: 0,6",
                               "###..", "15,99", ""}),
    RowName());

}  // namespace
}  // namespace gsm
