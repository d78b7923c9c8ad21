#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(NetworkCommands, SignalHasNoBlankAfterItsComma) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CSQ"), withOk("+CSQ: 17,0"));
  EXPECT_EQ(bench.ask("AT+CSQ=?"), withOk("+CSQ: (0-31,99),(0-7,99)"));
}

TEST(NetworkCommands, SignalIsReportedWithoutACard) {
  Bench bench({.sim = SimStatus::kAbsent});
  EXPECT_EQ(bench.ask("AT+CSQ"), withOk("+CSQ: 17,0"));
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 0,0"));
}

TEST(NetworkCommands, ReadyModemIsRegisteredAtOnce) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 0,1"));
}

TEST(NetworkCommands, RegistrationModeTwoReportsThePlace) {
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

TEST(NetworkCommands, ActivityIsNone) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CPAS"), withOk("+CPAS: 0"));
}

}  // namespace
}  // namespace gsm::simulator
