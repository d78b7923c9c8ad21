#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(OperatorCommands, OperatorHasThreeNames) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+COPS?"), withOk("+COPS: 0,0,\"TEST NETWORK\""));
  EXPECT_EQ(bench.ask("AT+COPS=3,1;+COPS?"), withOk("+COPS: 0,1,\"TESTNET\""));
  EXPECT_EQ(bench.ask("AT+COPS=3,2;+COPS?"), withOk("+COPS: 0,2,\"20820\""));
  EXPECT_EQ(bench.ask("AT+COPS=0"), kOk);
  EXPECT_EQ(bench.ask("AT+COPS?"), withOk("+COPS: 0,2,\"20820\""));
  for (const char* bad : {"AT+COPS=1", "AT+COPS=3,3", "AT+COPS=", "AT+COPS=3,x", "AT+COPS=3,1,1"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
}

TEST(OperatorCommands, NobodyOperatesWithoutService) {
  Bench bench({.sim = SimStatus::kAbsent});
  EXPECT_EQ(bench.ask("AT+COPS?"), withOk("+COPS: 0"));
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("AT+CIMI"), "\r\n+CME ERROR: 10\r\n");
}

TEST(OperatorCommands, SubscriberIsABareNumber) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CIMI"), withOk("208201234567890"));
}

TEST(OperatorCommands, PacketRegistrationHasNoticesOfItsOwn) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CGREG?"), withOk("+CGREG: 0,1"));
  EXPECT_EQ(bench.ask("AT+CGREG=2;+CGREG?"), withOk("+CGREG: 2,1,\"00C3\",\"7066\""));
  bench.modem.console("register 3");
  EXPECT_EQ(bench.listen(), "\r\n+CGREG: 3\r\n");
  EXPECT_EQ(bench.ask("AT+CGREG=?"), withOk("+CGREG: (0-2)"));
  EXPECT_EQ(bench.ask("AT+CGREG=3"), kError);
  EXPECT_EQ(bench.ask("AT+CGREG=0;+CGREG?"), withOk("+CGREG: 0,3"));
  bench.modem.console("register 1");
  EXPECT_EQ(bench.listen(), "");
}

TEST(OperatorCommands, PacketsAreCarriedWithServiceUnlessTheHostDoesntWantThem) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CGATT?"), withOk("+CGATT: 1"));
  EXPECT_EQ(bench.ask("AT+CGATT=0;+CGATT?"), withOk("+CGATT: 0"));
  EXPECT_EQ(bench.ask("AT+CGATT=1;+CGATT?"), withOk("+CGATT: 1"));
  EXPECT_EQ(bench.ask("AT+CGATT=?"), withOk("+CGATT: (0,1)"));
  for (const char* bad : {"AT+CGATT=2", "AT+CGATT=", "AT+CGATT=1,1"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  bench.modem.console("register 2");
  EXPECT_EQ(bench.ask("AT+CGATT?"), withOk("+CGATT: 0"));
}

}  // namespace
}  // namespace gsm::simulator
