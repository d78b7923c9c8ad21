#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(NetworkCommands, SignalHasNoBlankBehindItsComma) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CSQ"), withOk("+CSQ: 17,0"));
  EXPECT_EQ(bench.ask("AT+CSQ=?"), withOk("+CSQ: (0-31,99),(0-7,99)"));
}

TEST(NetworkCommands, SignalIsToldWithoutACard) {
  Bench bench({.sim = SimStatus::kAbsent});
  EXPECT_EQ(bench.ask("AT+CSQ"), withOk("+CSQ: 17,0"));
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 0,0"));
}

TEST(NetworkCommands, ReadyModemIsRegisteredAtOnce) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 0,1"));
}

TEST(NetworkCommands, RegistrationModeTwoTellsThePlace) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CREG=2"), kOk);
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 2,1,\"00C3\",\"7066\""));
  bench.modem.console("register 3");
  EXPECT_EQ(bench.listen(), "\r\n+CREG: 3\r\n");
  bench.modem.console("register 5");
  EXPECT_EQ(bench.listen(), "\r\n+CREG: 5,\"00C3\",\"7066\"\r\n");
  EXPECT_EQ(bench.ask("AT+CREG=3"), kError);
  EXPECT_EQ(bench.ask("AT+CREG=?"), withOk("+CREG: (0-2)"));
}

TEST(NetworkCommands, IndicationMaskTakesItsWholeRange) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+WIND?"), withOk("+WIND: 0"));
  EXPECT_EQ(bench.ask("AT+WIND=32767"), kOk);
  EXPECT_EQ(bench.ask("AT+WIND?"), withOk("+WIND: 32767"));
  for (const char* bad : {"AT+WIND=32768", "AT+WIND=-1", "AT+WIND=", "AT+WIND=1,2"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench.ask("AT+WIND=?"), withOk("+WIND: (0-32767)"));
}

TEST(NetworkCommands, CellDumpHasThirteenFieldsForTheMainCell) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CCED=0,1"), withOk("+CCED:208,20,00C3,7066,37,706,31,,,0,,,0"));
  EXPECT_EQ(bench.ask("AT+CCED=0,8"), withOk("+CSQ: 17,99"));
  EXPECT_EQ(bench.ask("AT+CCED=0"),
            "\r\n+CCED:208,20,00C3,7066,37,706,31,,,0,,,0,208,20,00C3,989B,37,835,20,1\r\n"
            "\r\n+CSQ: 17,99\r\n\r\nOK\r\n");
}

TEST(NetworkCommands, CellDumpWithoutServiceHasNoCountry) {
  Bench bench({.sim = SimStatus::kAbsent});
  EXPECT_EQ(bench.ask("AT+CCED=0,1"), withOk("+CCED:0,0,,,,,,,,,,,0"));
}

TEST(NetworkCommands, EndingADumpIsAlwaysRight) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CCED=2"), kOk);
  for (const char* bad : {"AT+CCED=1", "AT+CCED=0,0", "AT+CCED=0,16", "AT+CCED=", "AT+CCED=x",
                          "AT+CCED=0,1,2", "AT+CCED?"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
}

TEST(NetworkCommands, ActivityAndFunctionality) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CPAS"), withOk("+CPAS: 0"));
  EXPECT_EQ(bench.ask("AT+CFUN?"), withOk("+CFUN: 1"));
  EXPECT_EQ(bench.ask("AT+CFUN=?"), withOk("+CFUN: (0,1),(0,1)"));
}

}  // namespace
}  // namespace gsm::simulator
