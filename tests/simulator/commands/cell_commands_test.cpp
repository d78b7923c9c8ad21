#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

constexpr const char* kMain = "+CCED:208,20,00C3,7066,37,706,31,,,0,,,0";
constexpr const char* kWhole =
    "+CCED:208,20,00C3,7066,37,706,31,,,0,,,0,208,20,00C3,989B,37,835,20,1";

std::string line(const std::string& text) { return "\r\n" + text + "\r\n"; }

TEST(CellCommands, DumpHasThirteenFieldsForTheMainCell) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CCED=0,1"), withOk(kMain));
  EXPECT_EQ(bench.ask("AT+CCED=0,2"), withOk("+CCED:208,20,00C3,989B,37,835,20"));
  EXPECT_EQ(bench.ask("AT+CCED=0,4"), withOk("+CCED:1"));
  EXPECT_EQ(bench.ask("AT+CCED=0,8"), withOk("+CSQ: 17,99"));
}

TEST(CellCommands, DumpIsTheOneAskedForLastAndAtFirstTheWhole) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CCED=0"), line(kWhole) + line("+CSQ: 17,99") + kOk);
  bench.ask("AT+CCED=0,1");
  EXPECT_EQ(bench.ask("AT+CCED=0,"), withOk(kMain));
}

TEST(CellCommands, DumpWithoutServiceHasNoCountry) {
  Bench bench({.sim = SimStatus::kAbsent});
  EXPECT_EQ(bench.ask("AT+CCED=0,1"), withOk("+CCED:0,0,,,,,,,,,,,0"));
  EXPECT_EQ(bench.ask("AT+CCED=0,7"), withOk("+CCED:0,0,,,,,,,,,,,0,"));
}

TEST(CellCommands, LevelFollowsTheSignal) {
  Bench bench;
  bench.modem.console("signal 99");
  EXPECT_EQ(bench.ask("AT+CCED=0,1"), withOk("+CCED:208,20,00C3,7066,37,706,,,,0,,,0"));
  bench.modem.console("signal 1");
  EXPECT_EQ(bench.ask("AT+CCED=0,1"), withOk("+CCED:208,20,00C3,7066,37,706,0,,,0,,,0"));
}

TEST(CellCommands, DumpComesByItselfEveryFiveSecondsUntilStopped) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CCED=1,1"), kOk);
  EXPECT_EQ(bench.listen(seconds(4)), "");
  EXPECT_EQ(bench.listen(milliseconds(300)), line(kMain));
  EXPECT_EQ(bench.listen(seconds(10)), line(kMain) + line(kMain));
  EXPECT_EQ(bench.ask("AT+CCED=2"), kOk);
  EXPECT_EQ(bench.listen(seconds(60)), "");
}

TEST(CellCommands, SignalComesByItselfWhenItHasChanged) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CCED=1,8"), kOk);
  EXPECT_EQ(bench.listen(seconds(5)), line("+CSQ: 17,99"));
  EXPECT_EQ(bench.listen(seconds(20)), "");
  bench.modem.console("signal 9");
  EXPECT_EQ(bench.listen(seconds(20)), line("+CSQ: 9,99"));
}

TEST(CellCommands, DumpAskedForTwiceComesOnce) {
  Bench bench;
  bench.ask("AT+CCED=1,1");
  bench.ask("AT+CCED=1,4");
  EXPECT_EQ(bench.listen(seconds(5)), line("+CCED:1"));
}

TEST(CellCommands, DumpsOnceWhileItRepeats) {
  Bench bench;
  bench.ask("AT+CCED=1,1");
  EXPECT_EQ(bench.ask("AT+CCED=0,4"), withOk("+CCED:1"));
  EXPECT_EQ(bench.listen(seconds(4)), line("+CCED:1"));
}

TEST(CellCommands, RefusesWhatItDoesntKnow) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("AT+CCED=2"), kOk) << "though none comes by itself";
  EXPECT_EQ(bench.ask("AT+CCED=?"), withOk("+CCED: (0-2),(1-15)"));
  for (const char* bad : {"AT+CCED=3", "AT+CCED=0,0", "AT+CCED=1,16"}) {
    EXPECT_EQ(bench.ask(bad), "\r\n+CME ERROR: 4\r\n") << bad;
  }
  for (const char* bad : {"AT+CCED=", "AT+CCED=x", "AT+CCED=0,x", "AT+CCED=0,1,2", "AT+CCED?"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench.listen(seconds(20)), "");
}

TEST(CellConsole, CellChangesPlacesWithItsNeighbour) {
  Bench bench;
  bench.ask("AT+CREG=2");
  EXPECT_EQ(bench.modem.console("cell"), "");
  EXPECT_EQ(bench.listen(), line("+CREG: 1,\"00C3\",\"989B\""));
  EXPECT_EQ(bench.ask("AT+CCED=0,3"),
            withOk("+CCED:208,20,00C3,989B,37,835,31,,,0,,,0,208,20,00C3,7066,37,706,20"));
  EXPECT_EQ(bench.modem.console("cell"), "");
  EXPECT_EQ(bench.listen(), line("+CREG: 1,\"00C3\",\"7066\""));
}

TEST(CellConsole, CellIsNoNewsToAHostThatDoesntAskForThePlace) {
  Bench bench;
  bench.ask("AT+CREG=1");
  bench.modem.console("cell");
  EXPECT_EQ(bench.listen(), "");
  Bench without({.sim = SimStatus::kAbsent});
  without.ask("AT+CREG=2");
  without.modem.console("cell");
  EXPECT_EQ(without.listen(), "");
}

}  // namespace
}  // namespace gsm::simulator
