#include <gtest/gtest.h>

#include "modem/form2.h"
#include "panel/form1.h"
#include "phonebook/form3.h"
#include "security/form9.h"
#include "settings/form15.h"
#include "sms/form8.h"
#include "tests/support/healthy_modem_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

// Buttons that ask the modem before they open their window.
class ModemButton : public HealthyModemTest {
 protected:
  void SetUp() override {
    startUnlocked();
    form1().Label5.Caption = kBefore;
  }
  void press(CommandButton& button) {
    click(button);
    settle();
  }
};

// What a button does when its command is answered by neither "OK" nor anything else of use.
struct UselessRow {
  std::string name;
  std::string reply;
  bool answered;
  std::string left;  // in the transcript
};
const UselessRow kUseless[] = {{"Silence", "", false, ""},
                               {"AnError", kError, true, "AT\r\r\nERROR\r\n"},
                               {"TheEchoAlone", "", true, "AT\r"}};

class UselessReply : public ModemButton, public ::testing::WithParamInterface<UselessRow> {
 protected:
  void SetUp() override {
    ModemButton::SetUp();
    GetParam().answered ? reply("AT", GetParam().reply) : silence("AT");
  }
};

TEST_F(ModemButton, ModelOpensTheDetails) {
  press(form1().Command1);
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_TRUE(panel().form2.Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  EXPECT_EQ(panel().form2.Caption.peek(), "GSM-Model Details");
  EXPECT_EQ(statusLine(), kBefore);
  EXPECT_EQ(portState(), "Open");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(ModemButton, ModelWaitsForItsExchangeBeforeItOpens) {
  inPanel([this] { form1().Text1.Text = "OK from before"; });
  click(form1().Command1);
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_EQ(transcript(), "");
  run(2.04);
  EXPECT_FALSE(panel().form2.Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  run(0.02);
  EXPECT_TRUE(panel().form2.Visible.peek());
}

TEST_F(ModemButton, ModelShowsThatThePortIsOpen) {
  form1().Label1.Caption = kBefore;
  click(form1().Command1);
  EXPECT_EQ(portState(), "Open");
}

TEST_P(UselessReply, LeavesModelWithABox) {
  press(form1().Command1);
  expectBox("Check If Modem Is Connected Properly.Set The CommPorts", "GSM");
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_FALSE(panel().form2.Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(transcript(), GetParam().left);
  EXPECT_FALSE(ended());
}

TEST_F(ModemButton, ModelWithThePortClosedShowsThatAndNothingElse) {
  closePort();
  EXPECT_EQ(portState(), "Open");
  inPanel([this] { form1().Text1.Text = kBefore; });
  press(form1().Command1);
  EXPECT_EQ(portState(), "Closed");
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(transcript(), kBefore);
  EXPECT_FALSE(panel().form2.Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  expectAtRest();
}

TEST_F(ModemButton, ModelWithThePortGoneEndsSilently) {
  machine().ports.set({});
  press(form1().Command1);
  EXPECT_FALSE(panel().form2.Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  expectAtRest();
}

TEST_F(ModemButton, VoiceCallOpensItsWindowBesideTheMainWindow) {
  press(form1().Command2);
  EXPECT_EQ(sent().front(), "AT\r");
  EXPECT_TRUE(panel().form3.Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(panel().form3.Caption.peek(), "GSM-Call");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(ModemButton, VoiceCallSaysItIsComingOnlyWhenTheModemHasAnswered) {
  Texts words;
  PropertyWatch watch(form1().Label5, [&](PropertyId) { words.push_back(statusLine()); });
  inPanel([this] { form1().Text1.Text = "OK from before"; });
  click(form1().Command2);
  EXPECT_EQ(transcript(), "");
  run(2.04);
  EXPECT_EQ(words, Texts{});
  run(0.02);
  ASSERT_FALSE(words.empty());
  EXPECT_EQ(words.front(), "Please Wait.......");
}

TEST_F(ModemButton, VoiceCallsWindowEmptiesTheStatusWhenClosed) {
  press(form1().Command2);
  close(panel().form3);
  EXPECT_FALSE(panel().form3.Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_EQ(statusLine(), "");
}

TEST_P(UselessReply, LeavesVoiceCallWithoutAWord) {
  press(form1().Command2);
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_FALSE(panel().form3.isLoaded());
  EXPECT_EQ(statusLine(), kBefore);
  EXPECT_EQ(transcript(), GetParam().left);
  expectAtRest();
}

TEST_F(ModemButton, VoiceCallWithThePortClosedEndsSilently) {
  closePort();
  press(form1().Command2);
  EXPECT_FALSE(panel().form3.isLoaded());
  EXPECT_EQ(statusLine(), kBefore);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(Replies, UselessReply, ::testing::ValuesIn(kUseless), RowName());

TEST_F(ModemButton, ASecondPressDuringTheWaitRunsOnTopOfTheFirst) {
  click(form1().Command1);
  run(0.5);
  click(form1().Command1);
  EXPECT_EQ(sent(), (Texts{"AT\r", "AT\r"}));
  settle();
  EXPECT_TRUE(panel().form2.Visible.peek());
  // The second one has cleared the transcript, so the first finds nothing.
  EXPECT_EQ(boxes(), Texts{"Check If Modem Is Connected Properly.Set The CommPorts"});
  EXPECT_EQ(waiting(), 0);
}

TEST_F(ModemButton, AnotherButtonDuringTheWaitOpensItsWindowAtOnce) {
  click(form1().Command1);
  run(0.5);
  click(form1().Command5);
  settle();
  EXPECT_TRUE(panel().form9.Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  EXPECT_EQ(waiting(), 0);
}

TEST_F(ModemButton, ShowsItsWindowBeforeItHidesTheMainWindow) {
  struct {
    CommandButton& button;
    Window& window;
  } const swaps[] = {{form1().Command1, panel().form2},
                     {form1().Command3, panel().form8},
                     {form1().Command11, panel().form15}};
  for (const auto& swap : swaps) {
    Texts order;
    {
      PropertyWatch one(form1(), [&](PropertyId property) {
        if (property == PropertyId::Visible) order.push_back("main");
      });
      PropertyWatch other(swap.window, [&](PropertyId property) {
        if (property == PropertyId::Visible) order.push_back("window");
      });
      press(swap.button);
    }
    EXPECT_EQ(order, (Texts{"window", "main"})) << swap.window.name();
    close(swap.window);
  }
}

TEST_F(ModemButton, SmsTakesTheMarkOffAtOnce) {
  inPanel([this] { form1().Command3.BackColor = 0x0000FF; });
  click(form1().Command3);
  EXPECT_EQ(form1().Command3.BackColor.peek(), 0xE0E0E0);
  EXPECT_EQ(statusLine(), "Please Wait...");
  EXPECT_EQ(sent(), Texts{"AT+CNMI?\r"});
  EXPECT_FALSE(panel().form8.Visible.peek());
}

TEST_F(ModemButton, SmsClearsTheTranscriptBeforeItsQuery) {
  inPanel([this] { form1().Text1.Text = "ERROR from before"; });
  click(form1().Command3);
  EXPECT_EQ(transcript(), "");
}

enum class Report { enabled, disabled, asItWas };
struct ReportRow {
  std::string name;
  std::string reply;
  bool answered;
  Report report;
  bool echo = true;
};
class SmsButton : public ModemButton, public ::testing::WithParamInterface<ReportRow> {
 protected:
  // The button, with the report's state set to the other one before.
  void pressWith(Report before) {
    ModemScript::Rule rule = {.write = "AT+CNMI?\r", .echo = GetParam().echo};
    if (GetParam().answered) rule.replies = {{{ModemScript::kDefaultDelay, GetParam().reply}}};
    world().modem.add(rule);
    inPanel([this, before] {
      panel().form8.Label6.Caption = kBefore;
      (before == Report::enabled ? panel().form8.Option3 : panel().form8.Option4).Value = true;
    });
    press(form1().Command3);
  }
  void expectReport(Report report, Report before) {
    Form8& form = panel().form8;
    EXPECT_EQ(form.Label6.Caption.peek(), report == Report::asItWas   ? kBefore
                                          : report == Report::enabled ? "Status Report Enabled"
                                                                      : "Status Report Disabled");
    const Report options = report == Report::asItWas ? before : report;
    EXPECT_EQ(form.Option3.Value.peek(), options == Report::enabled);
    EXPECT_EQ(form.Option4.Value.peek(), options == Report::disabled);
  }
};

TEST_P(SmsButton, PresetsTheReportAndOpensItsWindow) {
  const Report before = GetParam().report == Report::disabled ? Report::enabled : Report::disabled;
  pressWith(before);
  expectReport(GetParam().report, before);
  EXPECT_EQ(sent(), Texts{"AT+CNMI?\r"});
  EXPECT_TRUE(panel().form8.Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  EXPECT_EQ(panel().form8.Caption.peek(), "GSM-Short Message Service");
  EXPECT_EQ(statusLine(), "");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Replies, SmsButton,
    ::testing::Values(
        ReportRow{"On", information("+CNMI: 0,1,0,1,0"), true, Report::enabled},
        ReportRow{"Off", information("+CNMI: 0,1,0,0,0"), true, Report::disabled},
        ReportRow{"AnotherDigit", information("+CNMI: 0,1,0,2,0"), true, Report::asItWas},
        ReportRow{"ALetter", information("+CNMI: 0,1,0,x,0"), true, Report::asItWas},
        ReportRow{"WithoutTheBlank", information("+CNMI:0,1,0,1,0"), true, Report::asItWas},
        ReportRow{"TooShort", "\r\n+CNMI: 0,1", true, Report::asItWas},
        ReportRow{"AnError", kError, true, Report::disabled},
        ReportRow{"AnErrorBesideAValue", information("+CNMI: 0,1,0,1,0") + kError, true,
                  Report::disabled},
        ReportRow{"OkWithoutAValue", kOk, true, Report::asItWas},
        ReportRow{"Silence", "", false, Report::asItWas},
        ReportRow{"OnAtTheVeryBeginning", "+CNMI: 0,1,0,1,0", true, Report::enabled, false},
        ReportRow{"DigitsAlone", "111111111111111", true, Report::asItWas, false}),
    RowName());

TEST_F(ModemButton, SmsWithThePortClosedEndsTheProgram) {
  closePort();
  press(form1().Command3);
  expectEndedBy(kFailureOfAClosedPort);
}

TEST_F(ModemButton, SmsWindowKeepsTheStatusWhenClosed) {
  press(form1().Command3);
  form1().Label5.Caption = kBefore;
  close(panel().form8);
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(panel().form8.isLoaded());
  EXPECT_EQ(statusLine(), kBefore);
}

}  // namespace
}  // namespace gsm
