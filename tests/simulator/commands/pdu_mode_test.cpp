#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

// Messages as they travel, in the words of a host in PDU mode.
namespace gsm::simulator {
namespace {

std::string code(int number) { return "\r\n+CMS ERROR: " + std::to_string(number) + "\r\n"; }

constexpr const char* kPduPrompt = "\r\n> ";

class PduMode : public testing::Test {
 protected:
  PduMode() { bench_.ask("AT+CMGF=0;+CMEE=1;+CSCA=\"+33639980000\""); }

  // Writes the command, waits for the prompt, and returns what comes behind the text's echo.
  std::string send(const std::string& command, const std::string& digits,
                   std::chrono::nanoseconds time = seconds(4)) {
    EXPECT_EQ(bench_.ask(command), kPduPrompt) << command;
    const std::string reply = bench_.write(digits + "\x1A", time);
    EXPECT_TRUE(reply.starts_with(digits)) << reply;
    return reply.substr(digits.size());
  }

  Bench bench_{
      {.messages = {
           {1, {MessageStatus::kReceivedRead, "+33639981201", "26/01/12,09:41:07+04", "Dinner?"}},
           {2,
            {MessageStatus::kReceivedUnread, "0146290800", "98/10/01,18:22:11+00", "hellohello"}},
           {4, {MessageStatus::kStoredUnsent, "+33146290800", "", "I"}},
           {5, {MessageStatus::kStoredSent, "0123", "", "Gone"}}}}};
};

constexpr const char* kHello =
    "07913336990800F0040A8110649280000000"
    "890110812211000AE8329BFD4697D9EC37";
constexpr const char* kI = "07913336990800F011000B913341260908F00000A70149";

// To 0123, with the text "Hello you".
constexpr const char* kSubmission =
    "0011000481103200"
    "00A709C8329BFD06E5DF75";
constexpr const char* kLength = "18";

TEST_F(PduMode, ReadTellsStatusLengthAndMessageByteForByteAndMarksIt) {
  EXPECT_EQ(bench_.write("AT+CMGR=2\r"),
            "AT+CMGR=2\r" + withOk("+CMGR: 0,,27\r\n" + std::string(kHello)));
  EXPECT_EQ(bench_.ask("AT+CMGR=2"), withOk("+CMGR: 1,,27\r\n" + std::string(kHello)));
  EXPECT_EQ(bench_.ask("AT+CMGR=4"), withOk("+CMGR: 2,,15\r\n" + std::string(kI)));
  EXPECT_NE(bench_.ask("AT+CMGR=5").find("+CMGR: 3,,14\r\n"), std::string::npos);
  EXPECT_EQ(bench_.ask("AT+CMGR=3"), kOk);
}

TEST_F(PduMode, CentreIsLeftOutWhenThereIsNone) {
  bench_.ask("AT+CSCA=\"\"");
  EXPECT_EQ(bench_.ask("AT+CMGR=4"), withOk("+CMGR: 2,,15\r\n00" + std::string(kI).substr(16)));
}

TEST_F(PduMode, ListTakesTheNumberOfAStatus) {
  EXPECT_EQ(bench_.ask("AT+CMGL=2"), withOk("+CMGL: 4,2,,15\r\n" + std::string(kI)));
  EXPECT_EQ(bench_.ask("AT+CMGL"), withOk("+CMGL: 2,0,,27\r\n" + std::string(kHello)));
  EXPECT_EQ(bench_.ask("AT+CMGL=0"), kOk) << "the list has read it";
  const std::string all = bench_.ask("AT+CMGL=4", seconds(2));
  for (const char* entry : {"+CMGL: 1,1,,", "\r\n+CMGL: 2,1,,27\r\n", "\r\n+CMGL: 4,2,,15\r\n",
                            "\r\n+CMGL: 5,3,,14\r\n"}) {
    EXPECT_NE(all.find(entry), std::string::npos) << entry;
  }
  EXPECT_EQ(bench_.ask("AT+CMGL=?"), withOk("+CMGL: (0-4)"));
  for (const char* bad : {"AT+CMGL=5", "AT+CMGL=-1", "AT+CMGL=\"ALL\"", "AT+CMGL=4,0"}) {
    EXPECT_EQ(bench_.ask(bad), code(304)) << bad;
  }
}

TEST_F(PduMode, DeleteIsTheSame) {
  EXPECT_EQ(bench_.ask("AT+CMGD=2"), kOk);
  EXPECT_EQ(bench_.ask("AT+CMGR=2"), kOk);
}

TEST_F(PduMode, SendAsksForTheMessageAndTellsItsReference) {
  EXPECT_EQ(send(std::string("AT+CMGS=") + kLength, kSubmission), withOk("+CMGS: 0"));
  EXPECT_EQ(send(std::string("AT+CMGS=") + kLength, kSubmission), withOk("+CMGS: 1"));
}

TEST_F(PduMode, NetworkRefusesByTheNumberInTheMessage) {
  EXPECT_EQ(send("AT+CMGS=10", "000100038121F700000149"), code(42));
}

TEST_F(PduMode, MessageMayNameTheCentreThatTheModemLacks) {
  bench_.ask("AT+CSCA=\"\"");
  EXPECT_EQ(send(std::string("AT+CMGS=") + kLength, kSubmission), code(330));
  EXPECT_EQ(send(std::string("AT+CMGS=") + kLength,
                 "07913336990800F0" + std::string(kSubmission).substr(2)),
            withOk("+CMGS: 0"));
}

TEST_F(PduMode, ReportIsUpToTheMessage) {
  bench_.ask("AT+CNMI=2,1,0,1,0;+CSMP=49,167,0,0");
  send(std::string("AT+CMGS=") + kLength, kSubmission);
  EXPECT_EQ(bench_.listen(seconds(10)), "") << "it asks for none, whatever text mode asks for";
  std::string asking = kSubmission;
  asking[2] = '3';
  send(std::string("AT+CMGS=") + kLength, asking);
  EXPECT_EQ(bench_.listen(seconds(10)),
            "\r\n+CDS: 21\r\n07913336990800F006010481103262101321000040621013210000"
            "4000\r\n");
}

TEST_F(PduMode, BadMessagesAreRefused) {
  const std::string prompted[][2] = {
      {"AT+CMGS=17", kSubmission},       {"AT+CMGS=19", kSubmission},
      {"AT+CMGS=18", "Hello"},           {"AT+CMGS=18", ""},
      {"AT+CMGS=7", "0001000081000000"},  // to nobody
      {"AT+CMGW=18", "Hello"},           {"AT+CMGW=-1", ""},
  };
  for (const auto& [command, digits] : prompted) {
    EXPECT_EQ(send(command, digits), code(304)) << command << " " << digits;
  }
  for (const char* bad : {"AT+CMGS=\"0123\"", "AT+CMGS=18,1", "AT+CMGW", "AT+CMGW=x",
                          "AT+CMGW=18,1", "AT+CMGW=18,0", "AT+CMGW=18,4", "AT+CMGW=18,2,1"}) {
    EXPECT_EQ(bench_.ask(bad), code(304)) << bad;
  }
  EXPECT_EQ(bench_.ask("AT+CMGS="), kError);
  EXPECT_TRUE(bench_.messages.empty());
}

TEST_F(PduMode, EscapeGivesTheMessageUp) {
  EXPECT_EQ(bench_.ask("AT+CMGS=18"), kPduPrompt);
  EXPECT_EQ(bench_.write("0011\x1B"), std::string("0011") + kOk);
}

TEST_F(PduMode, WrittenMessageIsReadInEitherMode) {
  EXPECT_EQ(send("AT+CMGW=18", kSubmission), withOk("+CMGW: 3"));
  EXPECT_EQ(send("AT+CMGW=18,3", kSubmission), withOk("+CMGW: 6"));
  EXPECT_EQ(bench_.ask("AT+CMGR=3"),
            withOk("+CMGR: 2,,18\r\n07913336990800F0" + std::string(kSubmission).substr(2)));
  bench_.ask("AT+CMGF=1");
  EXPECT_EQ(bench_.ask("AT+CMGR=6"), withOk("+CMGR: \"STO SENT\",\"0123\",\r\nHello you"));
}

TEST_F(PduMode, MessageToNobodyCanBeKept) {
  EXPECT_EQ(send("AT+CMGW=7", "0001000081000000"), withOk("+CMGW: 3"));
}

TEST_F(PduMode, NoticesHaveTheMessageAndItsLength) {
  bench_.ask("AT+CNMI=2,2,2,2,0");
  bench_.modem.console("message 0146290800 hellohello");
  EXPECT_EQ(
      bench_.listen(),
      "\r\n+CMT: ,27\r\n07913336990800F0040A8110649280000000621013210000400AE8329BFD4697D9EC37"
      "\r\n");
  bench_.modem.console("broadcast Hello");
  const std::string page = bench_.listen();
  EXPECT_TRUE(page.starts_with("\r\n+CBM: 88\r\n000100320111C8329BFD6E34")) << page;
  bench_.ask("AT+CNMI=2,1,1,2,0");
  bench_.modem.console("broadcast Hello");
  EXPECT_EQ(bench_.listen(), "\r\n+CBMI: \"BM\",1\r\n");
  bench_.ask("AT+CPMS=\"BM\"");
  EXPECT_TRUE(bench_.ask("AT+CMGR=1").starts_with("\r\n+CMGR: 0,,88\r\n00020032"));
}

}  // namespace
}  // namespace gsm::simulator
