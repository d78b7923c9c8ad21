#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/modem/code_prompt_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

constexpr const char* kInvalidPin = "Invalid PIN Entered";

class Pin : public CodePromptTest {
 protected:
  void SetUp() override { startAtPrompt("SIM PIN"); }
};

TEST_F(Pin, AcceptedInitialisesTheModem) {
  answerCodes({kOk});
  enterPin("1234");
  settle();
  EXPECT_EQ(sent(), withSequence({"AT+CPIN=1234\r"}));
  EXPECT_EQ(logAfterTheCheck(), (Texts{"PIN Accepted", "Setting to Text Mode", "Speaker Set ",
                                       "Echo Enabled", "Checking Modem Speed"}));
  EXPECT_FALSE(prompt().Visible.peek());
  EXPECT_TRUE(prompt().isLoaded());
  EXPECT_EQ(prompt().Text1.Text.peek(), "");
  EXPECT_EQ(refusals(), "0");
  expectWorking();
  expectAtRest();
  expectNoCodeInTheLog({"1234"});
}

TEST_F(Pin, AcceptedHidesThePromptAndClearsTheTranscriptBeforeTheSequence) {
  answerCodes({kOk});
  std::string atItsStart = "never";
  bool prompted = true;
  PropertyWatch watch(form1().Label5, [&](PropertyId) {
    if (statusLine() != "Intializing Settings....") return;
    atItsStart = transcript();
    prompted = prompt().Visible.peek();
  });
  enterPin("1234");
  settle();
  EXPECT_EQ(atItsStart, "");
  EXPECT_FALSE(prompted);
}

TEST_F(Pin, AcceptedByAModemWithoutIdentityAndFramingLeavesTheWordsThatItRuns) {
  world().modem.forget();
  answerCodes({kOk});
  enterPin("1234");
  settle();
  EXPECT_EQ(statusLine(), "Intializing Settings....");
  EXPECT_FALSE(prompt().Visible.peek());
  expectLocked();
  expectAtRest();
}

TEST_F(Pin, RefusedIsCountedAndAskedAgain) {
  answerCodes({kError});
  enterPin("1111");
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CPIN=1111\r"});
  EXPECT_EQ(logAfterTheCheck(), Texts{kInvalidPin});
  EXPECT_EQ(refusals(), "1");
  EXPECT_TRUE(prompt().Visible.peek());
  EXPECT_EQ(parts(), kPinForm);
  EXPECT_EQ(prompt().Text1.Text.peek(), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(statusLine(), "");
  expectLocked();
  expectAtRest();
}

TEST_F(Pin, RefusedByACodedErrorIsRefused) {
  answerCodes({"\r\n+CME ERROR: 16\r\n"});
  enterPin("1111");
  settle();
  EXPECT_EQ(refusals(), "1");
}

TEST_F(Pin, RefusedTwiceLeavesThePromptOpen) {
  answerCodes({kError});
  enterPin("1111");
  settle();
  enterPin("2222");
  settle();
  EXPECT_EQ(logAfterTheCheck(), (Texts{kInvalidPin, kInvalidPin}));
  EXPECT_EQ(refusals(), "2");
  EXPECT_TRUE(prompt().Visible.peek());
  expectAtRest();
}

TEST_F(Pin, RefusedThreeTimesEndsTheProgramAfterABox) {
  answerCodes({kError});
  enterPin("1111");
  settle();
  enterPin("2222");
  settle();
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  enterPin("3333");
  run(5);
  expectBox("Invalid PIN Entered.GET PUK Number And TRY LAter", "GSM");
  EXPECT_EQ(logAfterTheCheck(), (Texts{kInvalidPin, kInvalidPin, kInvalidPin,
                                       "Invalid PIN Entered 3Times.GET PUK Number"}));
  EXPECT_EQ(refusals(), "3");
  EXPECT_TRUE(prompt().Visible.peek());
  EXPECT_FALSE(ended());
  world().time().after(Duration::zero(), [this] { machine().boxes.answerTop(); });
  run(1);
  EXPECT_TRUE(ended());
  EXPECT_FALSE(machine().line.isOpen());
  EXPECT_EQ(sent(), (Texts{"AT+CPIN=1111\r", "AT+CPIN=2222\r", "AT+CPIN=3333\r"}));
  expectNoCodeInTheLog({"1111", "2222", "3333"});
}

TEST_F(Pin, TheCountOutlivesAnAcceptedPin) {
  answerCodes({kError, kError, kOk, kError});
  for (const char* pin : {"1111", "2222", "1234"}) {
    enterPin(pin);
    settle();
  }
  expectWorking();
  EXPECT_EQ(refusals(), "2");
  click(form1().Command9);
  settle();
  EXPECT_TRUE(prompt().Visible.peek());
  enterPin("3333");
  settle();
  expectBox("Invalid PIN Entered.GET PUK Number And TRY LAter", "GSM");
  EXPECT_TRUE(ended());
}

// The ways in which a refusal can come in pieces.
struct PiecesRow {
  std::string name;
  std::vector<ModemScript::Chunk> chunks;
};
class RefusalInPieces : public Pin, public ::testing::WithParamInterface<PiecesRow> {};

TEST_P(RefusalInPieces, IsCountedOnce) {
  world().modem.add({.fit = ModemScript::Rule::Fit::beginning,
                     .write = "AT+CPIN=",
                     .replies = {GetParam().chunks}});
  enterPin("1111");
  settle();
  EXPECT_EQ(logged(kInvalidPin), 1);
  EXPECT_EQ(refusals(), "1");
  expectAtRest();
}

using std::chrono::milliseconds;
INSTANTIATE_TEST_SUITE_P(
    Pieces, RefusalInPieces,
    ::testing::Values(
        PiecesRow{
            "OfThree",
            {{milliseconds(50), ""}, {milliseconds(60), "\r\nERR"}, {milliseconds(70), "OR\r\n"}}},
        PiecesRow{"OfFiveWithinTheWait",
                  {{milliseconds(50), "\r"},
                   {milliseconds(500), "\n"},
                   {milliseconds(1000), "ERROR"},
                   {milliseconds(1500), "\r"},
                   {milliseconds(2500), "\n"}}},
        PiecesRow{"OfEchoAndALateResult", {{milliseconds(50), ""}, {milliseconds(3000), kError}}},
        PiecesRow{"WithALateRest",
                  {{milliseconds(50), "\r\nERROR"}, {milliseconds(2500), "\r\n"}}}),
    RowName());

TEST_F(Pin, BetweenTheEchoAndTheResultNothingHappens) {
  world().modem.add({.fit = ModemScript::Rule::Fit::beginning,
                     .write = "AT+CPIN=",
                     .replies = {{{milliseconds(50), ""}, {milliseconds(10000), kOk}}}});
  enterPin("1234");
  run(9);
  EXPECT_EQ(refusals(), "0");
  EXPECT_EQ(transcript(), "AT+CPIN=1234\r");
  EXPECT_TRUE(prompt().Visible.peek());
  settle();
  EXPECT_EQ(logged("PIN Accepted"), 1);
  EXPECT_FALSE(prompt().Visible.peek());
  expectWorking();
}

TEST_F(Pin, AcceptedInPiecesInitialisesOnce) {
  world().modem.add(
      {.fit = ModemScript::Rule::Fit::beginning,
       .write = "AT+CPIN=",
       .replies = {
           {{milliseconds(50), "\r\n"}, {milliseconds(60), "OK"}, {milliseconds(70), "\r\n"}}}});
  enterPin("1234");
  settle();
  EXPECT_EQ(sent(), withSequence({"AT+CPIN=1234\r"}));
  EXPECT_EQ(logged("PIN Accepted"), 1);
}

TEST_F(Pin, AcceptedAndRefusedInOneTextIsBoth) {
  answerCodes({"\r\nOK\r\n\r\nERROR\r\n"});
  enterPin("1234");
  settle();
  EXPECT_EQ(logAfterTheCheck(), (Texts{"PIN Accepted", "Setting to Text Mode", "Speaker Set ",
                                       "Echo Enabled", "Checking Modem Speed", kInvalidPin}));
  EXPECT_EQ(refusals(), "1");
  EXPECT_TRUE(prompt().Visible.peek());
  expectWorking();
}

TEST_F(Pin, WithoutEchoIsNeverJudged) {
  world().modem.add({.fit = ModemScript::Rule::Fit::beginning,
                     .write = "AT+CPIN=",
                     .replies = {{{milliseconds(50), kError}}},
                     .echo = false});
  enterPin("1111");
  settle();
  EXPECT_EQ(refusals(), "0");
  EXPECT_EQ(logAfterTheCheck(), Texts{});
  EXPECT_EQ(transcript(), kError);
}

TEST_F(Pin, ACountThatIsNoNumberEndsTheJudgementSilently) {
  answerCodes({kError});
  inPanel([this] { form1().Text2.Text = "no number"; });
  enterPin("1111");
  settle();
  EXPECT_EQ(logAfterTheCheck(), Texts{kInvalidPin});
  EXPECT_EQ(refusals(), "no number");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
