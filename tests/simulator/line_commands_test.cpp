#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(LineCommands, AutoAnswerIsThreeBareDigits) {
  Bench bench;
  EXPECT_EQ(bench.ask("ATS0?"), withOk("000"));
  EXPECT_EQ(bench.ask("ATS0=2"), kOk);
  EXPECT_EQ(bench.ask("ATS0?"), withOk("002"));
  EXPECT_EQ(bench.ask("ATS0=255"), kOk);
  EXPECT_EQ(bench.ask("ATS0?"), withOk("255"));
}

TEST(LineCommands, AutoAnswerRefusesWhatItCantHold) {
  Bench bench;
  for (const char* command : {"ATS0=256", "ATS0=", "ATS0"}) {
    EXPECT_EQ(bench.ask(command), kError) << command;
  }
  EXPECT_EQ(bench.ask("ATS0?"), withOk("000"));
}

TEST(LineCommands, OtherRegistersCanBeReadOnly) {
  Bench bench;
  EXPECT_EQ(bench.ask("ATS2?S3?S4?S5?"), "\r\n043\r\n\r\n013\r\n\r\n010\r\n\r\n008\r\n\r\nOK\r\n");
  EXPECT_EQ(bench.ask("ATS3=13"), kError);
  EXPECT_EQ(bench.ask("ATS99?"), kError);
}

TEST(LineCommands, SpeedCanBeReadAndListed) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+IPR?"), withOk("+IPR: 9600"));
  EXPECT_EQ(bench.ask("AT+IPR=?"),
            withOk("+IPR: (0,300,600,1200,2400,4800,9600,19200,38400,57600,115200)"));
}

TEST(LineCommands, NewSpeedStartsBehindTheOk) {
  for (const int speed : kLineSpeeds) {
    if (speed == Bench::kSpeed) continue;
    Bench bench;
    EXPECT_EQ(bench.ask("AT+IPR=" + std::to_string(speed)), kOk);
    EXPECT_EQ(bench.speeds, std::vector<int>{speed});
    EXPECT_EQ(bench.write("AT\r"), "") << "still heard at the old speed";
    bench.hostSpeed = speed;
    EXPECT_EQ(bench.ask("AT+IPR?"), withOk("+IPR: " + std::to_string(speed)));
  }
}

TEST(LineCommands, OldSpeedHoldsUntilTheLastByteOfTheOk) {
  Bench bench({.cutter = Cutter::every(1)});
  bench.modem.hostWrites("AT+IPR=300\r", Bench::kSpeed);
  while (!bench.received.ends_with("OK\r")) bench.timeline.advance(milliseconds(1));
  EXPECT_EQ(bench.modem.speed(), 9600);
  bench.timeline.advance(milliseconds(2));
  EXPECT_EQ(bench.modem.speed(), 300);
}

TEST(LineCommands, UnknownSpeedChangesNothing) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+IPR=1234"), kError);
  EXPECT_EQ(bench.ask("AT+CMEE=1"), kOk);
  EXPECT_EQ(bench.ask("AT+IPR=1234"), "\r\n+CME ERROR: 4\r\n");
  EXPECT_EQ(bench.ask("AT+IPR=fast"), kError);
  EXPECT_EQ(bench.ask("AT+IPR="), kError);
  EXPECT_EQ(bench.ask("AT+IPR?"), withOk("+IPR: 9600"));
  EXPECT_TRUE(bench.speeds.empty());
}

TEST(LineCommands, SpeedZeroListensAtAny) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+IPR=0"), kOk);
  EXPECT_EQ(bench.modem.speed(), kAutobaud);
  for (const int speed : {300, 115200}) {
    bench.hostSpeed = speed;
    EXPECT_EQ(bench.ask("AT+IPR?"), withOk("+IPR: 0"));
  }
}

TEST(LineCommands, FramingHoldsItsTwoValues) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+ICF?"), withOk("+ICF: 3,4"));
  EXPECT_EQ(bench.ask("AT+ICF=?"), withOk("+ICF: (0-6),(0-4)"));
  EXPECT_EQ(bench.ask("AT+ICF=2,1"), kOk);
  EXPECT_EQ(bench.ask("AT+ICF=5"), kOk);
  EXPECT_EQ(bench.ask("AT+ICF?"), withOk("+ICF: 5,1"));
  for (const char* bad : {"AT+ICF=7", "AT+ICF=3,5", "AT+ICF=3,4,5", "AT+ICF=x"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench.ask("AT+ICF?"), withOk("+ICF: 5,1"));
}

TEST(LineCommands, FlowControlIsNoneOrByWire) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+IFC?"), withOk("+IFC: 2,2"));
  EXPECT_EQ(bench.ask("AT+IFC=?"), withOk("+IFC: (0,2),(0,2)"));
  EXPECT_EQ(bench.ask("AT+IFC=0,0"), kOk);
  EXPECT_EQ(bench.ask("AT+IFC=1,1"), kError);
  EXPECT_EQ(bench.ask("AT+IFC?"), withOk("+IFC: 0,0"));
}

TEST(LineCommands, WireSignalsTakeTheirDigits) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT&C0&D2&S0"), kOk);
  EXPECT_EQ(bench.ask("AT&C&D&S1"), kOk);
  for (const char* bad : {"AT&C2", "AT&D3", "AT&S2", "AT&C?", "ATE2", "ATV2", "ATQ7"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
}

TEST(LineCommands, ErrorCodesAreOffFirst) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CMEE?"), withOk("+CMEE: 0"));
  EXPECT_EQ(bench.ask("AT+CMEE=?"), withOk("+CMEE: (0,1)"));
  EXPECT_EQ(bench.ask("AT+CMEE=2"), kError);
  EXPECT_EQ(bench.ask("AT+CMEE=1"), kOk);
  EXPECT_EQ(bench.ask("AT+CMEE=2"), "\r\n+CME ERROR: 4\r\n");
  EXPECT_EQ(bench.ask("AT+CMEE=0"), kOk);
}

}  // namespace
}  // namespace gsm::simulator
