#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/sms/message_window_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

constexpr const char* kBefore = "as it was";
constexpr const char* kParameters = "AT+CSMP=33,167,0,0";

class Switches : public MessageWindowTest {
 protected:
  void SetUp() override {
    MessageWindowTest::SetUp();
    stopSendEvents();
    window().Label4.Caption = kBefore;
    window().Label6.Caption = kBefore;
    leaveInTranscript("OK ERROR");
  }
};

struct BroadcastRow {
  std::string name;
  OptionButton Form8::*option;
  std::string command;
  std::string reply;
  std::string note;
};

class CellBroadcast : public Switches, public ::testing::WithParamInterface<BroadcastRow> {};

TEST_P(CellBroadcast, IsSwitchedAndTheOutcomeShown) {
  click(window().*GetParam().option);
  reply(GetParam().command, GetParam().reply);
  click(window().Command8);
  EXPECT_EQ(note() + transcript(), "");
  settle();
  EXPECT_EQ(sent(), Texts{GetParam().command + "\r"});
  EXPECT_EQ(note(), GetParam().note);
  EXPECT_EQ(reports(), kBefore);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CellBroadcast,
    ::testing::Values(
        BroadcastRow{"On", &Form8::Option1, "AT+CSCB=1", kOk, "Cell BroadCast Enabled"},
        BroadcastRow{"OnRefused", &Form8::Option1, "AT+CSCB=1", kError, "Error,Cudnt Enable"},
        BroadcastRow{"OnWithBothWords", &Form8::Option1, "AT+CSCB=1", std::string(kError) + kOk,
                     "Cell BroadCast Enabled"},
        BroadcastRow{"OnWithTheEchoAlone", &Form8::Option1, "AT+CSCB=1", "", ""},
        BroadcastRow{"Off", &Form8::Option2, "AT+CSCB=0", kOk, "Cell BroadCast Disabled"},
        BroadcastRow{"OffRefused", &Form8::Option2, "AT+CSCB=0", "\r\n+CMS ERROR: 302\r\n",
                     "Error,Cudnt Disable"},
        BroadcastRow{"OffWithTheEchoAlone", &Form8::Option2, "AT+CSCB=0", "", ""}),
    RowName());

TEST_F(Switches, CellBroadcastWithNeitherOptionOnlyEmptiesTheStatusLabel) {
  press(window().Command8);
  EXPECT_EQ(note(), "");
  EXPECT_EQ(reports(), kBefore);
  EXPECT_EQ(transcript(), "OK ERROR");
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(Switches, CellBroadcastWithoutAnAnswerShowsNothingAfterASecond) {
  click(window().Option1);
  const double start = now();
  press(window().Command8);
  EXPECT_NEAR(now() - start, 1, 0.01);
  EXPECT_EQ(note(), "");
  expectAtRest();
}

TEST_F(Switches, ChoosingAnOptionSendsNothing) {
  for (OptionButton* option :
       {&window().Option1, &window().Option2, &window().Option3, &window().Option4}) {
    press(*option);
  }
  EXPECT_EQ(sent(), Texts{});
  EXPECT_FALSE(window().Option1.Value.peek());
  EXPECT_TRUE(window().Option2.Value.peek());
  EXPECT_FALSE(window().Option3.Value.peek());
  EXPECT_TRUE(window().Option4.Value.peek());
}

TEST_F(Switches, ReportsOnSendTwoCommandsASecondApart) {
  click(window().Option3);
  const double start = now();
  click(window().Command9);
  EXPECT_EQ(note(), "Please Wait");
  EXPECT_EQ(reports() + transcript(), "");
  settle();
  EXPECT_NEAR(now() - start, 2, 0.01);
  const auto writes = sentWithTimes();
  ASSERT_EQ(writes.size(), 2U);
  EXPECT_EQ(writes[0].text, "AT+CSMP=33,167,0,0\r");
  EXPECT_NEAR(toSeconds(writes[0].at) - start, 0, 0.001);
  EXPECT_EQ(writes[1].text, "AT+CNMI=0,1,0,1,0\r");
  EXPECT_NEAR(toSeconds(writes[1].at) - start, 1, 0.001);
  EXPECT_EQ(note(), "Please Wait");
  EXPECT_EQ(reports(), "");
  expectAtRest();
}

TEST_F(Switches, ReportsOffSendOneCommandAndLeaveTheParameters) {
  click(window().Option4);
  const double start = now();
  click(window().Command9);
  EXPECT_EQ(note(), "Please Wait");
  EXPECT_EQ(reports() + transcript(), "");
  settle();
  EXPECT_NEAR(now() - start, 1, 0.01);
  EXPECT_EQ(sent(), Texts{"AT+CNMI=0,1,0,0,0\r"});
  EXPECT_EQ(note(), "Please Wait");
  EXPECT_EQ(reports(), "");
}

TEST_F(Switches, ReportsWithNeitherOptionAskToWaitForEver) {
  press(window().Command9);
  EXPECT_EQ(note(), "Please Wait");
  EXPECT_EQ(reports(), "");
  EXPECT_EQ(transcript(), "OK ERROR");
  EXPECT_EQ(sent(), Texts{});
}

struct ReportRow {
  std::string name;
  OptionButton Form8::*option;
  std::string parameters;  // what is said to the parameters
  std::string mode;        // and to the command that switches
  std::string note;
  std::string reports;
};

class StatusReport : public Switches, public ::testing::WithParamInterface<ReportRow> {};

TEST_P(StatusReport, IsSwitchedAndTheOutcomeShown) {
  click(window().*GetParam().option);
  reply(kParameters, GetParam().parameters);
  reply("AT+CNMI=0,1,0,1,0", GetParam().mode);
  reply("AT+CNMI=0,1,0,0,0", GetParam().mode);
  press(window().Command9);
  EXPECT_EQ(note(), GetParam().note);
  EXPECT_EQ(reports(), GetParam().reports);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StatusReport,
    ::testing::Values(
        ReportRow{"On", &Form8::Option3, kOk, kOk, "Status Report Enabled",
                  "Status Report Enabled"},
        ReportRow{"OnRefusedAfterTheParameters", &Form8::Option3, kOk, kError,
                  "Status Report Enabled", "Status Report Enabled"},
        ReportRow{"OnWithTheParametersRefused", &Form8::Option3, kError, kOk,
                  "Status Report Enabled", "Status Report Enabled"},
        ReportRow{"OnWithAnAnswerToTheParametersAlone", &Form8::Option3, kOk, "",
                  "Status Report Enabled", "Status Report Enabled"},
        ReportRow{"OnWithBothRefused", &Form8::Option3, kError, kError,
                  "Error,Cudnt Enable Status report", ""},
        ReportRow{"OnWithTheParametersRefusedAndSilence", &Form8::Option3, kError, "",
                  "Error,Cudnt Enable Status report", ""},
        ReportRow{"OnWithTheEchoesAlone", &Form8::Option3, "", "", "Please Wait", ""},
        ReportRow{"Off", &Form8::Option4, kError, kOk, "Status Report Disabled",
                  "Status Report Disabled"},
        ReportRow{"OffRefused", &Form8::Option4, kOk, kError, "Error,Cudnt Disable", ""},
        ReportRow{"OffWithBothWords", &Form8::Option4, kOk, std::string(kError) + kOk,
                  "Status Report Disabled", "Status Report Disabled"},
        ReportRow{"OffWithTheEchoAlone", &Form8::Option4, kOk, "", "Please Wait", ""}),
    RowName());

TEST_F(Switches, TheReportThatAMessageAskedForChangesNothingOnView) {
  receive(
      unsolicited("+CDS: 2,116,\"+33146290800\",145,\"98/10/01,12:30:07+04\","
                  "\"98/10/01,12:30:08+04\",0"));
  settle();
  EXPECT_EQ(note(), kBefore);
  EXPECT_EQ(reports(), kBefore);
  EXPECT_EQ(messageRead(), "");
}

}  // namespace
}  // namespace gsm
