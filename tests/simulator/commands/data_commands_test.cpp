#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(DataCommands, BearerHasSpeedNameAndElement) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CBST?"), withOk("+CBST: 0,0,1"));
  EXPECT_EQ(bench.ask("AT+CBST=?"), withOk("+CBST: (0-8,12,14,65,66,68,70,71,75),(0),(0-3)"));
  EXPECT_EQ(bench.ask("AT+CBST=71,0,3"), kOk);
  EXPECT_EQ(bench.ask("AT+CBST?"), withOk("+CBST: 71,0,3"));
}

TEST(DataCommands, BearerSpeedsAreThoseThatHostsOffer) {
  for (const int speed : {0, 1, 2, 3, 4, 5, 6, 7, 8, 12, 14, 65, 66, 68, 70, 71, 75}) {
    Bench bench;
    const std::string values = std::to_string(speed) + ",0,2";
    EXPECT_EQ(bench.ask("AT+CBST=" + values), kOk) << speed;
    EXPECT_EQ(bench.ask("AT+CBST?"), withOk("+CBST: " + values));
  }
}

TEST(DataCommands, UnknownBearerChangesNothing) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  for (const char* bad :
       {"AT+CBST=9", "AT+CBST=13", "AT+CBST=67", "AT+CBST=76", "AT+CBST=0,1,0", "AT+CBST=7,0,4"}) {
    EXPECT_EQ(bench.ask(bad), "\r\n+CME ERROR: 4\r\n") << bad;
  }
  EXPECT_EQ(bench.ask("AT+CBST="), kError);
  EXPECT_EQ(bench.ask("AT+CBST?"), withOk("+CBST: 0,0,1"));
}

TEST(DataCommands, CompressionIsABareDigit) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT%C?"), withOk("2"));
  EXPECT_EQ(bench.ask("AT%C0"), kOk);
  EXPECT_EQ(bench.ask("AT%C?"), withOk("0"));
  EXPECT_EQ(bench.ask("AT%C2"), kOk);
  EXPECT_EQ(bench.ask("AT%C1"), kError);
  EXPECT_EQ(bench.ask("AT%C?"), withOk("2"));
}

TEST(DataCommands, ErrorCorrectionIsABareDigit) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT\\N?"), withOk("0"));
  for (const char* mode : {"2", "4", "5", "0"}) {
    EXPECT_EQ(bench.ask(std::string("AT\\N") + mode), kOk);
    EXPECT_EQ(bench.ask("AT\\N?"), withOk(mode));
  }
  bench.ask("AT\\N5");
  for (const char* bad : {"AT\\N1", "AT\\N3", "AT\\N6"}) EXPECT_EQ(bench.ask(bad), kError) << bad;
  EXPECT_EQ(bench.ask("AT\\N?"), withOk("5"));
  EXPECT_EQ(bench.ask("AT\\N"), kOk) << "without a digit it means 0";
  EXPECT_EQ(bench.ask("AT\\N?"), withOk("0"));
}

TEST(DataCommands, ServiceClassIsDataOrFax) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+FCLASS?"), withOk("+FCLASS: 0"));
  EXPECT_EQ(bench.ask("AT+FCLASS=2;+FCLASS?"), withOk("+FCLASS: 2"));
  EXPECT_EQ(bench.ask("AT+FCLASS=?"), withOk("+FCLASS: (0-2)"));
  EXPECT_EQ(bench.ask("AT+FCLASS=3"), kError);
}

TEST(DataCommands, FaxPagesNeedAFaxCall) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  for (const std::string name : {"AT+FTM", "AT+FRM"}) {
    EXPECT_EQ(bench.ask(name + "=?"), withOk("24,48,72,96"));
    EXPECT_EQ(bench.ask(name + "=96"), "\r\n+CME ERROR: 3\r\n");
    EXPECT_EQ(bench.ask(name + "=146"), "\r\n+CME ERROR: 4\r\n");
    EXPECT_EQ(bench.ask(name + "=fast"), kError);
    EXPECT_EQ(bench.ask(name + "="), kError);
  }
}

}  // namespace
}  // namespace gsm::simulator
