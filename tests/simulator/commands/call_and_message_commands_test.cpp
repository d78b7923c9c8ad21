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
