#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

// The modem while a call that the host makes has no result yet.
namespace gsm::simulator {
namespace {

class PendingDial : public testing::Test {
 protected:
  PendingDial() { EXPECT_EQ(bench_.write("ATD0146290800;\r"), "ATD0146290800;\r"); }

  Bench bench_;
};

TEST_F(PendingDial, LetsUnsolicitedLinesThrough) {
  bench_.modem.console("line RING");
  bench_.modem.console("line +CLIP: \"0123\",129");
  EXPECT_EQ(bench_.listen(), "\r\nRING\r\n\r\n+CLIP: \"0123\",129\r\n");
  EXPECT_EQ(bench_.listen(seconds(2)), kOk);
}

TEST_F(PendingDial, LeavesTheConsoleItsWork) {
  EXPECT_EQ(bench_.modem.console("signal 4"), "");
  EXPECT_NE(bench_.modem.console("state").find("calls: 1 dialing 0146290800"), std::string::npos);
  bench_.listen();
  EXPECT_NE(bench_.modem.console("state").find("calls: 1 alerting 0146290800"), std::string::npos);
  EXPECT_EQ(bench_.listen(seconds(2)), kOk);
  EXPECT_NE(bench_.modem.console("state").find("calls: 1 active 0146290800"), std::string::npos);
}

TEST_F(PendingDial, KeepsFurtherCommandsUntilItsResult) {
  EXPECT_EQ(bench_.write("AT+CIND?\rAT+VTS=5\r"), "");
  EXPECT_EQ(bench_.listen(seconds(2)),
            "\r\nOK\r\nAT+CIND?\r\r\n+CIND: 5,2,1,1,1,0,0\r\n\r\nOK\r\nAT+VTS=5\r\r\nOK\r\n");
}

TEST_F(PendingDial, IsntEndedByAnyOtherByte) {
  for (const char* noise : {"x", "\x1B", "\r", "AT\r", "A", "AT+VTS=H\r", "HATE\r", "ATH1\r"}) {
    Bench bench;
    bench.write("ATE0\r");
    bench.write("ATD1;\r");
    EXPECT_EQ(bench.write(noise), "") << noise;
    EXPECT_TRUE(bench.listen(seconds(2)).starts_with(kOk)) << noise;
  }
}

TEST_F(PendingDial, EndsWithNoCarrierAtAHangUpWhichIsThenDone) {
  EXPECT_EQ(bench_.write("ATH\r"), "\r\nNO CARRIER\r\nATH\r\r\nOK\r\n");
  EXPECT_EQ(bench_.listen(seconds(20)), "");
  EXPECT_EQ(bench_.ask("AT+CLCC"), kOk);
}

TEST_F(PendingDial, EndsAtAHangUpThatComesByteByByteAndAfterOthers) {
  for (const char c : std::string("AT+CMGF?\rat h\r")) {
    bench_.modem.hostWrites({&c, 1}, Bench::kSpeed);
  }
  EXPECT_EQ(bench_.listen(),
            "\r\nNO CARRIER\r\nAT+CMGF?\r\r\n+CMGF: 0\r\n\r\nOK\r\nat h\r\r\nOK\r\n");
}

TEST_F(PendingDial, NeedsTheWholeLineOfAHangUp) {
  EXPECT_EQ(bench_.write("ATH"), "");
  EXPECT_EQ(bench_.write("\r"), "\r\nNO CARRIER\r\nATH\r\r\nOK\r\n");
}

TEST(PendingDials, EndOneAfterTheOtherAtAHangUpBehindThem) {
  Bench bench;
  EXPECT_EQ(bench.write("ATE0\rATD1;\rATD2;\rATH\r"),
            std::string("ATE0\r") + kOk + kNoCarrier + kNoCarrier + kOk);
}

TEST(PendingDials, IndicateTheEndAtAHangUpBeforeItsOk) {
  Bench bench;
  bench.ask("AT+WIND=1023");
  bench.ask("ATE0");
  EXPECT_EQ(bench.write("ATD1;\r"), "\r\n+WIND: 5,1\r\n");
  EXPECT_EQ(bench.write("ATH\r"), "\r\nNO CARRIER\r\n\r\n+WIND: 6,1\r\n\r\nOK\r\n");
  EXPECT_EQ(bench.listen(seconds(20)), "") << "it rings nowhere any more";
}

TEST_F(PendingDial, EndsAsTheConsoleSays) {
  EXPECT_EQ(bench_.modem.console("answer"), "");
  EXPECT_EQ(bench_.listen(), kOk);
  EXPECT_EQ(bench_.listen(seconds(20)), "") << "its own outcome is past";
  const std::pair<const char*, const char*> kEnds[] = {
      {"busy", "\r\nBUSY\r\n"}, {"hangup", kNoCarrier}, {"hangup silent", kNoCarrier}};
  for (const auto& [line, result] : kEnds) {
    bench_.ask("ATH");
    bench_.write("ATD8;\r");
    EXPECT_EQ(bench_.modem.console(line), "");
    EXPECT_EQ(bench_.listen(), result) << line;
    EXPECT_EQ(bench_.listen(seconds(20)), "");
  }
}

TEST_F(PendingDial, EndsWithTheNetworkAndWithTheCard) {
  EXPECT_EQ(bench_.modem.console("register 0"), "");
  EXPECT_EQ(bench_.listen(), kNoCarrier);
  bench_.modem.console("register 1");
  bench_.write("ATD8;\r");
  EXPECT_EQ(bench_.modem.console("sim out"), "");
  EXPECT_EQ(bench_.listen(seconds(20)), kNoCarrier);
}

TEST_F(PendingDial, TurnsOtherCallersAway) {
  EXPECT_EQ(bench_.modem.console("ring 0123"),
            "error: there is a call already; 'wait' adds one to it");
  EXPECT_EQ(bench_.modem.console("wait 0123"),
            "error: a caller waits only while there is one call, answered");
  EXPECT_EQ(bench_.modem.console("giveup"), "error: nobody is calling");
  EXPECT_EQ(bench_.listen(seconds(3)), kOk);
}

TEST_F(PendingDial, GoesOnInSilence) {
  bench_.modem.console("silent on");
  EXPECT_EQ(bench_.listen(seconds(5)), "");
  bench_.modem.console("silent off");
  EXPECT_EQ(bench_.ask("AT+CPAS"), withOk("+CPAS: 4"));
}

TEST(PendingDials, SurviveCutsInterjectionsAndDelays) {
  for (const char* cut : {"1", "2", "8"}) {
    Bench bench;
    bench.modem.console("fault add delay 300");
    bench.modem.console("fault add interject +CREG: 2");
    bench.modem.console("fault add cut " + std::string(cut));
    bench.write("ATD0123;\r");
    bench.modem.console("line RING");
    EXPECT_EQ(bench.listen(seconds(4)), "\r\nRING\r\n\r\n+CREG: 2\r\n\r\nOK\r\n");
    EXPECT_EQ(bench.ask("AT+CPAS"), "\r\n+CREG: 2\r\n\r\n+CPAS: 4\r\n\r\nOK\r\n");
  }
}

TEST(PendingDials, EndEvenWhenNothingOfThemArrives) {
  Bench bench;
  bench.modem.console("fault add drop 1");
  bench.write("ATD0127;\r");
  EXPECT_EQ(bench.listen(seconds(5)), "");
  bench.modem.console("fault clear");
  EXPECT_EQ(bench.write("AT\r"), "AT\r\r\nOK\r\n");
}

TEST(PendingDials, MayGoWithTheModem) {
  VirtualTimeline time;
  MemoryProfileStore store;
  std::optional<Modem> modem;
  std::string received;
  modem.emplace(time, store,
                Surroundings{.toHost = [&](std::string_view chunk) { received += chunk; }},
                ModemOptions{.speed = 9600});
  modem->hostWrites("ATD0123;\r", 9600);
  time.advance(milliseconds(500));
  modem.reset();
  time.advance(seconds(20));
  EXPECT_EQ(received, "ATD0123;\r");
}

TEST(PendingDials, LoseWhatOverflowsTheBufferAndThenGoOn) {
  Bench bench;
  bench.write("ATE0\r");
  bench.write("ATD0123;\r");
  bench.modem.hostWrites(std::string(1'000'000, '\r') + "ATH\r", Bench::kSpeed);
  EXPECT_EQ(bench.listen(seconds(3)), kOk);
  EXPECT_EQ(bench.ask("AT+CPAS"), withOk("+CPAS: 4"));
}

}  // namespace
}  // namespace gsm::simulator
