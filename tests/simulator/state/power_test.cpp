#include "simulator/state/power.h"

#include <gtest/gtest.h>

#include "tests/simulator/callers.h"

// The modem without power, and as it wakes.
namespace gsm::simulator {
namespace {

constexpr const char* kWakesWithService =
    "\r\n+WIND: 1\r\n\r\n+WIND: 3\r\n\r\n+WIND: 7\r\n\r\n+WIND: 4\r\n\r\n+WIND: 10,\"EN\",0\r\n";

class Power : public Callers {
 protected:
  void switchOff() { EXPECT_TRUE(bench_.ask("AT+CPOF").starts_with(kOk)); }
};

TEST_F(Power, OffIsSilentUntilTheConsoleSwitchesItOn) {
  switchOff();
  EXPECT_EQ(bench_.write("AT\r"), "");
  EXPECT_EQ(after("register 5"), "");
  EXPECT_EQ(after("voicemail on"), "");
  EXPECT_EQ(bench_.listen(seconds(60)), "");
  EXPECT_EQ(after("power on"), "");
  EXPECT_EQ(bench_.ask("AT"), kOk);
}

TEST_F(Power, OffReportsTheNetworksLoss) {
  bench_.ask("AT+WIND=1023;+CREG=1");
  EXPECT_EQ(bench_.ask("AT+CPOF"), std::string(kOk) + "\r\n+WIND: 8\r\n\r\n+CREG: 0\r\n");
}

TEST_F(Power, OffEndsCallsAndRepeatedDumps) {
  talk();
  bench_.ask("AT+CCED=1,1");
  switchOff();
  EXPECT_EQ(after("power on"), "");
  bench_.listen(seconds(5));
  EXPECT_EQ(bench_.ask("AT+CLCC"), kOk);
  EXPECT_EQ(bench_.listen(seconds(20)), "");
}

TEST_F(Power, OffForgetsWhatItHadntDoneYet) {
  EXPECT_EQ(bench_.write("AT+CPOF\rAT+WIND=5\rAT+WI"), "AT+CPOF\r\r\nOK\r\n");
  after("power on");
  EXPECT_EQ(bench_.ask("ND?"), "");
  EXPECT_EQ(bench_.ask("AT+WIND?"), withOk("+WIND: 0"));
}

TEST_F(Power, OnAnnouncesItselfAsTheMaskAsks) {
  bench_.ask("AT+WIND=1023");
  switchOff();
  bench_.listen(seconds(5));
  EXPECT_EQ(bench_.modem.console("power on"), "");
  EXPECT_EQ(bench_.listen(seconds(5)), kWakesWithService);
  EXPECT_EQ(bench_.ask("AT+CREG?"), withOk("+CREG: 0,1"));
}

TEST_F(Power, OnTakesTheStoredProfile) {
  bench_.ask("AT+CRC=1;&W;+CRC=0;+CLIP=1");
  bench_.ask("AT+IPR=19200");
  bench_.hostSpeed = 19200;
  switchOff();
  after("power on");
  EXPECT_EQ(bench_.modem.speed(), Bench::kSpeed);
  bench_.hostSpeed = Bench::kSpeed;
  EXPECT_EQ(bench_.ask("AT+CRC?;+CLIP?"), "\r\n+CRC: 1\r\n\r\n+CLIP: 0,1\r\n\r\nOK\r\n");
}

TEST_F(Power, OnKeepsWhatTheModuleKeeps) {
  bench_.ask("AT+CGDCONT=1,\"IP\",\"internet\";+STSF=1;+WIOW=2,1");
  switchOff();
  after("power on");
  EXPECT_EQ(bench_.ask("AT+CGDCONT?"), withOk("+CGDCONT: 1,\"IP\",\"internet\",,0,0"));
  EXPECT_EQ(bench_.ask("AT+STSF?"), withOk("+STSF: 1,\"1F6BFFFF1F\",3,1"));
  EXPECT_EQ(bench_.ask("AT+WIOR=2"), withOk("+WIOR: 1"));
}

TEST_F(Power, OnHearsOfNoChangeThatHappenedWithoutIt) {
  bench_.ask("AT+WIND=1023");
  switchOff();
  bench_.modem.console("sim out");
  bench_.modem.console("sim in");
  bench_.listen(seconds(20));
  bench_.modem.console("power on");
  EXPECT_EQ(bench_.listen(seconds(5)), kWakesWithService);
}

TEST(PowerOfALockedModem, OnWantsThePinAgain) {
  Bench bench({.sim = SimStatus::kPinWanted});
  bench.ask("AT+CPIN=1234;+WIND=1023");
  bench.listen(seconds(5));
  bench.ask("AT+CPOF");
  EXPECT_EQ(bench.modem.console("power on"), "");
  EXPECT_EQ(bench.listen(seconds(20)), "\r\n+WIND: 1\r\n\r\n+WIND: 3\r\n");
  EXPECT_EQ(bench.ask("AT+CPIN?"), "\r\n+CPIN: SIM PIN\r\n");
}

TEST(PowerOfAModemWithoutCard, OnFindsNone) {
  Bench bench({.sim = SimStatus::kAbsent});
  bench.ask("AT+WIND=1023");
  bench.ask("AT+CPOF");
  EXPECT_EQ(bench.modem.console("power on"), "");
  EXPECT_EQ(bench.listen(seconds(20)), "\r\n+WIND: 0\r\n\r\n+WIND: 3\r\n");
  EXPECT_EQ(bench.ask("AT+CPIN?"), kError);
}

TEST_F(Power, ConsoleSwitchesOnWhatIsOffAndElseNothing) {
  EXPECT_EQ(bench_.modem.console("power on"), "error: the power is on");
  switchOff();
  EXPECT_NE(bench_.modem.console("state").find("\nmodule: power off,"), std::string::npos);
  EXPECT_EQ(bench_.modem.console("silent off"),
            "error: there is no power; 'power on' brings it back");
  EXPECT_EQ(bench_.write("AT\r"), "");
}

TEST_F(Power, FullFunctionalityIsThereWithoutARestart) {
  EXPECT_EQ(bench_.ask("AT+CFUN?"), withOk("+CFUN: 1"));
  EXPECT_EQ(bench_.ask("AT+CFUN=?"), withOk("+CFUN: (0,1),(0,1)"));
  bench_.ask("AT+CRC=1");
  EXPECT_EQ(bench_.ask("AT+CFUN=1"), kOk);
  EXPECT_EQ(bench_.ask("AT+CRC?"), withOk("+CRC: 1"));
  for (const char* bad : {"AT+CFUN=0", "AT+CFUN=1,2", "AT+CFUN=", "AT+CFUN=1,x", "AT+CFUN=1,1,1"}) {
    EXPECT_EQ(bench_.ask(bad), kError) << bad;
  }
}

TEST_F(Power, RestartBeginsFromTheStoredProfile) {
  bench_.ask("AT+WIND=5;+CRC=1");
  EXPECT_EQ(bench_.ask("AT+CFUN=1,1"), std::string(kOk) + "\r\n+WIND: 1\r\n\r\n+WIND: 3\r\n");
  EXPECT_EQ(bench_.ask("AT+CRC?"), withOk("+CRC: 0"));
}

}  // namespace
}  // namespace gsm::simulator
