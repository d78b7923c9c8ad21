#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(ServiceConsole, ServicesShowsHowTheyStand) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("services"),
            "forwarding, unconditional: off\n"
            "forwarding, busy: off\n"
            "forwarding, no reply: off\n"
            "forwarding, not reachable: off\n"
            "barring: AO 0 OI 0 OX 0 AI 0 IR 0, 3 tries left\n"
            "waiting: 1\n"
            "closed user group: 0,0,0");
  bench.askNetwork("AT+CCFC=1,3,\"0123\",3");
  bench.askNetwork("AT+CLCK=\"OX\",1,0000,5");
  bench.askNetwork("AT+CLCK=\"OX\",1,9999,5");
  bench.askNetwork("AT+CCWA=1,1");
  bench.ask("AT+CCUG=1,2,3");
  EXPECT_EQ(bench.modem.console("services"),
            "forwarding, unconditional: off\n"
            "forwarding, busy: class 1 to 0123 class 2 to 0123\n"
            "forwarding, no reply: off\n"
            "forwarding, not reachable: off\n"
            "barring: AO 0 OI 0 OX 5 AI 0 IR 0, 2 tries left\n"
            "waiting: 7\n"
            "closed user group: 1,2,3");
}

TEST(ServiceConsole, BarSetsTheClassesOfAFacility) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("bar IR 3"), "");
  EXPECT_EQ(bench.askNetwork("AT+CLCK=\"IR\",2"), withOk("+CLCK: 1,1\r\n+CLCK: 1,2"));
  EXPECT_EQ(bench.modem.console("bar IR 4"), "");
  EXPECT_EQ(bench.askNetwork("AT+CLCK=\"IR\",2"), withOk("+CLCK: 1,4"));
  EXPECT_EQ(bench.modem.console("bar IR 0"), "");
  EXPECT_EQ(bench.askNetwork("AT+CLCK=\"IR\",2"), withOk("+CLCK: 0,7"));
  for (const char* bad : {"bar", "bar AO", "bar AB 1", "bar XX 1", "bar AO 16", "bar AO -1",
                          "bar unlock it", "bar AO 1 2"}) {
    EXPECT_EQ(bench.modem.console(bad), "error: usage: bar AO|OI|OX|AI|IR CLASSES | unlock") << bad;
  }
}

TEST(ServiceConsole, LockShowsAndChangesWithoutAPassword) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("lock"), "PS off, SC off, PN off");
  EXPECT_EQ(bench.modem.console("lock SC on"), "");
  EXPECT_EQ(bench.modem.console("lock"), "PS off, SC on, PN off");
  EXPECT_EQ(bench.modem.console("lock PN on"), "");
  EXPECT_EQ(bench.modem.console("lock PS on"), "");
  EXPECT_EQ(bench.modem.console("lock SC off"), "");
  EXPECT_EQ(bench.modem.console("lock"), "PS on, SC off, PN on");
  for (const char* bad : {"lock PS", "lock FD on", "lock PS maybe"}) {
    EXPECT_EQ(bench.modem.console(bad), "error: usage: lock [PS|SC|PN on|off]") << bad;
  }
}

TEST(ServiceConsole, NeverShowsAPassword) {
  Bench bench;
  // Eight noughts in a row would hold the network's password.
  bench.modem.console("pin 2 set");
  bench.modem.console("pin 5 set");
  const std::string shown = bench.modem.console("services") + bench.modem.console("lock") +
                            bench.modem.console("state") + bench.modem.console("help");
  for (const char* secret : {"1234", "12345678", "87654321", "0000"}) {
    EXPECT_EQ(shown.find(secret), std::string::npos) << secret;
  }
}

}  // namespace
}  // namespace gsm::simulator
