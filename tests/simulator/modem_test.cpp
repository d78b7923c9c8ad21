#include "simulator/modem.h"

#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(Modem, AnswersAtWithNineBytes) {
  Bench bench;
  EXPECT_EQ(bench.write("AT\r"), "AT\r\r\nOK\r\n");
}

TEST(Modem, SaysNothingInsideTheHostsOwnCall) {
  Bench bench;
  bench.modem.hostWrites("AT\r", Bench::kSpeed);
  EXPECT_EQ(bench.received, "");
}

TEST(Modem, TakesThePrefixInAnyCase) {
  Bench bench;
  for (const char* prefix : {"at", "At", "aT"}) EXPECT_EQ(bench.ask(prefix), kOk) << prefix;
}

TEST(Modem, AnswersUnknownCommandsWithError) {
  Bench bench;
  for (const char* command : {"AT+MODE=2", "AT$TSSPCSW=?", "AT+CLAC", "ATX4", "AT+CSQ?", "AT;"}) {
    EXPECT_EQ(bench.ask(command), kError) << command;
  }
}

TEST(Modem, GivesUnknownCommandsNoCodeEvenWithCmee) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("AT+CVHU"), kError);
}

TEST(Modem, GivesJoinedCommandsOneResult) {
  Bench bench;
  EXPECT_EQ(bench.ask("ATE1V1+CMGF=1;+CMGF?"), withOk("+CMGF: 1"));
  EXPECT_EQ(bench.ask("AT+CSQ;+CREG?"), "\r\n+CSQ: 17,0\r\n\r\n+CREG: 0,1\r\n\r\nOK\r\n");
}

TEST(Modem, StopsAtTheFirstCommandThatFails) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CMGF=1;+NONE;+CMGF=0"), kError);
  EXPECT_EQ(bench.ask("AT+CMGF?"), withOk("+CMGF: 1"));
}

TEST(Modem, EchoesExactlyWhatItReceived) {
  Bench bench;
  EXPECT_EQ(bench.write("aT  + csq\r"), "aT  + csq\r\r\n+CSQ: 17,0\r\n\r\nOK\r\n");
}

TEST(Modem, EchoesEchoOffOneLastTime) {
  Bench bench;
  EXPECT_EQ(bench.write("ATE0\r"), "ATE0\r\r\nOK\r\n");
  EXPECT_EQ(bench.write("AT\r"), kOk);
  EXPECT_EQ(bench.write("ATE1\r"), kOk);
  EXPECT_EQ(bench.write("AT\r"), "AT\r\r\nOK\r\n");
}

TEST(Modem, DoesntMindALineFeedAfterTheLineEnd) {
  Bench bench;
  EXPECT_EQ(bench.write("AT\r\n"), "AT\r\r\nOK\r\n");
  EXPECT_EQ(bench.write("AT\r\n"), "AT\r\r\nOK\r\n");
}

TEST(Modem, DoesntMindEscapeAndCarriageReturn) {
  Bench bench;
  EXPECT_EQ(bench.write("\x1B\r"), "\x1B\r");
  EXPECT_EQ(bench.write("AT\r"), "AT\r\r\nOK\r\n");
}

TEST(Modem, LeavesALineWithoutAtUnanswered) {
  Bench bench;
  EXPECT_EQ(bench.write("HELLO\r\r"), "HELLO\r\r");
}

TEST(Modem, FindsTheCommandAfterNoise) {
  Bench bench;
  EXPECT_EQ(bench.write("\xFF\x01?AT\r"), "\xFF\x01?AT\r\r\nOK\r\n");
}

TEST(Modem, TakesABackspaceOutOfTheLine) {
  Bench bench;
  EXPECT_EQ(bench.write("\bATX\b\r"), "\bATX\b\r\r\nOK\r\n");
}

TEST(Modem, HearsALineCutAtAnyPlace) {
  const std::string command = "AT+CREG?;+CMGF?\r";
  const std::string expected = command + "\r\n+CREG: 0,1\r\n\r\n+CMGF: 0\r\n\r\nOK\r\n";
  for (std::size_t cut = 0; cut <= command.size(); ++cut) {
    Bench bench;
    bench.modem.hostWrites(command.substr(0, cut), Bench::kSpeed);
    bench.timeline.advance(seconds(1));
    bench.modem.hostWrites(command.substr(cut), Bench::kSpeed);
    bench.timeline.advance(seconds(1));
    EXPECT_EQ(bench.received, expected) << "cut at " << cut;
  }
}

TEST(Modem, HearsALineByteByByte) {
  Bench bench;
  for (const char c : std::string("AT+CGMI\r")) {
    bench.modem.hostWrites({&c, 1}, Bench::kSpeed);
    bench.timeline.advance(milliseconds(3));
  }
  bench.timeline.advance(seconds(1));
  EXPECT_EQ(bench.received, "AT+CGMI\r\r\n WAVECOM MODEM\r\n\r\nOK\r\n");
}

TEST(Modem, DoesLinesThatCameTogetherOneAfterTheOther) {
  Bench bench;
  EXPECT_EQ(bench.write("AT+CMGF=1\rAT+CMGF?\rATE0\rAT\r"),
            "AT+CMGF=1\r\r\nOK\r\nAT+CMGF?\r\r\n+CMGF: 1\r\n\r\nOK\r\nATE0\r\r\nOK\r\n\r\nOK\r\n");
}

TEST(Modem, RefusesALineThatNeverEnds) {
  Bench bench;
  const std::string endless(100'000, '1');
  bench.modem.hostWrites("AT+CSQ", Bench::kSpeed);
  bench.modem.hostWrites(endless, Bench::kSpeed);
  bench.timeline.advance(seconds(200));
  EXPECT_EQ(bench.ask(""), kError);
  EXPECT_EQ(bench.ask("AT"), kOk);
}

TEST(Modem, TakesTheLongestLine) {
  Bench bench;
  const std::string command = "AT" + std::string(LineInput::kLongest - 2, ' ');
  bench.modem.hostWrites(command + "\r", Bench::kSpeed);
  EXPECT_TRUE(bench.listen(seconds(2)).ends_with(kOk));
  bench.modem.hostWrites(command + " \r", Bench::kSpeed);
  EXPECT_TRUE(bench.listen(seconds(2)).ends_with(kError));
}

TEST(Modem, LosesWhatOverflowsItsBufferWhileBusy) {
  Bench bench;
  bench.write("ATE0\r");
  bench.modem.hostWrites("AT\r", Bench::kSpeed);
  bench.modem.hostWrites(std::string(1'000'000, '\r') + "AT+CSQ\r", Bench::kSpeed);
  EXPECT_EQ(bench.listen(), kOk);
  EXPECT_EQ(bench.ask("AT"), kOk);
}

TEST(Modem, BearsEveryByteAtEveryPlaceOfACommand) {
  for (int value = 0; value < 256; ++value) {
    Bench bench;
    const std::string command = "AT+CPIN=1234\r";
    for (std::size_t at = 0; at <= command.size(); ++at) {
      std::string noisy = command;
      noisy.insert(at, 1, static_cast<char>(value));
      bench.write(noisy);
    }
    bench.modem.hostWrites("\rATE0V1Q0\r", Bench::kSpeed);
    bench.timeline.advance(seconds(1));
    EXPECT_EQ(bench.ask("AT"), kOk) << "byte " << value;
  }
}

TEST(Modem, AnswersWithDigitsAfterV0) {
  Bench bench;
  EXPECT_EQ(bench.ask("ATV0"), "0\r");
  EXPECT_EQ(bench.ask("AT+NONE"), "4\r");
  EXPECT_EQ(bench.ask("AT+CSQ"), "+CSQ: 17,0\r\n0\r");
  EXPECT_EQ(bench.ask("ATV1"), kOk);
}

TEST(Modem, KeepsItsResultsBackAfterQ1) {
  Bench bench;
  EXPECT_EQ(bench.ask("ATQ1"), "");
  EXPECT_EQ(bench.ask("AT"), "");
  EXPECT_EQ(bench.ask("AT+CSQ"), "\r\n+CSQ: 17,0\r\n");
  EXPECT_EQ(bench.ask("ATQ0"), kOk);
}

TEST(Modem, LetsItsLatencyPassBetweenEchoAndReply) {
  Bench bench({.cutter = Cutter::whole(), .latency = milliseconds(50)});
  bench.write("AT\r");
  ASSERT_EQ(bench.chunks, (std::vector<std::string>{"AT\r", "\r\nOK\r\n"}));
  EXPECT_EQ(bench.arrivals[0], lineTime(3, 9600));
  EXPECT_EQ(bench.arrivals[1], lineTime(3, 9600) + milliseconds(50) + lineTime(6, 9600));
}

TEST(Modem, TakesTheTimeOfTheLineForEveryByte) {
  Bench bench({.speed = 300, .cutter = Cutter::every(1)});
  bench.hostSpeed = 300;
  bench.write("ATE0\r");
  bench.arrivals.clear();
  bench.write("AT\r");
  ASSERT_EQ(bench.arrivals.size(), 6u);
  EXPECT_EQ(bench.arrivals[5] - bench.arrivals[4], lineTime(1, 300));
}

TEST(Modem, SendsARepliesLineEndsAndTextsSeparately) {
  Bench bench;
  bench.write("AT\r");
  EXPECT_EQ(bench.chunks, (std::vector<std::string>{"AT\r", "\r", "\n", "OK\r", "\n"}));
}

TEST(Modem, HearsOnlyItsOwnSpeed) {
  Bench bench;
  for (const int speed : {300, 4800, 19200, 115200, 0, -1, 12345}) {
    bench.hostSpeed = speed;
    EXPECT_EQ(bench.write("AT\r"), "") << speed;
  }
  bench.hostSpeed = 9600;
  EXPECT_EQ(bench.write("AT\r"), "AT\r\r\nOK\r\n");
}

TEST(Modem, AnswersAtAnySpeedWithAutobaud) {
  Bench bench({.speed = kAutobaud});
  for (const int speed : kLineSpeeds) {
    bench.hostSpeed = speed;
    EXPECT_EQ(bench.write("AT\r"), "AT\r\r\nOK\r\n") << speed;
  }
  bench.hostSpeed = 12345;
  EXPECT_EQ(bench.write("AT\r"), "");
}

TEST(Modem, StartsAtTheFactorySpeedWithoutAnother) {
  VirtualTimeline time;
  MemoryProfileStore store;
  const Modem modem(time, store, {});
  EXPECT_EQ(modem.speed(), 115200);
}

}  // namespace
}  // namespace gsm::simulator
