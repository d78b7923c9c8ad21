#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(CallStatusCommands, IndicatorsAreSevenDigits) {
  Bench bench;
  EXPECT_EQ(bench.write("AT+CIND?\r"), "AT+CIND?\r\r\n+CIND: 5,2,1,1,0,0,0\r\n\r\nOK\r\n");
  EXPECT_EQ(bench.ask("AT+CIND=?"),
            withOk("+CIND: (\"battchg\",(0-5)),(\"signal\",(0-5)),(\"service\",(0,1)),"
                   "(\"message\",(0,1)),(\"call\",(0,1)),(\"roam\",(0,1)),(\"smsfull\",(0-2))"));
  EXPECT_EQ(bench.ask("AT+CIND=1"), kError);
}

TEST(CallStatusCommands, IndicatorsFollowTheNetwork) {
  Bench bench;
  const std::pair<const char*, const char*> kValues[] = {
      {"signal 0", "5,0,1,1,0,0,0"},   {"signal 31", "5,5,1,1,0,0,0"},
      {"signal 60", "5,5,1,1,0,0,0"},  {"signal 99", "5,0,1,1,0,0,0"},
      {"register 5", "5,0,1,1,0,1,0"}, {"register 0", "5,0,0,1,0,0,0"},
  };
  for (const auto& [line, values] : kValues) {
    bench.modem.console(line);
    EXPECT_EQ(bench.ask("AT+CIND?"), withOk("+CIND: " + std::string(values))) << line;
  }
}

TEST(CallStatusCommands, FollowAnIncomingCallFromItsFirstRingToItsEnd) {
  Bench bench;
  const char* const kCall = "+CIND: 5,2,1,1,1,0,0";
  const char* const kNoCall = "+CIND: 5,2,1,1,0,0,0";
  bench.modem.console("ring 0123");
  bench.listen();
  EXPECT_EQ(bench.ask("AT+CIND?"), withOk(kCall));
  EXPECT_EQ(bench.ask("AT+CPAS"), withOk("+CPAS: 3"));
  EXPECT_EQ(bench.ask("AT+CLCC"), withOk("+CLCC: 1,1,4,0,0,\"0123\",129"));
  bench.ask("ATA");
  EXPECT_EQ(bench.ask("AT+CIND?"), withOk(kCall));
  EXPECT_EQ(bench.ask("AT+CPAS"), withOk("+CPAS: 4"));
  EXPECT_EQ(bench.ask("AT+CLCC"), withOk("+CLCC: 1,1,0,0,0,\"0123\",129"));
  bench.modem.console("wait hidden");
  EXPECT_EQ(bench.ask("AT+CLCC"),
            withOk("+CLCC: 1,1,0,0,0,\"0123\",129\r\n+CLCC: 2,1,5,0,0,\"\",129"));
  EXPECT_EQ(bench.ask("AT+CPAS"), withOk("+CPAS: 4"));
  bench.ask("ATH");
  EXPECT_EQ(bench.ask("AT+CIND?"), withOk(kNoCall));
  EXPECT_EQ(bench.ask("AT+CPAS"), withOk("+CPAS: 0"));
  EXPECT_EQ(bench.ask("AT+CLCC"), kOk);
}

TEST(CallStatusCommands, FollowACallThatTheHostMade) {
  Bench bench;
  bench.write("ATD+33639981201;\r");
  bench.listen(seconds(3));
  EXPECT_EQ(bench.ask("AT+CLCC"), withOk("+CLCC: 1,0,0,0,0,\"+33639981201\",145"));
  EXPECT_EQ(bench.ask("AT+CPAS"), withOk("+CPAS: 4"));
}

TEST(CallStatusCommands, WorkWithoutACard) {
  Bench bench({.sim = SimStatus::kAbsent});
  EXPECT_EQ(bench.ask("AT+CIND?"), withOk("+CIND: 5,2,0,0,0,0,0"));
  EXPECT_EQ(bench.ask("AT+CPAS"), withOk("+CPAS: 0"));
  EXPECT_EQ(bench.ask("AT+CLCC"), kOk);
  for (const char* command : {"AT+CPAS=?", "AT+CLCC=?"}) EXPECT_EQ(bench.ask(command), kOk);
}

}  // namespace
}  // namespace gsm::simulator
