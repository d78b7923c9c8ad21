#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(AudioCommands, GainsAreReportedAsTheLowerEdgeOfTheirStep) {
  struct GainRow {
    const char* command;
    const char* told;
  };
  constexpr GainRow kRows[] = {
      {"AT+VGR=0;+VGR?", "+VGR: 0"},     {"AT+VGR=15;+VGR?", "+VGR: 0"},
      {"AT+VGR=16;+VGR?", "+VGR: 16"},   {"AT+VGR=064;+VGR?", "+VGR: 64"},
      {"AT+VGR=239;+VGR?", "+VGR: 224"}, {"AT+VGR=255;+VGR?", "+VGR: 224"},
      {"AT+VGT=31;+VGT?", "+VGT: 0"},    {"AT+VGT=32;+VGT?", "+VGT: 32"},
      {"AT+VGT=100;+VGT?", "+VGT: 96"},  {"AT+VGT=255;+VGT?", "+VGT: 224"},
  };
  for (const GainRow& row : kRows) {
    Bench bench;
    EXPECT_EQ(bench.ask(row.command), withOk(row.told)) << row.command;
  }
}

TEST(AudioCommands, GainsHaveTheirFactoryValues) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+VGR?"), withOk("+VGR: 128"));
  EXPECT_EQ(bench.ask("AT+VGT?"), withOk("+VGT: 32"));
}

TEST(AudioCommands, GainsRefuseWhatIsOutOfRange) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("AT+VGR=?"), withOk("+VGR: (0-255)"));
  for (const char* bad : {"AT+VGR=256", "AT+VGT=300"}) {
    EXPECT_EQ(bench.ask(bad), "\r\n+CME ERROR: 4\r\n") << bad;
  }
  for (const char* bad : {"AT+VGR=", "AT+VGR=loud", "AT+VGT=1,2", "AT+VGR"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench.ask("AT+VGR?"), withOk("+VGR: 128"));
}

// The factory's step of 6 is more than hosts think a step can be.
TEST(AudioCommands, FactoryEchoIsTheFirstAlgorithmWithItsFourValues) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+ECHO?"), withOk("+ECHO: 0,1,0,6,10,7"));
  EXPECT_EQ(bench.ask("AT+ECHO=?"), withOk("+ECHO: (0,1),(1,3),(0-15),(0-7),(0-31),(0-31)"));
}

TEST(AudioCommands, EachEchoAlgorithmKeepsItsOwnValues) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+ECHO=1,1,15,3,31,31"), kOk);
  EXPECT_EQ(bench.ask("AT+ECHO=1,3,63,32767,256"), kOk);
  EXPECT_EQ(bench.ask("AT+ECHO?"), withOk("+ECHO: 1,3,63,32767,256"));
  EXPECT_EQ(bench.ask("AT+ECHO=0,1"), kOk);
  EXPECT_EQ(bench.ask("AT+ECHO?"), withOk("+ECHO: 0,1,15,3,31,31"));
  EXPECT_EQ(bench.ask("AT+ECHO=,3,5"), kOk);
  EXPECT_EQ(bench.ask("AT+ECHO?"), withOk("+ECHO: 0,3,5,32767,256"));
  EXPECT_EQ(bench.ask("AT+ECHO=1"), kOk);
  EXPECT_EQ(bench.ask("AT+ECHO?"), withOk("+ECHO: 1,3,5,32767,256"));
}

TEST(AudioCommands, BadEchoChangesNothing) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  for (const char* bad : {"AT+ECHO=2,1", "AT+ECHO=1,2", "AT+ECHO=1,1,16", "AT+ECHO=1,1,0,8",
                          "AT+ECHO=1,1,0,0,32", "AT+ECHO=1,1,0,0,0,32", "AT+ECHO=1,3,64",
                          "AT+ECHO=1,3,0,32768", "AT+ECHO=1,3,0,0,63", "AT+ECHO=1,3,0,0,257"}) {
    EXPECT_EQ(bench.ask(bad), "\r\n+CME ERROR: 4\r\n") << bad;
  }
  for (const char* bad : {"AT+ECHO=", "AT+ECHO=x", "AT+ECHO=1,x", "AT+ECHO=1,1,0,0,0,0,0",
                          "AT+ECHO=1,3,0,0,64,0", "AT+ECHO"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench.ask("AT+ECHO?"), withOk("+ECHO: 0,1,0,6,10,7"));
}

TEST(AudioCommands, SideToneHoldsItsStateAndItsLevel) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+SIDET?"), withOk("+SIDET: 1,0"));
  EXPECT_EQ(bench.ask("AT+SIDET=?"), withOk("+SIDET: (0,1),(0-3)"));
  EXPECT_EQ(bench.ask("AT+SIDET=0,3"), kOk);
  EXPECT_EQ(bench.ask("AT+SIDET?"), withOk("+SIDET: 0,3"));
  for (const char* bad : {"AT+SIDET=2,0", "AT+SIDET=1,4", "AT+SIDET=", "AT+SIDET=1,1,1"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
}

TEST(AudioCommands, ToneLengthIsInTenthsOfASecond) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+VTD?"), withOk("+VTD: 0"));
  EXPECT_EQ(bench.ask("AT+VTD=15;+VTD?"), withOk("+VTD: 15"));
  EXPECT_EQ(bench.ask("AT+VTD=?"), withOk("+VTD: (0-255)"));
  EXPECT_EQ(bench.ask("AT+VTD=327"), kError);
  EXPECT_EQ(bench.ask("AT+VTD?"), withOk("+VTD: 15"));
}

TEST(AudioCommands, MelodyPlaysAndStops) {
  Bench bench;
  for (const char* good : {"AT+CRMP= 0,7,0,2", "AT+CRMP=3,15,0,10", "AT+CRMP=0,,,0", "AT+CRMP=1"}) {
    EXPECT_EQ(bench.ask(good), kOk) << good;
  }
  EXPECT_EQ(bench.ask("AT+CRMP=?"), withOk("+CRMP: (0-3),(0-15),0,(0-10)"));
}

TEST(AudioCommands, MelodyRefusesWhatThereIsntToPlay) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  for (const char* bad :
       {"AT+CRMP=4,7,0,2", "AT+CRMP=0,16,0,2", "AT+CRMP=0,7,1,2", "AT+CRMP=0,7,0,11"}) {
    EXPECT_EQ(bench.ask(bad), "\r\n+CME ERROR: 4\r\n") << bad;
  }
  for (const char* bad :
       {"AT+CRMP= ,7,0,2", "AT+CRMP=", "AT+CRMP=x", "AT+CRMP=0,7,0,2,1", "AT+CRMP?"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
}

}  // namespace
}  // namespace gsm::simulator
