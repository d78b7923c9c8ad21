#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

constexpr const char* kWrongCode = "\r\n+CME ERROR: 16\r\n";

TEST(SimCommands, StatusEndsWithoutOk) {
  const std::pair<SimStatus, const char*> kTexts[] = {
      {SimStatus::kReady, "READY"},
      {SimStatus::kPinWanted, "SIM PIN"},
      {SimStatus::kPukWanted, "SIM PUK"},
  };
  for (const auto& [status, text] : kTexts) {
    Bench bench({.sim = status});
    EXPECT_EQ(bench.ask("AT+CPIN?"), "\r\n+CPIN: " + std::string(text) + "\r\n");
  }
}

TEST(SimCommands, ReadyStatusHas25BytesWithItsEcho) {
  Bench bench;
  EXPECT_EQ(bench.write("AT+CPIN?\r").size(), 25u);
}

TEST(SimCommands, StatusOfNoCardIsAnErrorAndACodeOnlyWithCmee) {
  const std::pair<SimStatus, const char*> kCodes[] = {
      {SimStatus::kAbsent, "10"}, {SimStatus::kFailed, "13"}, {SimStatus::kBlocked, "13"}};
  for (const auto& [status, code] : kCodes) {
    Bench bench({.sim = status});
    EXPECT_EQ(bench.ask("AT+CPIN?"), kError);
    bench.ask("AT+CMEE=1");
    EXPECT_EQ(bench.ask("AT+CPIN?"), "\r\n+CME ERROR: " + std::string(code) + "\r\n");
    EXPECT_EQ(bench.ask("AT+CPIN=1234"), "\r\n+CME ERROR: " + std::string(code) + "\r\n");
  }
}

TEST(SimCommands, ThirdWrongPinStillSaysWrongAndThenThePukIsWanted) {
  Bench bench({.sim = SimStatus::kPinWanted});
  bench.ask("AT+CMEE=1");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(bench.ask("AT+CPIN=9999"), kWrongCode);
  EXPECT_EQ(bench.ask("AT+CPIN?"), "\r\n+CPIN: SIM PUK\r\n");
  EXPECT_EQ(bench.ask("AT+CPIN=1234"), "\r\n+CME ERROR: 12\r\n");
}

TEST(SimCommands, WrongPinIsABareErrorWithoutCmee) {
  Bench bench({.sim = SimStatus::kPinWanted});
  EXPECT_EQ(bench.ask("AT+CPIN=9999"), kError);
}

TEST(SimCommands, PinMayStandInQuotes) {
  Bench bench({.sim = SimStatus::kPinWanted});
  EXPECT_EQ(bench.ask("AT+CPIN=\"1234\""), kOk);
}

TEST(SimCommands, PukAndNewPinOpenTheCard) {
  Bench bench({.sim = SimStatus::kPukWanted});
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("AT+CPIN=11111111,4321"), kWrongCode);
  EXPECT_EQ(bench.ask("AT+CPIN=12345678,4321"), kOk);
  EXPECT_EQ(bench.ask("AT+CPIN?"), "\r\n+CPIN: READY\r\n");
}

TEST(SimCommands, CodeThatNobodyAskedForIsNotAllowed) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("AT+CPIN=1234"), "\r\n+CME ERROR: 3\r\n");
  EXPECT_EQ(bench.ask("AT+CPIN="), kError);
  EXPECT_EQ(bench.ask("AT+CPIN=1,2,3"), kError);
  EXPECT_EQ(bench.ask("AT+CPIN=?"), kOk);
}

TEST(SimCommands, UnlockedCardRegistersWithTheIndicationsOnTheWay) {
  Bench bench({.sim = SimStatus::kPinWanted});
  bench.ask("AT+CREG=1;+WIND=1023");
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 1,0"));
  EXPECT_EQ(bench.ask("AT+CPIN=1234"), "\r\nOK\r\n\r\n+CREG: 2\r\n");
  EXPECT_EQ(bench.ask("AT+CREG?"), "\r\n+CREG: 1,2\r\n\r\nOK\r\n\r\n+WIND: 7\r\n");
  EXPECT_EQ(bench.listen(seconds(5)), "\r\n+CREG: 1\r\n\r\n+WIND: 4\r\n\r\n+WIND: 10,\"EN\",0\r\n");
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 1,1"));
}

TEST(SimCommands, UnlockedCardRegistersInSilenceWhenNothingIsAskedFor) {
  Bench bench({.sim = SimStatus::kPinWanted});
  EXPECT_EQ(bench.ask("AT+CPIN=1234"), kOk);
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 0,2"));
  EXPECT_EQ(bench.listen(seconds(10)), "");
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 0,1"));
}

}  // namespace
}  // namespace gsm::simulator
