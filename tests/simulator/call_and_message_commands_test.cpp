#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(CallCommands, SwitchesTakeTheirValues) {
  Bench bench;
  EXPECT_EQ(bench.write("AT+CLIP=1\r"), "AT+CLIP=1\r\r\nOK\r\n");
  EXPECT_EQ(bench.ask("AT+CLIP?"), withOk("+CLIP: 1,1"));
  EXPECT_EQ(bench.ask("AT+CLIP=?"), withOk("+CLIP: (0,1)"));
  EXPECT_EQ(bench.ask("AT+CRC=1;+CRC?"), withOk("+CRC: 1"));
  EXPECT_EQ(bench.ask("AT+SPEAKER?"), withOk("+SPEAKER: 0"));
  EXPECT_EQ(bench.ask("AT+SPEAKER=1;+SPEAKER?"), withOk("+SPEAKER: 1"));
  EXPECT_EQ(bench.ask("AT+SPEAKER=?"), withOk("+SPEAKER: (0,1)"));
  EXPECT_EQ(bench.ask("AT+SPEAKER=2"), kError);
}

TEST(CallCommands, CallWaitingTellsWhatTheNetworkDoes) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CCWA?"), withOk("+CCWA: 0"));
  EXPECT_EQ(bench.ask("AT+CCWA=?"), withOk("+CCWA: (0,1)"));
  EXPECT_EQ(bench.ask("AT+CCWA=1,2"), withOk("+CCWA: 1,1"));
  EXPECT_EQ(bench.ask("AT+CCWA?"), withOk("+CCWA: 1"));
  EXPECT_EQ(bench.ask("AT+CCWA=1,0,7"), kOk);
  EXPECT_EQ(bench.ask("AT+CCWA=1,2"), withOk("+CCWA: 0,7"));
  EXPECT_EQ(bench.ask("AT+CCWA=1,1,1"), kOk);
  EXPECT_EQ(bench.ask("AT+CCWA=,2"), withOk("+CCWA: 1,1"));
  EXPECT_EQ(bench.ask("AT+CCWA=0"), kOk);
  EXPECT_EQ(bench.ask("AT+CCWA?"), withOk("+CCWA: 0"));
}

TEST(CallCommands, CallWaitingOfOtherClassesThanVoiceIsOffAndStaysSo) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CCWA=1,2,4"), withOk("+CCWA: 0,4"));
  EXPECT_EQ(bench.ask("AT+CCWA=1,0,6"), kOk);
  EXPECT_EQ(bench.ask("AT+CCWA=1,2"), withOk("+CCWA: 1,1"));
}

TEST(CallCommands, BadCallWaitingChangesNothing) {
  Bench bench;
  for (const char* bad : {"AT+CCWA=", "AT+CCWA=x", "AT+CCWA=2", "AT+CCWA=1,3", "AT+CCWA=1,x",
                          "AT+CCWA=1,0,0", "AT+CCWA=1,0,256", "AT+CCWA=1,0,x", "AT+CCWA=1,0,1,1"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench.ask("AT+CCWA?"), withOk("+CCWA: 0"));
  EXPECT_EQ(bench.ask("AT+CCWA=0,2"), withOk("+CCWA: 1,1"));
}

TEST(CallCommands, CallWaitingServiceNeedsACard) {
  Bench bench({.sim = SimStatus::kPinWanted});
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("AT+CCWA=1,2"), "\r\n+CME ERROR: 11\r\n");
  EXPECT_EQ(bench.ask("AT+CCWA?"), withOk("+CCWA: 0"));
  EXPECT_EQ(bench.ask("AT+CCWA=1"), kOk);
}

TEST(MessageCommands, TextModeIsOffFirst) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CMGF?"), withOk("+CMGF: 0"));
  EXPECT_EQ(bench.ask("AT+CMGF=1;+CMGF?"), withOk("+CMGF: 1"));
  EXPECT_EQ(bench.ask("AT+CMGF=2"), kError);
}

TEST(MessageCommands, MessageNoticesKeepWhatIsLeftOut) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CNMI?"), withOk("+CNMI: 0,1,0,0,0"));
  EXPECT_EQ(bench.ask("AT+CNMI=?"), withOk("+CNMI: (0-3),(0-3),(0-3),(0-2),(0,1)"));
  EXPECT_EQ(bench.ask("AT+CNMI=2,1,0,2"), kOk);
  EXPECT_EQ(bench.ask("AT+CNMI?"), withOk("+CNMI: 2,1,0,2,0"));
  EXPECT_EQ(bench.ask("AT+CNMI=,,,1"), kOk);
  EXPECT_EQ(bench.ask("AT+CNMI?"), withOk("+CNMI: 2,1,0,1,0"));
}

TEST(MessageCommands, OneBadMessageNoticeChangesNone) {
  Bench bench;
  for (const char* bad : {"AT+CNMI=1,1,1,1,2", "AT+CNMI=1,x", "AT+CNMI=1,1,1,1,1,1", "AT+CNMI="}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench.ask("AT+CNMI?"), withOk("+CNMI: 0,1,0,0,0"));
}

TEST(MessageCommands, CharacterSetGoesByItsName) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CSCS?"), withOk("+CSCS: \"PCCP437\""));
  EXPECT_EQ(bench.ask("AT+CSCS=?"), withOk("+CSCS: (\"GSM\",\"PCCP437\",\"CUSTOM\",\"HEX\")"));
  EXPECT_EQ(bench.ask("AT+CSCS=\"HEX\""), kOk);
  EXPECT_EQ(bench.write("AT+CSCS?\r"), "AT+CSCS?\r\r\n+CSCS: \"HEX\"\r\n\r\nOK\r\n");
  EXPECT_EQ(bench.ask("AT+CSCS=\"UCS2\""), kError);
  EXPECT_EQ(bench.ask("AT+CSCS="), kError);
}

}  // namespace
}  // namespace gsm::simulator
