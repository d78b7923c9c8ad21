#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/modem/code_prompt_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

constexpr const char* kInvalidPuk = "Invalid PUK Entered ";
constexpr const char* kAccepted = "PIN,PUK Accepted";

class Puk : public CodePromptTest {
 protected:
  void SetUp() override { startAtPrompt("SIM PUK"); }

  void expectPukMode() {
    EXPECT_FALSE(form1().Text2.Visible.peek());
    EXPECT_TRUE(form1().Text3.Visible.peek());
    EXPECT_EQ(form1().Text3.Text.peek(), "0");
  }
};

TEST_F(Puk, AcceptedInitialisesTheModem) {
  answerCodes({kOk});
  enterPuk("12345678", "4321");
  settle();
  EXPECT_EQ(sent(), withSequence({"AT+CPIN=12345678,4321\r"}));
  EXPECT_EQ(logAfterTheCheck(), (Texts{kAccepted, "Setting to Text Mode", "Speaker Set ",
                                       "Echo Enabled", "Checking Modem Speed"}));
  EXPECT_FALSE(prompt().Visible.peek());
  EXPECT_EQ(prompt().Text1.Text.peek(), "");
  EXPECT_EQ(prompt().Text2.Text.peek(), "");
  EXPECT_EQ(transcript(), "");
  expectWorking();
  expectAtRest();
  expectNoCodeInTheLog({"12345678", "4321"});
}

TEST_F(Puk, AcceptedRunsTheSequenceBehindTheHiddenPromptBeforeTheTranscriptIsCleared) {
  answerCodes({kOk});
  std::string atItsStart = "never";
  bool prompted = true;
  PropertyWatch watch(form1().Label5, [&](PropertyId) {
    if (statusLine() != "Intializing Settings....") return;
    atItsStart = transcript();
    prompted = prompt().Visible.peek();
  });
  enterPuk("12345678", "4321");
  settle();
  EXPECT_EQ(atItsStart, "AT+CPIN=12345678,4321\r\r\nOK\r\n");
  EXPECT_FALSE(prompted);
}

TEST_F(Puk, RefusedFallsBackToThePinFormWhileThePanelStaysInItsMode) {
  answerCodes({kError});
  enterPuk("87654321", "4321");
  settle();
  EXPECT_EQ(logAfterTheCheck(), Texts{kInvalidPuk});
  EXPECT_EQ(parts(), kPinForm);
  expectPukMode();
  EXPECT_EQ(refusals(), "0");
  EXPECT_TRUE(prompt().Visible.peek());
  EXPECT_EQ(prompt().Text1.Text.peek(), "");
  EXPECT_EQ(prompt().Text2.Text.peek(), "");
  EXPECT_EQ(transcript(), "");
  expectLocked();
  expectAtRest();
}

TEST_F(Puk, ABarePinAcceptedAfterARefusalIsLoggedAsAPuk) {
  answerCodes({kError, kOk});
  enterPuk("87654321", "4321");
  settle();
  enterPin("1234");
  settle();
  EXPECT_EQ(sent(), withSequence({"AT+CPIN=87654321,4321\r", "AT+CPIN=1234\r"}));
  EXPECT_EQ(logAfterTheCheck(), (Texts{kInvalidPuk, kAccepted, "Setting to Text Mode",
                                       "Speaker Set ", "Echo Enabled", "Checking Modem Speed"}));
  expectWorking();
  expectNoCodeInTheLog({"87654321", "4321", "1234"});
}

TEST_F(Puk, RefusedBarePinsAfterARefusalAreNeverCounted) {
  answerCodes({kError});
  enterPuk("87654321", "4321");
  settle();
  for (int i = 0; i < 5; ++i) {
    enterPin("1111");
    settle();
  }
  EXPECT_EQ(logged(kInvalidPuk), 6);
  EXPECT_EQ(refusals(), "0");
  expectPukMode();
  EXPECT_EQ(parts(), kPinForm);
  expectAtRest();
}

TEST_F(Puk, RefusedInPiecesIsLoggedOnce) {
  using std::chrono::milliseconds;
  world().modem.add({.fit = ModemScript::Rule::Fit::beginning,
                     .write = "AT+CPIN=",
                     .replies = {{{milliseconds(50), ""},
                                  {milliseconds(60), "\r\nERR"},
                                  {milliseconds(70), "OR\r\n"},
                                  {milliseconds(2500), "\r\n"}}}});
  enterPuk("87654321", "4321");
  settle();
  EXPECT_EQ(logged(kInvalidPuk), 1);
  EXPECT_EQ(parts(), kPinForm);
}

TEST_F(Puk, UnansweredLeavesItsForm) {
  enterPuk("12345678", "4321");
  settle();
  EXPECT_EQ(parts(), kPukForm);
  EXPECT_EQ(logAfterTheCheck(), Texts{});
  EXPECT_TRUE(prompt().Visible.peek());
  expectPukMode();
}

TEST_F(Puk, UnansweredPutsItsFormBackWhateverCameMeanwhile) {
  enterPuk("12345678", "4321");
  receive(unsolicited("+CPIN: SIM PIN"), 0.5);
  settle();
  EXPECT_EQ(parts(), kPukForm);
}

TEST_F(Puk, RefusedAfterTheWaitFallsBackToThePinForm) {
  using std::chrono::milliseconds;
  world().modem.add({.fit = ModemScript::Rule::Fit::beginning,
                     .write = "AT+CPIN=",
                     .replies = {{{milliseconds(50), ""}, {milliseconds(3000), kError}}}});
  enterPuk("87654321", "4321");
  run(2.5);
  EXPECT_EQ(parts(), kPukForm);
  settle();
  EXPECT_EQ(parts(), kPinForm);
  EXPECT_EQ(logged(kInvalidPuk), 1);
}

TEST_F(Puk, AnOldErrorInTheTranscriptCountsAgainstIt) {
  answerCodes({kOk});
  inPanel([this] { form1().Text1.Text = kError; });
  enterPuk("12345678", "4321");
  settle();
  EXPECT_EQ(logAfterTheCheck(), (Texts{kAccepted, "Setting to Text Mode", "Speaker Set ",
                                       "Echo Enabled", "Checking Modem Speed", kInvalidPuk}));
  EXPECT_EQ(parts(), kPinForm);
  EXPECT_FALSE(prompt().Visible.peek());
  expectWorking();
}

}  // namespace
}  // namespace gsm
