#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

// What arrives from the end of `bench.write(command)` until `time` later.
std::string dialed(Bench& bench, const std::string& command, std::chrono::nanoseconds time) {
  std::string all = bench.write(command + "\r");
  return all + bench.listen(time);
}

TEST(DialCommands, OkComesOnlyWhenTheOtherSideAnswers) {
  Bench bench;
  EXPECT_EQ(bench.write("ATD0146290800;\r"), "ATD0146290800;\r");
  EXPECT_EQ(bench.listen(seconds(2)), "");
  EXPECT_EQ(bench.listen(milliseconds(200)), kOk);
}

TEST(DialCommands, LastDigitDecidesWhatBecomesOfTheCall) {
  for (const char last : {'0', '1', '2', '3', '4', '5', '6', '#', '*'}) {
    Bench bench;
    const std::string command = std::string("ATD012") + last + ";";
    EXPECT_EQ(dialed(bench, command, seconds(20)), command + "\r" + kOk);
  }
  const std::pair<const char*, const char*> kFailures[] = {
      {"ATD0127;", "\r\nBUSY\r\n"}, {"ATD0128;", "\r\nNO ANSWER\r\n"}, {"ATD0129;", kNoCarrier}};
  for (const auto& [command, result] : kFailures) {
    Bench bench;
    EXPECT_EQ(dialed(bench, command, seconds(20)), std::string(command) + "\r" + result);
    EXPECT_EQ(bench.ask("AT+CLCC"), kOk) << "nothing is left of the call";
  }
}

TEST(DialCommands, NoAnswerTakesLongerThanAnAnswer) {
  Bench bench;
  EXPECT_EQ(dialed(bench, "ATD018;", seconds(10)), "ATD018;\r");
  EXPECT_EQ(bench.listen(seconds(2)), "\r\nNO ANSWER\r\n");
}

TEST(DialCommands, IndicationsAccompanyTheCall) {
  Bench bench;
  bench.ask("AT+WIND=1023");
  EXPECT_EQ(dialed(bench, "ATD0123;", seconds(4)),
            "ATD0123;\r\r\n+WIND: 5,1\r\n\r\n+WIND: 2\r\n\r\n+WIND: 9\r\n\r\nOK\r\n");
  EXPECT_EQ(bench.ask("ATH"), "\r\nOK\r\n\r\n+WIND: 6,1\r\n");
  EXPECT_EQ(dialed(bench, "ATD0127;", seconds(4)),
            "ATD0127;\r\r\n+WIND: 5,1\r\n\r\nBUSY\r\n\r\n+WIND: 6,1\r\n");
  EXPECT_EQ(dialed(bench, "ATD0128;", seconds(13)),
            "ATD0128;\r\r\n+WIND: 5,1\r\n\r\n+WIND: 2\r\n\r\nNO ANSWER\r\n\r\n+WIND: 6,1\r\n");
}

TEST(DialCommands, WhatCommandsBeforeItLeftForTheEndIsDoneAfterTheResult) {
  Bench bench;
  EXPECT_EQ(dialed(bench, "AT+IPR=19200;D0127;", milliseconds(900)), "AT+IPR=19200;D0127;\r");
  EXPECT_EQ(bench.modem.speed(), 9600);
  EXPECT_EQ(bench.listen(), "\r\nBUSY\r\n");
  EXPECT_EQ(bench.modem.speed(), 19200);
}

TEST(DialCommands, ResultsHaveTheirDigitsAndCanBeKeptBack) {
  Bench bench;
  bench.ask("ATE0V0");
  EXPECT_EQ(dialed(bench, "ATD7;", seconds(13)), "7\r");
  EXPECT_EQ(dialed(bench, "ATD8;", seconds(13)), "8\r");
  EXPECT_EQ(dialed(bench, "ATD9;", seconds(13)), "3\r");
  EXPECT_EQ(dialed(bench, "ATD0;", seconds(13)), "0\r");
  bench.ask("ATH;V1Q1");
  EXPECT_EQ(dialed(bench, "ATD7;", seconds(13)), "");
}

TEST(DialCommands, DialStringMayHoldWhatFixedLinesWant) {
  for (const char* command :
       {"ATDT0127;", "ATDP 01 2-7;", "atd(01)2.7;", "ATD0,1,27;", "ATDW0127!@;", "ATD0127I;",
        "ATD0127ig;", "ATD+0127;", "AT+CMGF=1;D0127;"}) {
    Bench bench;
    EXPECT_EQ(dialed(bench, command, seconds(3)), std::string(command) + "\r\r\nBUSY\r\n");
  }
}

TEST(DialCommands, DialStringWithoutANumberIsAnError) {
  Bench bench;
  for (const char* bad : {"ATD", "ATD;", "ATDT;", "ATD+;", "ATD12x;", "ATD1;2;", "ATD\"12\";",
                          "ATD>1;", "ATDLL;", "ATD1+2;"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
}

TEST(DialCommands, DataCallsFindNobody) {
  Bench bench;
  EXPECT_EQ(bench.ask("ATD0146290800"), kNoCarrier);
}

TEST(DialCommands, CardThatCantBeUsedStopsTheCall) {
  const std::pair<SimStatus, const char*> kCodes[] = {{SimStatus::kPinWanted, "11"},
                                                      {SimStatus::kPukWanted, "12"},
                                                      {SimStatus::kAbsent, "10"},
                                                      {SimStatus::kFailed, "13"}};
  for (const auto& [status, code] : kCodes) {
    Bench bench({.sim = status});
    EXPECT_EQ(bench.ask("ATD0123;"), kNoCarrier);
    bench.ask("AT+CMEE=1");
    EXPECT_EQ(bench.ask("ATD0123;"), "\r\n+CME ERROR: " + std::string(code) + "\r\n");
  }
}

TEST(DialCommands, NetworkThatIsNotThereStopsTheCall) {
  Bench bench;
  bench.modem.console("register 2");
  EXPECT_EQ(bench.ask("ATD0123;"), kNoCarrier);
  bench.modem.console("register 5");
  EXPECT_EQ(dialed(bench, "ATD0123;", seconds(4)), std::string("ATD0123;\r") + kOk);
}

TEST(DialCommands, OneCallAtATimeIsMade) {
  Bench bench;
  dialed(bench, "ATD0123;", seconds(4));
  EXPECT_EQ(bench.ask("ATD0124;"), kError);
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("ATD0124;"), "\r\n+CME ERROR: 3\r\n");
}

TEST(DialCommands, RedialReportsTheNumberAfterTheEchoAndThenDials) {
  Bench bench;
  dialed(bench, "ATD0146290800;", seconds(4));
  bench.ask("ATH");
  EXPECT_EQ(bench.write("ATDL\r"), "ATDL\r\r\n0146290800;\r\n");
  EXPECT_EQ(bench.listen(seconds(3)), kOk);
  bench.ask("ATH");
  EXPECT_EQ(dialed(bench, "ATDL;", seconds(4)), "ATDL;\r\r\n0146290800;\r\n\r\nOK\r\n");
}

TEST(DialCommands, RedialReportsTheNumberBeforeTheIndications) {
  Bench bench;
  bench.ask("AT+WIND=1023");
  dialed(bench, "ATD+017;", seconds(4));
  EXPECT_EQ(dialed(bench, "ATDL", seconds(4)),
            "ATDL\r\r\n+017;\r\n\r\n+WIND: 5,1\r\n\r\nBUSY\r\n\r\n+WIND: 6,1\r\n");
}

TEST(DialCommands, RedialWithoutANumberIsAnError) {
  Bench bench;
  EXPECT_EQ(bench.ask("ATDL"), kError);
  bench.ask("ATD;");
  EXPECT_EQ(bench.ask("ATDL"), kError);
}

TEST(DialCommands, RedialNeedsTheCardTooAndThenGivesNoNumber) {
  Bench bench;
  dialed(bench, "ATD017;", seconds(4));
  bench.modem.console("sim out");
  EXPECT_EQ(bench.ask("ATDL"), kNoCarrier);
}

TEST(DialCommands, AnswerWantsACaller) {
  Bench bench;
  EXPECT_EQ(bench.ask("ATA"), kNoCarrier);
  bench.modem.console("ring 0123");
  EXPECT_EQ(bench.listen(), "\r\nRING\r\n");
  EXPECT_EQ(bench.ask("ATA"), kOk);
  EXPECT_EQ(bench.ask("ATA"), kNoCarrier);
  EXPECT_EQ(bench.ask("ATA1"), kError);
}

TEST(DialCommands, HangUpIsOkWithAndWithoutACall) {
  Bench bench;
  EXPECT_EQ(bench.ask("ATH"), kOk);
  dialed(bench, "ATD0123;", seconds(4));
  EXPECT_EQ(bench.ask("ATH0"), kOk);
  EXPECT_EQ(bench.ask("AT+CLCC"), kOk);
  EXPECT_EQ(bench.listen(seconds(10)), "");
  EXPECT_EQ(bench.ask("ATH1"), kError);
}

TEST(DialCommands, TonesGoOnlyThroughACallThatIsTalkedOn) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("AT+VTS=1"), "\r\n+CME ERROR: 3\r\n");
  dialed(bench, "ATD0123;", seconds(4));
  for (const char* command : {"AT+VTS=0", "AT+VTS=9", "AT+VTS=#", "AT+VTS=*", "AT+VTS=a",
                              "AT+VTS=D", "AT+VTS=\"1\";+VTS=\"3\""}) {
    EXPECT_EQ(bench.ask(command), kOk) << command;
  }
  for (const char* command : {"AT+VTS=E", "AT+VTS=12", "AT+VTS=+"}) {
    EXPECT_EQ(bench.ask(command), "\r\n+CME ERROR: 3\r\n") << command;
  }
  for (const char* command : {"AT+VTS=", "AT+VTS=1,2", "AT+VTS", "AT+VTS?"}) {
    EXPECT_EQ(bench.ask(command), kError) << command;
  }
  EXPECT_EQ(bench.ask("AT+VTS=?"), withOk("+VTS: (0-9,*,#,A-D)"));
  bench.ask("ATH;+CMEE=0");
  EXPECT_EQ(bench.ask("AT+VTS=1"), kError);
}

}  // namespace
}  // namespace gsm::simulator
