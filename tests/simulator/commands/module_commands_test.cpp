#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(ModuleCommands, VoiceMailIsTheOneFeatureOfTheCard) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CPHS?"),
            withOk("+CPHS: 1,0\r\n+CPHS: 2,0\r\n+CPHS: 3,0\r\n+CPHS: 4,0\r\n+CPHS: 5,0\r\n"
                   "+CPHS: 6,0\r\n+CPHS: 7,0"));
  EXPECT_EQ(bench.ask("AT+CPHS=1,1"), kOk);
  EXPECT_TRUE(bench.ask("AT+CPHS?").starts_with("\r\n+CPHS: 1,1\r\n+CPHS: 2,0\r\n"));
  EXPECT_EQ(bench.ask("AT+CPHS=0,1"), kOk);
  EXPECT_TRUE(bench.ask("AT+CPHS?").starts_with("\r\n+CPHS: 1,0\r\n"));
  EXPECT_EQ(bench.ask("AT+CPHS=?"), kOk);
}

TEST(ModuleCommands, VoiceMailIsReportedWhenAskedFor) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CPHS=2,1"), withOk("+WVMI: 1,0"));
  EXPECT_EQ(bench.modem.console("voicemail on"), "");
  EXPECT_EQ(bench.listen(), "");
  EXPECT_EQ(bench.ask("AT+CPHS=2,1"), withOk("+WVMI: 1,1"));
}

TEST(ModuleCommands, VoiceMailIsAnnouncedWhileActivated) {
  Bench bench;
  bench.ask("AT+CPHS=1,1");
  bench.modem.console("voicemail on");
  EXPECT_EQ(bench.listen(), "\r\n+WVMI: 1,1\r\n");
  bench.modem.console("voicemail off");
  EXPECT_EQ(bench.listen(), "\r\n+WVMI: 1,0\r\n");
  bench.ask("AT+CPHS=0,1");
  bench.modem.console("voicemail on");
  EXPECT_EQ(bench.listen(), "");
}

TEST(ModuleCommands, OtherCardFeaturesAreRefused) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("AT+CPHS=1,2"), "\r\n+CME ERROR: 3\r\n");
  EXPECT_EQ(bench.ask("AT+CPHS=3,1"), "\r\n+CME ERROR: 4\r\n");
  for (const char* bad : {"AT+CPHS=", "AT+CPHS=1", "AT+CPHS=x,1", "AT+CPHS=1,1,1"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  bench.modem.console("sim out");
  bench.listen();
  EXPECT_EQ(bench.ask("AT+CPHS=1,1"), "\r\n+CME ERROR: 10\r\n");
}

TEST(ModuleCommands, PinsAreReadAsTheConsoleSetsThem) {
  Bench bench;
  for (int pin = 0; pin < 8; ++pin) {
    const std::string number = std::to_string(pin);
    EXPECT_EQ(bench.ask("AT+WIOR=" + number), withOk("+WIOR: 0"));
    EXPECT_EQ(bench.modem.console("pin " + number + " set"), "");
    EXPECT_EQ(bench.ask("AT+WIOR=" + number), withOk("+WIOR: 1"));
    EXPECT_EQ(bench.modem.console("pin " + number + " reset"), "");
    EXPECT_EQ(bench.ask("AT+WIOR=" + number), withOk("+WIOR: 0"));
  }
}

TEST(ModuleCommands, PinsAreWrittenOneByOne) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+WIOW=3,1"), kOk);
  EXPECT_EQ(bench.ask("AT+WIOR=3"), withOk("+WIOR: 1"));
  EXPECT_EQ(bench.ask("AT+WIOR=2"), withOk("+WIOR: 0"));
  EXPECT_EQ(bench.ask("AT+WIOW=3,0;+WIOR=3"), withOk("+WIOR: 0"));
  EXPECT_EQ(bench.ask("AT+WIOR=?"), withOk("+WIOR: (0-7)"));
  EXPECT_EQ(bench.ask("AT+WIOW=?"), withOk("+WIOW: (0-7),(0,1)"));
}

TEST(ModuleCommands, PinsThatThereArentAreRefused) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  for (const char* bad : {"AT+WIOR=8", "AT+WIOR=-1", "AT+WIOW=8,1"}) {
    EXPECT_EQ(bench.ask(bad), "\r\n+CME ERROR: 3\r\n") << bad;
  }
  EXPECT_EQ(bench.ask("AT+WIOW=1,2"), "\r\n+CME ERROR: 4\r\n");
  for (const char* bad : {"AT+WIOR=", "AT+WIOR=x", "AT+WIOR=1,1", "AT+WIOW=1", "AT+WIOW=1,x"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
}

TEST(ModuleCommands, ToolkitIsSwitchedAndConfigured) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+STSF?"), withOk("+STSF: 0,\"1F6BFFFF1F\",3,1"));
  EXPECT_EQ(bench.ask("AT+STSF=1"), kOk);
  EXPECT_EQ(bench.ask("AT+STSF?"), withOk("+STSF: 1,\"1F6BFFFF1F\",3,1"));
  EXPECT_EQ(bench.ask("AT+STSF=2,\"5fffffff7f\""), kOk);
  EXPECT_EQ(bench.ask("AT+STSF?"), withOk("+STSF: 1,\"5FFFFFFF7F\",3,1"));
  EXPECT_EQ(bench.ask("AT+STSF=2,\"160060C01F\",10,0"), kOk);
  EXPECT_EQ(bench.ask("AT+STSF?"), withOk("+STSF: 1,\"160060C01F\",10,0"));
  EXPECT_EQ(bench.ask("AT+STSF=0;+STSF?"), withOk("+STSF: 0,\"160060C01F\",10,0"));
  EXPECT_EQ(bench.ask("AT+STSF=?"), withOk("+STSF: (0-2),(160060C01F-5FFFFFFF7F),(1-255),(0,1)"));
}

TEST(ModuleCommands, BadToolkitChangesNothing) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  for (const char* bad :
       {"AT+STSF=3", "AT+STSF=2", "AT+STSF=2,\"160060C01E\"", "AT+STSF=2,\"5FFFFFFF80\"",
        "AT+STSF=2,\"1F6BFFFF1\"", "AT+STSF=2,\"1F6BFFFF1F0\"", "AT+STSF=2,\"1F6BFFFF1G\"",
        "AT+STSF=1,\"1F6BFFFF1F\"", "AT+STSF=1,,0", "AT+STSF=1,,256", "AT+STSF=1,,3,2"}) {
    EXPECT_EQ(bench.ask(bad), "\r\n+CME ERROR: 4\r\n") << bad;
  }
  for (const char* bad :
       {"AT+STSF=", "AT+STSF=x", "AT+STSF=1,,x", "AT+STSF=1,,3,x", "AT+STSF=1,,3,1,1", "AT+STSF"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench.ask("AT+STSF?"), withOk("+STSF: 0,\"1F6BFFFF1F\",3,1"));
}

TEST(ModuleCommands, BatteryIsAnIndicatorAndInHundredths) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CBC"), withOk("+CBC: 0,100"));
  EXPECT_EQ(bench.modem.console("battery 3"), "");
  EXPECT_EQ(bench.ask("AT+CBC"), withOk("+CBC: 0,60"));
  EXPECT_EQ(bench.ask("AT+CIND?"), withOk("+CIND: 3,2,1,1,0,0,0"));
  EXPECT_EQ(bench.ask("AT+CBC=?"), withOk("+CBC: (0),(0-100)"));
}

TEST(ModuleConsole, RefusesWhatTheModuleHasnt) {
  Bench bench;
  const std::string before = bench.modem.console("state");
  for (const char* bad : {"pin", "pin 3", "pin 8 set", "pin -1 set", "pin x set", "pin 3 high",
                          "pin 3 set now", "battery", "battery 6", "battery -1", "battery full",
                          "voicemail", "voicemail maybe", "cell 7", "power", "power off"}) {
    EXPECT_TRUE(bench.modem.console(bad).starts_with("error: ")) << bad;
  }
  EXPECT_EQ(bench.modem.console("state"), before);
}

TEST(ModuleConsole, StateShowsTheModule) {
  Bench bench;
  bench.modem.console("pin 1 set");
  bench.modem.console("battery 2");
  bench.modem.console("voicemail on");
  bench.modem.console("cell");
  EXPECT_NE(bench.modem.console("state").find(
                "\nmodule: power on, battery 2, voice mail on, pins 01000000, cell 989B\n"),
            std::string::npos);
}

}  // namespace
}  // namespace gsm::simulator
