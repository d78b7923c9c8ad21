#include <gtest/gtest.h>

#include "audio/form6.h"
#include "modem/form2.h"
#include "panel/form1.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/routing_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kMaker =
    "ATI0\r\r\n WAVECOM MODEM\r\n\r\n MULTIBAND  900E  1800 \r\n\r\nOK\r\n";
constexpr const char* kEchoValues = "\r\n+ECHO: 0,1,0,3,10,7\r\n";

struct TextRow {
  std::string name;
  std::string text;
};

class RoutingOrder : public RoutingTest {
 protected:
  void SetUp() override {
    RoutingTest::SetUp();
    loadAudio();
    inPanel([this] { panel().form6.Label7.Caption = ""; });
    run(0);
  }
  bool ringHeard() { return form1().Timer2.Enabled.peek(); }
};

TEST_F(RoutingOrder, ARingStartsThePollAndClearsTheTranscript) {
  EXPECT_FALSE(ringHeard());
  EXPECT_EQ(form1().Timer2.Interval.peek(), 2000);
  receive(unsolicited("RING"));
  run(1.99);
  EXPECT_FALSE(ringHeard());
  run(0.02);
  EXPECT_TRUE(ringHeard());
  EXPECT_EQ(transcript(), "");
}

TEST_F(RoutingOrder, ClearingPutsTheCaretAtTheBeginning) {
  route("\r\nOK\r\n");
  EXPECT_EQ(form1().Text1.SelStart.peek(), 6);
  route(unsolicited("RING"));
  EXPECT_EQ(form1().Text1.SelStart.peek(), 0);
}

TEST_F(RoutingOrder, KeysAreExactInCase) {
  for (const char* text : {"ring", "Ring", "rING", "+csq: 15,99\r\n", "+Creg: 0,1\r\n"}) {
    route(text);
    EXPECT_EQ(transcript(), text);
    clearTranscript();
  }
  EXPECT_FALSE(ringHeard());
  EXPECT_EQ(signal() + registration(), "");
}

TEST_F(RoutingOrder, AResultWordAloneDoesNothing) {
  for (const char* text : {"\r\nOK\r\n", "\r\nERROR\r\n", "\r\n+CME ERROR: 10\r\n", "AT\r"}) {
    route(text);
    EXPECT_EQ(transcript(), text);
    clearTranscript();
  }
  EXPECT_EQ(boxes(), Texts{});
}

// Tests that clear, and so take a ring along that shares the transcript with their key.
class ClearingTest : public RoutingOrder, public ::testing::WithParamInterface<TextRow> {};

TEST_P(ClearingTest, SwallowsARingAfterIt) {
  receive(GetParam().text + unsolicited("RING"));
  settle();
  EXPECT_EQ(transcript(), "");
  EXPECT_FALSE(ringHeard());
}

TEST_P(ClearingTest, SwallowsARingBeforeIt) {
  receive(unsolicited("RING") + GetParam().text);
  settle();
  EXPECT_EQ(transcript(), "");
  EXPECT_FALSE(ringHeard());
}

TEST_P(ClearingTest, SwallowsARingInAnotherChunk) {
  receive(GetParam().text);
  receive(unsolicited("RING"), 0.5);
  settle();
  EXPECT_EQ(transcript(), "");
  EXPECT_FALSE(ringHeard());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ClearingTest,
    ::testing::Values(TextRow{"OfANewMessage", "\r\n+CMTI: \"SM\",1\r\n"},
                      TextRow{"OfTheMaker", kMaker},
                      TextRow{"OfTheRevision", "ATI3\r\r\n641b09gg.Q2403A\r\n\r\nOK\r\n"},
                      TextRow{"OfASpeakerChange", "AT+VGR=128\r\r\nOK\r\n"},
                      TextRow{"OfAMicrophoneChange", "AT+VGT=32\r\r\nOK\r\n"},
                      TextRow{"OfASpeakerGain", "\r\n+VGR: 128\r\n"},
                      TextRow{"OfAMicrophoneGain", "\r\n+VGT: 128\r\n"},
                      TextRow{"OfEchoValues", kEchoValues},
                      TextRow{"OfAnEchoChange", "AT+ECHO=0,1\r\r\nOK\r\n"},
                      TextRow{"OfASideTone", "\r\n+SIDET: 1,0\r\n"},
                      TextRow{"OfASideToneChange", "AT+SIDET=1,0\r\r\nOK\r\n"},
                      TextRow{"OfASignal", "\r\n+CSQ: 15,99\r\n"},
                      TextRow{"OfARegistration", "\r\n+CREG: 0,1\r\n"},
                      TextRow{"OfASimState", "\r\n+CPIN: SIM PIN\r\n"},
                      TextRow{"OfTheServiceCentre", "AT+CSCA?\r\r\nERROR\r\n"},
                      TextRow{"OfTheServiceCentreWithoutAnyResultYet", "AT+CSCA?\r"}),
    RowName());

// Tests that don't clear, or whose further condition isn't met: a ring beside their key is heard.
class PassingTest : public RoutingOrder, public ::testing::WithParamInterface<TextRow> {};

TEST_P(PassingTest, KeepsTheTranscriptForTheTestsAfterIt) {
  route(GetParam().text);
  EXPECT_EQ(transcript(), GetParam().text);
  EXPECT_TRUE(hearsRing());
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PassingTest,
    ::testing::Values(TextRow{"OfAWaitingCallWithoutAQuote", "\r\n+CCWA: ,,1\r\n"},
                      TextRow{"OfNoAnswer", "\r\nNO ANSWER\r\n"},
                      TextRow{"OfNoCarrier", "\r\nNO CARRIER\r\n"},
                      TextRow{"OfABusyLine", "\r\nBUSY\r\n"},
                      TextRow{"OfTheMakerWithoutItsResult", "ATI0\r\r\n WAVECOM MODEM\r\n"},
                      TextRow{"OfTheRevisionWithoutItsResult", "ATI3\r\r\nERROR\r\n"},
                      TextRow{"OfThePhoneBookWithoutItsResult", "AT+CPBS?\r\r\nERROR\r\n"},
                      TextRow{"OfAnEchoThatIsOff", "\r\n+ECHO: 0,0,0\r\n"},
                      TextRow{"OfACodeThatNobodyHasAskedFor", "AT+CPIN=1234\r\r\nERROR\r\n"}),
    RowName());

class FailingReader : public RoutingOrder, public ::testing::WithParamInterface<TextRow> {};

// A reader that traps its own failure ends alone: the routing goes on to the tests after it.
TEST_P(FailingReader, LeavesARingBesideItToBeHeard) {
  route(GetParam().text);
  EXPECT_EQ(transcript(), GetParam().text);
  clearTranscript();
  route(GetParam().text + "\r\nRING\r\n");
  EXPECT_TRUE(ringHeard());
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(boxes(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Rows, FailingReader,
                         ::testing::Values(TextRow{"OfAMakerThatIsOkAlone", "ATI0\r\r\nOK\r\n"},
                                           TextRow{"OfARevisionThatIsOkAlone", "ATI3\r\r\nOK\r\n"},
                                           TextRow{"OfAPhoneBookWithoutItsFile",
                                                   "AT+CPBS?\r\r\nOK\r\n"},
                                           TextRow{"OfEchoValuesWithoutAComma", "\r\n+ECHO: 0\r\n"},
                                           TextRow{"OfAServiceCentreWithoutAComma",
                                                   "AT+CSCA?\r\r\n+CSCA: \"+336\"\r\n\r\nOK\r\n"}),
                         RowName());

class LastTest : public RoutingOrder, public ::testing::WithParamInterface<TextRow> {};

TEST_P(LastTest, KeepsTheTranscript) {
  route(GetParam().text);
  EXPECT_EQ(transcript(), GetParam().text);
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LastTest,
    ::testing::Values(TextRow{"OfAWaitingCall", "\r\n+CCWA: \"0146290800\",145,1\r\n"},
                      TextRow{"OfAWaitingCallWithAQuoteElsewhere", "\"\r\n+CCWA: ,,1\r\n"},
                      TextRow{
                          "OfAStatusReport",
                          "\r\n+CDS: 2,116,\"+33146290800\",145,\"98/10/01,12:30:07+04\",0\r\n"},
                      TextRow{"OfAStatusReportWithoutAQuote", "\r\n+CDS: 25\r\n07911326\r\n"}),
    RowName());

// Of two keys in one transcript the earlier test acts and takes the later one's text along, though
// that stands before its own.
struct PairRow {
  std::string name;
  std::string earlier;
  std::string later;
  std::string shown;  // audio status, gains, signal, registration
};

class TwoKeys : public RoutingOrder, public ::testing::WithParamInterface<PairRow> {
 protected:
  std::string shown() {
    std::string all = audioStatus();
    const bool tone = panel().form6.Option1.Value.peek() || panel().form6.Option2.Value.peek();
    for (const std::string& words :
         {speakerGain(), microphoneGain(), std::string(tone ? "side tone" : ""), signal(),
          registration(), std::string(ringHeard() ? "ring" : "")}) {
      if (!words.empty()) all += (all.empty() ? "" : "|") + words;
    }
    return all;
  }
};

TEST_P(TwoKeys, ActByTheOrderOfTheTests) {
  receive(GetParam().later + GetParam().earlier);
  run(2.1);
  EXPECT_EQ(shown(), GetParam().shown);
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TwoKeys,
    ::testing::Values(
        PairRow{"MakerBeforeSpeakerChange", kMaker, "AT+VGR=1\r", ""},
        PairRow{"MicrophoneGainBeforeEchoValues", "\r\n+VGT: 224\r\n", kEchoValues,
                "Default Values-MicroPhone 224|224"},
        PairRow{"EchoValuesBeforeEchoChange", kEchoValues, "AT+ECHO=0,1\r\r\nOK\r\n",
                "Echo Current Values--0,1,0,3,10,7\r\n"},
        PairRow{"ServiceCentreBeforeRing", "AT+CSCA?\r", "\r\nRING\r\n", ""},
        PairRow{"SpeakerChangeBeforeMicrophoneChange", "AT+VGR=1\r\r\nOK\r\n",
                "AT+VGT=1\r\r\nOK\r\n", "Changes SuccessFul-Speaker"},
        PairRow{"MicrophoneChangeBeforeSpeakerGain", "AT+VGT=1\r\r\nOK\r\n", "\r\n+VGR: 128\r\n",
                "Changes SuccessFul-Microphone"},
        PairRow{"SpeakerGainBeforeMicrophoneGain", "\r\n+VGR: 128\r\n", "\r\n+VGT: 224\r\n",
                "Default Values-Speaker 128|128"},
        PairRow{"MicrophoneGainBeforeEchoChange", "\r\n+VGT: 224\r\n", "AT+ECHO=0,1\r\r\nOK\r\n",
                "Default Values-MicroPhone 224|224"},
        PairRow{"EchoChangeBeforeSideTone", "AT+ECHO=0,1\r\r\nERROR\r\n", "\r\n+SIDET: 1,0\r\n",
                "UnSuccessFul.Try Again"},
        PairRow{"SideToneBeforeSideToneChange", "\r\n+SIDET: 1,0\r\n", "AT+SIDET=0,0\r\r\nOK\r\n",
                "side tone"},
        PairRow{"SideToneChangeBeforeSignal", "AT+SIDET=0,0\r\r\nOK\r\n", "\r\n+CSQ: 15,99\r\n",
                "Changes SuccessFul"},
        PairRow{"SignalBeforeRegistration", "\r\n+CSQ: 15,99\r\n", "\r\n+CREG: 0,1\r\n", "15,99"},
        PairRow{"RegistrationBeforeSimState", "\r\n+CREG: 0,1\r\n", "\r\n+CPIN: SIM PIN\r\n",
                "Registered/Home Network"},
        PairRow{"RingBeforeStatusReport", "\r\nRING\r\n", "\r\n+CDS: 25\r\n", "ring"}),
    RowName());

// With the echo off the commands don't stand in front of their replies.
class ReplyWithoutEcho : public RoutingOrder, public ::testing::WithParamInterface<TextRow> {};

TEST_P(ReplyWithoutEcho, IsClaimedByNoTest) {
  const std::string countOfRefusals = form1().Text2.Text.peek();
  const auto lines = log();
  route(GetParam().text);
  EXPECT_EQ(transcript(), GetParam().text);
  EXPECT_EQ(audioStatus(), "");
  EXPECT_EQ(panel().form2.Label5.Caption.peek(), "");
  EXPECT_EQ(panel().form2.Label6.Caption.peek(), "");
  EXPECT_EQ(form1().Text2.Text.peek(), countOfRefusals);
  EXPECT_EQ(log(), lines);
  EXPECT_TRUE(hearsRing());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ReplyWithoutEcho,
    ::testing::Values(TextRow{"ToAChange", kOk}, TextRow{"ToARefusedCode", kError},
                      TextRow{"OfTheMaker",
                              "\r\n WAVECOM MODEM\r\n\r\n MULTIBAND  900E  1800 \r\n\r\nOK\r\n"},
                      TextRow{"OfTheRevision", information("641b09gg.Q2403A 1320676 061804 14:38")},
                      TextRow{"OfThePhoneBook", information("+CPBS: \"SM\",8,10")},
                      TextRow{"OfTheServiceCentre", information("+CSCA: \"+33609001390\",145")}),
    RowName());

TEST_F(RoutingOrder, ANewMessageTakesEveryReplyAlong) {
  receive(information("+CSQ: 15,99"));
  receive(unsolicited("+CMTI: \"SM\",1"), 0.5);
  settle();
  EXPECT_EQ(signal(), "");
  EXPECT_EQ(transcript(), "");
}

TEST_F(RoutingOrder, TheOutcomeOfACodeIsntSeenWhileTheSimsStateStandsThere) {
  receive("AT+CPIN=1234\r\r\nERROR\r\n\r\n+CPIN: SIM PIN\r\n");
  settle();
  EXPECT_EQ(transcript(), "");
  EXPECT_FALSE(form1().List1.List.peek().empty());
  EXPECT_NE(form1().List1.List.peek().back(), "Invalid PIN Entered");
}

TEST_F(RoutingOrder, KeysInsideAMessageAreTakenForTheEvent) {
  route("AT+CMGR= 1\r\r\n+CMGR: \"REC READ\",\"+331\",,\"98/10/01,18:22:11+00\"\r\nBRING IT\r\n");
  EXPECT_EQ(transcript(), "");
  EXPECT_TRUE(ringHeard());
}

TEST_F(RoutingOrder, AMessageAboutNewMessagesIsTakenForOne) {
  receive("\r\n+CMGR: \"REC READ\",\"+331\",,\"98/10/01,18:22:11+00\"\r\nCMTI RING\r\n\r\nOK\r\n");
  settle();
  EXPECT_EQ(transcript(), "");
  EXPECT_FALSE(ringHeard());
}

TEST_F(RoutingOrder, AKeyMayBeJoinedFromWhatWasLeftOver) {
  route("ends in RI");
  EXPECT_EQ(transcript(), "ends in RI");
  route("NG begins");
  EXPECT_TRUE(ringHeard());
  EXPECT_EQ(transcript(), "");
}

}  // namespace
}  // namespace gsm
