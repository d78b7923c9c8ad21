#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

// How messages are sent and announced.
namespace gsm::simulator {
namespace {

constexpr const char* kTime = "26/01/31,12:00:00+04";

class MessageNotices : public testing::Test {
 protected:
  MessageNotices() { bench_.ask("AT+CMGF=1"); }

  std::string after(const char* line) {
    EXPECT_EQ(bench_.modem.console(line), "") << line;
    return bench_.listen();
  }

  // Sends a message and returns what comes within ten seconds of its OK.
  std::string reportOn(const std::string& number) {
    bench_.ask("AT+CMGS=" + number);
    EXPECT_TRUE(bench_.write("x\x1A", milliseconds(3200)).ends_with(kOk));
    return bench_.listen(seconds(10));
  }

  Bench bench_{{.messages = {}}};
};

TEST_F(MessageNotices, ReportAMessageOnTheCard) {
  EXPECT_EQ(after("message +33639981201 Hello you"), "\r\n+CMTI: \"SM\",1\r\n");
  EXPECT_EQ(bench_.ask("AT+CMGR=1"), withOk(std::string("+CMGR: \"REC UNREAD\",\"+33639981201\",,"
                                                        "\"") +
                                            kTime + "\"\r\nHello you"));
  EXPECT_EQ(after("message 0123 again"), "\r\n+CMTI: \"SM\",2\r\n");
}

TEST_F(MessageNotices, ComeWhateverTheFirstValueIs) {
  for (const char* mode : {"0", "1", "2", "3"}) {
    bench_.ask(std::string("AT+CNMI=") + mode + ",1,0,1,0");
    EXPECT_NE(after("message 0123 x"), "") << mode;
  }
}

TEST_F(MessageNotices, OfMessagesFollowTheSecondValue) {
  bench_.ask("AT+CNMI=0,0");
  EXPECT_EQ(after("message 0123 x"), "");
  EXPECT_EQ(bench_.ask("AT+CPMS?"), withOk("+CPMS: \"SM\",1,20,\"SM\",1,20"));
  bench_.ask("AT+CNMI=0,2");
  EXPECT_EQ(after("message 0123 x"), std::string("\r\n+CMT: \"0123\",,\"") + kTime + "\"\r\nx\r\n");
  EXPECT_EQ(bench_.ask("AT+CPMS?"), withOk("+CPMS: \"SM\",1,20,\"SM\",1,20")) << "handed over";
  bench_.ask("AT+CNMI=0,3");
  EXPECT_EQ(after("message 0123 x"), "\r\n+CMTI: \"SM\",2\r\n");
}

TEST_F(MessageNotices, OfReportsComeForAMessageThatAskedForOne) {
  EXPECT_EQ(bench_.ask("AT+CSMP=33,167,0,0"), kOk);
  EXPECT_EQ(reportOn("0123"), "") << "nobody wants to hear of it";
  EXPECT_EQ(bench_.ask("AT+CNMI=0,1,0,1,0"), kOk);
  EXPECT_EQ(reportOn("+33639981201"), std::string("\r\n+CDS: 2,1,\"+33639981201\",145,\"") + kTime +
                                          "\",\"" + kTime + "\",0\r\n");
  bench_.ask("AT+CSMP=1");
  EXPECT_EQ(reportOn("0123"), "") << "it asked for none";
  bench_.ask("AT+CSMP=33");
  bench_.ask("AT+CNMI=0,1,0,0,0");
  EXPECT_EQ(reportOn("0123"), "");
}

TEST_F(MessageNotices, OfReportsComeFiveSecondsAfterTheOk) {
  bench_.ask("AT+CSMP=33;+CNMI=0,1,0,1,0");
  bench_.ask("AT+CMGS=1");
  EXPECT_TRUE(bench_.write("x\x1A", milliseconds(7950)).ends_with(kOk));
  EXPECT_TRUE(bench_.listen(milliseconds(200)).starts_with("\r\n+CDS: 2,0,"));
}

TEST_F(MessageNotices, OfReportsNameTheReportsOwnMemory) {
  bench_.ask("AT+CSMP=33;+CNMI=0,1,0,2");
  EXPECT_EQ(reportOn("0123"), "\r\n+CDSI: \"SR\",1\r\n");
  bench_.ask("AT+CPMS=\"SR\"");
  EXPECT_EQ(bench_.ask("AT+CMGR=1"), withOk(std::string("+CMGR: \"REC UNREAD\",2,0,\"0123\",129,"
                                                        "\"") +
                                            kTime + "\",\"" + kTime + "\",0"));
}

TEST_F(MessageNotices, OfReportsMayBeBroughtOnByTheConsole) {
  bench_.ask("AT+CNMI=0,1,0,1,0");
  EXPECT_EQ(bench_.modem.console("report"), "error: no message has been sent");
  EXPECT_EQ(reportOn("0123"), "");
  EXPECT_NE(after("report").find(",0\r\n"), std::string::npos) << "though it asked for none";
  EXPECT_NE(after("report 70").find(",70\r\n"), std::string::npos);
  EXPECT_EQ(bench_.modem.console("report 256"), "error: usage: report [STATUS]");
  bench_.ask("AT+CSMP=33");
  bench_.ask("AT+CMGS=1");
  bench_.write("x\x1A", seconds(4));
  EXPECT_NE(after("report"), "");
  EXPECT_EQ(bench_.listen(seconds(10)), "") << "a report comes once";
}

TEST_F(MessageNotices, OfPagesFollowTheThirdValue) {
  EXPECT_EQ(after("broadcast Flood"), "");
  bench_.ask("AT+CNMI=0,1,2");
  EXPECT_EQ(after("broadcast Flood"), "\r\n+CBM: 2,50,1,1,1\r\nFlood\r\n");
  bench_.ask("AT+CNMI=0,1,1");
  EXPECT_EQ(after("broadcast Flood"), "\r\n+CBMI: \"BM\",1\r\n");
  bench_.ask("AT+CNMI=0,1,3");
  EXPECT_EQ(after("broadcast Fire"), "\r\n+CBMI: \"BM\",2\r\n");
  bench_.ask("AT+CPMS=\"BM\"");
  EXPECT_EQ(bench_.ask("AT+CMGR=2"), withOk("+CMGR: \"REC UNREAD\",4,50,1,1,1\r\nFire"));
}

TEST_F(MessageNotices, OfPagesStopWhileNoneAreTaken) {
  bench_.ask("AT+CNMI=0,1,2");
  EXPECT_EQ(bench_.ask("AT+CSCB=1"), kOk);
  EXPECT_EQ(bench_.modem.console("broadcast Flood"), "error: the modem takes no broadcast");
  EXPECT_EQ(bench_.listen(), "");
  EXPECT_EQ(bench_.ask("AT+CSCB=0"), kOk);
  EXPECT_NE(after("broadcast Flood"), "");
}

TEST(MessageCommands, BroadcastKeepsItsKinds) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CSCB?"), withOk("+CSCB: 0,\"\",\"\""));
  EXPECT_EQ(bench.ask("AT+CSCB=0,\"15-17,50,86\",\"0-3\""), kOk);
  EXPECT_EQ(bench.ask("AT+CSCB=1"), kOk);
  EXPECT_EQ(bench.ask("AT+CSCB?"), withOk("+CSCB: 1,\"15-17,50,86\",\"0-3\""));
  EXPECT_EQ(bench.ask("AT+CSCB=?"), withOk("+CSCB: (0,1)"));
  for (const char* bad : {"AT+CSCB=", "AT+CSCB=2", "AT+CSCB=x", "AT+CSCB=0,\"\",\"\",1"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
}

TEST(MessageCommands, ParametersKeepWhatIsLeftOut) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CSMP?"), withOk("+CSMP: 1,167,0,0"));
  EXPECT_EQ(bench.ask("AT+CSMP=33,167,0,0"), kOk);
  EXPECT_EQ(bench.ask("AT+CSMP=,255"), kOk);
  EXPECT_EQ(bench.ask("AT+CSMP?"), withOk("+CSMP: 33,255,0,0"));
  EXPECT_EQ(bench.ask("AT+CSMP=256"), kError);
  EXPECT_EQ(bench.ask("AT&W;+CSMP=1;Z"), kOk) << "it is kept with the profile";
  EXPECT_EQ(bench.ask("AT+CSMP?"), withOk("+CSMP: 33,255,0,0"));
}

TEST(MessageCommands, ServiceCentreIsANumber) {
  Bench bench;
  EXPECT_EQ(bench.write("AT+CSCA?\r"), "AT+CSCA?\r\r\n+CSCA: \"+33639980000\",145\r\n\r\nOK\r\n");
  EXPECT_EQ(bench.ask("AT+CSCA=\"33639980001\",145"), kOk);
  EXPECT_EQ(bench.ask("AT+CSCA?"), withOk("+CSCA: \"+33639980001\",145"));
  EXPECT_EQ(bench.ask("AT+CSCA=0123"), kOk);
  EXPECT_EQ(bench.ask("AT+CSCA?"), withOk("+CSCA: \"0123\",129"));
  EXPECT_EQ(bench.ask("AT+CSCA=\"\""), kOk);
  EXPECT_EQ(bench.ask("AT+CSCA?"), withOk("+CSCA: \"\",129"));
  for (const char* bad : {"AT+CSCA=", "AT+CSCA=anna", "AT+CSCA=1,129,1"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
}

}  // namespace
}  // namespace gsm::simulator
