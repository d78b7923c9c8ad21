#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

constexpr const char* kFactory =
    "Q:0 V:1 S0:000 S2:043 S3:013 S4:010 S5:008\r\n"
    "+CR:0 +CRC:0 +CMEE:0 +CBST:0,0,1\r\n"
    "+SPEAKER:0 +ECHO:0,1 &C:1 &D:1 %C:2\r\n"
    "+IPR:115200 +ICF:3,4 +IFC:2,2";

TEST(ProfileCommands, ShowTheFactoryProfileByteForByte) {
  Bench bench({.speed = 115200});
  bench.hostSpeed = 115200;
  for (const char* command : {"AT&V", "AT&V0", "AT&V1", "AT&V2", "ATI4"}) {
    EXPECT_EQ(bench.ask(command), withOk(kFactory)) << command;
  }
  EXPECT_EQ(bench.ask("AT&V3"), kError);
}

TEST(ProfileCommands, ShowWhatWasSet) {
  Bench bench;
  bench.ask("ATS0=7;+CRC=1;+CMEE=1;+SPEAKER=1;&C0&D2;+ICF=2,0;+IFC=0,2");
  bench.ask("AT+CBST=71,0,3;+ECHO=1,3;%C0");
  EXPECT_EQ(bench.ask("AT&V"), withOk("Q:0 V:1 S0:007 S2:043 S3:013 S4:010 S5:008\r\n"
                                      "+CR:0 +CRC:1 +CMEE:1 +CBST:71,0,3\r\n"
                                      "+SPEAKER:1 +ECHO:1,3 &C:0 &D:2 %C:0\r\n"
                                      "+IPR:9600 +ICF:2,0 +IFC:0,2"));
}

TEST(ProfileCommands, ReloadBringsTheStoredProfileBack) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CRC=1;&W"), kOk);
  bench.ask("AT+CRC=0;+SPEAKER=1");
  EXPECT_EQ(bench.ask("ATZ"), kOk);
  EXPECT_EQ(bench.ask("AT+CRC?;+SPEAKER?"), "\r\n+CRC: 1\r\n\r\n+SPEAKER: 0\r\n\r\nOK\r\n");
}

TEST(ProfileCommands, LineConfigurationIsKeptByStoring) {
  Bench bench;
  bench.ask("AT+ICF=5,1;+IFC=0,0;&C0&D2&S1");
  bench.ask("AT+VGR=64;+VGT=64;+ECHO=1,3,1,2,100;+SIDET=0,2;+VTD=5;+CBST=7,0,0;+FCLASS=1");
  bench.ask("AT%C0\\N5");
  bench.ask("ATE0");
  EXPECT_EQ(bench.ask("AT&W"), kOk);
  EXPECT_EQ(bench.ask("AT+ICF=3,4;+IFC=2,2;+VGR=0;+ECHO=0,1;+VTD=0;%C2\\NE1Z"), kOk);
  EXPECT_EQ(bench.write("AT+ICF?;+IFC?;+VGR?;+ECHO?;+SIDET?;+VTD?;+CBST?;+FCLASS?;%C?\\N?\r"),
            "\r\n+ICF: 5,1\r\n\r\n+IFC: 0,0\r\n\r\n+VGR: 64\r\n\r\n+ECHO: 1,3,1,2,100\r\n"
            "\r\n+SIDET: 0,2\r\n\r\n+VTD: 5\r\n\r\n+CBST: 7,0,0\r\n\r\n+FCLASS: 1\r\n"
            "\r\n0\r\n\r\n5\r\n\r\nOK\r\n");
}

TEST(ProfileCommands, ReloadedSpeedStartsAfterTheOk) {
  Bench bench;
  bench.ask("AT+IPR=19200");
  bench.hostSpeed = 19200;
  EXPECT_EQ(bench.ask("ATZ"), kOk);
  EXPECT_EQ(bench.modem.speed(), 9600);
  EXPECT_EQ(bench.speeds, (std::vector<int>{19200, 9600}));
}

TEST(ProfileCommands, FactoryValuesReplaceTheStoredOnesToo) {
  Bench bench;
  bench.ask("AT+CRC=1;+CMEE=1;&W");
  EXPECT_EQ(bench.ask("AT&F"), kOk);
  EXPECT_EQ(bench.ask("AT+CRC?"), withOk("+CRC: 0"));
  bench.ask("ATZ");
  EXPECT_EQ(bench.ask("AT+CRC?"), withOk("+CRC: 0"));
}

TEST(ProfileCommands, FactoryValuesKeepTheSpeed) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT&F"), kOk);
  EXPECT_EQ(bench.ask("ATZ"), kOk);
  EXPECT_EQ(bench.ask("AT+IPR?"), withOk("+IPR: 9600"));
}

TEST(ProfileCommands, OnlyProfileZeroExists) {
  Bench bench;
  for (const char* command : {"AT&W0", "AT&F0", "ATZ0"}) EXPECT_EQ(bench.ask(command), kOk);
  for (const char* command : {"AT&W1", "AT&F1", "ATZ1"}) EXPECT_EQ(bench.ask(command), kError);
}

TEST(ProfileCommands, StoredProfileOutlivesThePower) {
  MemoryProfileStore store;
  VirtualTimeline time;
  {
    Modem modem(time, store, {}, {.speed = 9600});
    modem.hostWrites("AT+IPR=19200;+CRC=1;&W\r", 9600);
    time.advance(seconds(1));
  }
  std::string received;
  Modem modem(time, store, {.toHost = [&](std::string_view chunk) { received += chunk; }});
  EXPECT_EQ(modem.speed(), 19200);
  modem.hostWrites("AT+CRC?\r", 19200);
  time.advance(seconds(1));
  EXPECT_EQ(received, "AT+CRC?\r" + withOk("+CRC: 1"));
}

TEST(ProfileCommands, WindMaskIsKeptWithoutStoring) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CRC=1;+WIND=50"), kOk);
  const auto stored = parseStoredSettings(bench.store.load().value());
  EXPECT_EQ(stored->wind, 50);
  EXPECT_EQ(stored->profile.callTypes, 0);
}

class FullStore final : public ProfileStore {
 public:
  std::optional<std::string> load() override { return std::nullopt; }
  bool save(std::string_view) override { return false; }
};

TEST(ProfileCommands, StoreThatRefusesIsAnErrorThatChangesNothing) {
  VirtualTimeline time;
  FullStore store;
  std::string received;
  Modem modem(time, store, {.toHost = [&](std::string_view chunk) { received += chunk; }},
              {.speed = 9600});
  modem.hostWrites("ATE0\rAT&W\rAT&F\rAT+WIND=1\rAT+WIND?;+CRC?\r", 9600);
  time.advance(seconds(1));
  EXPECT_EQ(received, std::string("ATE0\r") + kOk + kError + kError + kError +
                          "\r\n+WIND: 0\r\n\r\n+CRC: 0\r\n" + kOk);
}

}  // namespace
}  // namespace gsm::simulator
