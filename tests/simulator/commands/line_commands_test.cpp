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

TEST(LineCommands, NewSpeedStartsAfterTheOk) {
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

struct FramingRow {
  const char* name;
  const char* framing;
  int bits;
  const char* card;  // what a name with a byte above 127 looks like
};

constexpr FramingRow kFramingRows[] = {
    {"Automatic", "0,4", 10, "J\x81rg"},    {"EightTwoStop", "1,4", 11, "J\x81rg"},
    {"EightParity", "2,1", 11, "J\x81rg"},  {"EightOneStop", "3,4", 10, "J\x81rg"},
    {"SevenTwoStop", "4,4", 10, "J\x01rg"}, {"SevenParity", "5,1", 10, "J\x01rg"},
    {"SevenOneStop", "6,4", 9, "J\x01rg"},
};

TEST(LineCommands, FramingDecidesHowLongAByteTakesAndWhatIsLeftOfIt) {
  for (const FramingRow& row : kFramingRows) {
    Bench bench({.speed = 300, .cutter = Cutter::every(1), .phoneBook = {{1, {"1", "J\x81rg"}}}});
    bench.hostSpeed = 300;
    EXPECT_TRUE(bench.ask(std::string("AT+ICF=") + row.framing).ends_with("OK\r\n")) << row.name;
    bench.ask("ATE0");
    bench.arrivals.clear();
    bench.ask("AT");
    const auto passed = bench.arrivals.back() - bench.arrivals.front();
    EXPECT_NEAR(std::chrono::duration<double>(passed).count(), 5 * row.bits / 300.0, 1e-6)
        << row.name;
    bench.modem.console("speed 9600");
    bench.hostSpeed = 9600;
    EXPECT_EQ(bench.ask("AT+CPBR=1"),
              withOk("+CPBR: 1,\"1\",129,\"" + std::string(row.card) + "\""))
        << row.name;
  }
}

TEST(LineCommands, OldFramingHoldsUntilTheLastByteOfTheOk) {
  Bench bench({.speed = 300, .cutter = Cutter::every(1)});
  bench.hostSpeed = 300;
  bench.ask("ATE0");
  bench.arrivals.clear();
  bench.ask("AT+ICF=6,4");
  const auto passed = bench.arrivals.back() - bench.arrivals.front();
  EXPECT_NEAR(std::chrono::duration<double>(passed).count(), 5 * 10 / 300.0, 1e-6);
}

TEST(LineCommands, SevenBitsAreHeardAsSeven) {
  Bench bench;
  bench.ask("AT+ICF=6,4");
  EXPECT_EQ(bench.write("\xC1\xD4\x8D"), "AT\r\r\nOK\r\n");
}

TEST(LineCommands, FramingOfTheStoredProfileComesBackWithIt) {
  for (const char* command : {"ATZ", "AT&F"}) {
    Bench bench;
    bench.ask("AT+ICF=6,4");
    EXPECT_EQ(bench.ask(command), kOk);
    EXPECT_EQ(bench.write("\xC1\xD4\x8D"), "\xC1\xD4\x8D") << command;
  }
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
