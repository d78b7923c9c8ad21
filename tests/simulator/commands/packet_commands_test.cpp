#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(PacketCommands, NoContextIsDefinedFirst) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CGDCONT?"), kOk);
}

TEST(PacketCommands, ContextsAreReportedALineEachInTheirOrder) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CGDCONT=3,\"PPP\",\"three\""), kOk);
  EXPECT_EQ(bench.ask("AT+CGDCONT=1,\"IP\",\"internet\""), kOk);
  EXPECT_EQ(bench.ask("AT+CGDCONT?"), withOk("+CGDCONT: 1,\"IP\",\"internet\",,0,0\r\n"
                                             "+CGDCONT: 3,\"PPP\",\"three\",,0,0"));
}

TEST(PacketCommands, ContextKeepsAnAddressAndItsCompression) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CGDCONT=2,\"IP\",\"a.b\",\"10.0.0.1\",1,1"), kOk);
  EXPECT_EQ(bench.ask("AT+CGDCONT?"), withOk("+CGDCONT: 2,\"IP\",\"a.b\",\"10.0.0.1\",1,1"));
  EXPECT_EQ(bench.ask("AT+CGDCONT=2,\"IP\",\"a, b;c\""), kOk);
  EXPECT_EQ(bench.ask("AT+CGDCONT?"), withOk("+CGDCONT: 2,\"IP\",\"a, b;c\",,0,0"));
}

TEST(PacketCommands, ContextIsForgottenByItsNumberAlone) {
  Bench bench;
  bench.ask("AT+CGDCONT=4,\"IP\",\"internet\"");
  EXPECT_EQ(bench.ask("AT+CGDCONT=4"), kOk);
  EXPECT_EQ(bench.ask("AT+CGDCONT=4"), kOk);
  EXPECT_EQ(bench.ask("AT+CGDCONT?"), kOk);
}

TEST(PacketCommands, FourContextsAreTheMost) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("AT+CGDCONT=?"), withOk("+CGDCONT: (1-4),\"IP\",,,(0,1),(0,1)\r\n"
                                              "+CGDCONT: (1-4),\"PPP\",,,(0,1),(0,1)"));
  for (const char* bad :
       {"AT+CGDCONT=0,\"IP\",\"a\"", "AT+CGDCONT=5,\"IP\",\"a\"", "AT+CGDCONT=1,\"X25\",\"a\"",
        "AT+CGDCONT=1,\"IP\",\"a\",,2", "AT+CGDCONT=1,\"IP\",\"a\",,0,2", "AT+CGDCONT=1,,\"a\""}) {
    EXPECT_EQ(bench.ask(bad), "\r\n+CME ERROR: 4\r\n") << bad;
  }
  for (const char* bad : {"AT+CGDCONT=", "AT+CGDCONT=x", "AT+CGDCONT=1,\"IP\",\"a\",,x",
                          "AT+CGDCONT=1,\"IP\",\"a\",,0,0,0"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench.ask("AT+CGDCONT?"), kOk);
}

}  // namespace
}  // namespace gsm::simulator
