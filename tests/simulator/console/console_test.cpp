#include "simulator/console/console_table.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

constexpr const char* kDone = "";

TEST(Console, SignalSetsWhatCsqReports) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("signal 31 5"), kDone);
  EXPECT_EQ(bench.ask("AT+CSQ"), withOk("+CSQ: 31,5"));
  EXPECT_EQ(bench.modem.console("signal 4"), kDone);
  EXPECT_EQ(bench.ask("AT+CSQ"), withOk("+CSQ: 4,0"));
  EXPECT_EQ(bench.modem.console("signal 99"), kDone);
  EXPECT_EQ(bench.ask("AT+CSQ"), withOk("+CSQ: 99,99"));
}

TEST(Console, RegisterAnnouncesTheChangeWhenAskedFor) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("register 5"), kDone);
  EXPECT_EQ(bench.listen(), "");
  EXPECT_EQ(bench.ask("AT+CREG=1"), kOk);
  EXPECT_EQ(bench.modem.console("register 2"), kDone);
  EXPECT_EQ(bench.listen(), "\r\n+CREG: 2\r\n");
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 1,2"));
}

TEST(Console, RegisterEndsASearch) {
  Bench bench({.sim = SimStatus::kPinWanted});
  bench.ask("AT+CPIN=1234");
  bench.modem.console("register 3");
  bench.listen(seconds(20));
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 0,3"));
}

TEST(Console, SilentModemNeitherHearsNorSpeaks) {
  Bench bench;
  bench.ask("AT+CREG=1");
  EXPECT_EQ(bench.modem.console("silent on"), kDone);
  EXPECT_EQ(bench.write("AT\r"), "");
  bench.modem.console("register 5");
  EXPECT_EQ(bench.listen(), "");
  EXPECT_EQ(bench.modem.console("silent off"), kDone);
  EXPECT_EQ(bench.listen(), "") << "what it didn't hear stays unanswered";
  EXPECT_EQ(bench.ask("AT"), kOk);
}

TEST(Console, ModemSilencedInMidCommandSwallowsItsReply) {
  Bench bench;
  bench.modem.hostWrites("AT\r", Bench::kSpeed);
  bench.timeline.advance(milliseconds(10));
  bench.modem.console("silent on");
  EXPECT_EQ(bench.listen(), "");
  bench.modem.console("silent off");
  EXPECT_EQ(bench.ask("AT"), kOk);
}

TEST(Console, UnpluggedLineCarriesNothing) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("unplug"), kDone);
  EXPECT_EQ(bench.write("AT\r"), "");
  bench.modem.console("line RING");
  EXPECT_EQ(bench.listen(), "");
  EXPECT_EQ(bench.modem.console("unplug"), "error: not plugged");
  EXPECT_EQ(bench.modem.console("plug"), kDone);
  EXPECT_EQ(bench.modem.console("plug"), "error: plugged already");
  EXPECT_EQ(bench.plugged, (std::vector<bool>{false, true}));
  EXPECT_EQ(bench.ask("AT"), kOk);
}

TEST(Console, SaySendsBytesAsTheyAre) {
  Bench bench;
  EXPECT_EQ(bench.modem.console(R"(say "\r\nR\x49NG\r")"), kDone);
  EXPECT_EQ(bench.listen(), "\r\nRING\r");
  EXPECT_EQ(bench.chunks.back(), "\r\nRING\r");
  EXPECT_EQ(bench.modem.console(R"(say "a)"), "error: usage: say \"BYTES\"");
}

TEST(Console, LineSendsAFramedLine) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("line +CMTI: \"SM\",1"), kDone);
  EXPECT_EQ(bench.listen(), "\r\n+CMTI: \"SM\",1\r\n");
}

TEST(Console, EchoIsTheModemsOwnSetting) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("echo off"), kDone);
  EXPECT_EQ(bench.write("AT\r"), kOk);
  EXPECT_EQ(bench.modem.console("echo on"), kDone);
  EXPECT_EQ(bench.write("AT\r"), "AT\r\r\nOK\r\n");
}

TEST(Console, SpeedChangesAtOnce) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("speed 115200"), kDone);
  EXPECT_EQ(bench.speeds, std::vector<int>{115200});
  EXPECT_EQ(bench.write("AT\r"), "");
  bench.hostSpeed = 115200;
  EXPECT_EQ(bench.ask("AT+IPR?"), withOk("+IPR: 115200"));
  EXPECT_EQ(bench.modem.console("speed 12345"), "error: usage: speed BITS-PER-SECOND");
}

TEST(Console, FaultsAreAddedAndCleared) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("fault add interject RING"), kDone);
  EXPECT_EQ(bench.modem.console("fault add cut 3"), kDone);
  EXPECT_EQ(bench.ask("AT"), "\r\nRING\r\n\r\nOK\r\n");
  EXPECT_NE(bench.modem.console("state").find("faults: interject RING, cut 3"), std::string::npos);
  EXPECT_EQ(bench.modem.console("fault clear"), kDone);
  EXPECT_EQ(bench.ask("AT"), kOk);
  EXPECT_EQ(bench.modem.console("fault add cut 0"),
            "error: the fault cut wants BYTES, a number above 0");
}

TEST(Console, SimTakenOutTellsTheHost) {
  Bench bench;
  bench.ask("AT+CMEE=1;+CREG=1;+WIND=1023");
  EXPECT_EQ(bench.modem.console("sim out"), kDone);
  EXPECT_EQ(bench.listen(),
            "\r\n+WIND: 0\r\n\r\n+CME ERROR: 13\r\n\r\n+WIND: 8\r\n\r\n+CREG: 0\r\n");
  EXPECT_EQ(bench.ask("AT+CPIN?"), "\r\n+CME ERROR: 10\r\n");
  EXPECT_EQ(bench.modem.console("sim out"), "error: the card is out already");
  EXPECT_EQ(bench.modem.console("sim in"), kDone);
  EXPECT_EQ(bench.listen(), "\r\n+WIND: 1\r\n\r\n+CREG: 2\r\n");
  EXPECT_EQ(bench.modem.console("sim in"), "error: the card is in already");
}

TEST(Console, UnlockedSimWantsItsPinAgainWhenPutBack) {
  Bench bench({.sim = SimStatus::kPinWanted});
  bench.ask("AT+CPIN=1234");
  bench.modem.console("sim out");
  bench.modem.console("sim in");
  EXPECT_EQ(bench.ask("AT+CPIN?"), "\r\n+CPIN: SIM PIN\r\n");
  bench.listen(seconds(20));
  EXPECT_EQ(bench.ask("AT+CREG?"), withOk("+CREG: 0,0"));
}

TEST(Console, SimTakesEachState) {
  Bench bench;
  const std::pair<const char*, const char*> kReplies[] = {
      {"sim pin", "\r\n+CPIN: SIM PIN\r\n"},
      {"sim puk", "\r\n+CPIN: SIM PUK\r\n"},
      {"sim failed", kError},
      {"sim blocked", kError},
      {"sim ready", "\r\n+CPIN: READY\r\n"},
      {"sim out", kError},
  };
  for (const auto& [line, reply] : kReplies) {
    EXPECT_EQ(bench.modem.console(line), kDone);
    EXPECT_EQ(bench.ask("AT+CPIN?"), reply) << line;
  }
}

TEST(Console, StateShowsHowThingsStand) {
  Bench bench({.sim = SimStatus::kPinWanted});
  bench.ask("AT+CPIN=9999");
  EXPECT_EQ(bench.modem.console("state"),
            "line: 9600 baud, plugged, silent off, echo on, cut real\n"
            "faults: none\n"
            "sim: pin, 2 PIN and 10 PUK tries left\n"
            "network: registration 0, signal 17,0\n"
            "module: power on, battery 5, voice mail off, pins 00000000, cell 7066\n"
            "phone book: 8 of 250\n"
            "calls: none");
}

TEST(Console, PhonebookShowsTheCardsEntries) {
  Bench bench({.phoneBook = {{2, {"+33639981201", "Anna"}}, {5, {"112", ""}}}});
  EXPECT_EQ(bench.modem.console("phonebook"), "2\t+33639981201\tAnna\n5\t112\t");
  bench.ask("AT+CPBW=2");
  bench.ask("AT+CPBW=5");
  EXPECT_EQ(bench.modem.console("phonebook"), "none");
}

TEST(Console, QuitIsPassedOn) {
  Bench bench;
  EXPECT_EQ(bench.modem.console("quit"), kDone);
  EXPECT_EQ(bench.quits, 1);
}

TEST(Console, HelpHasOneLineForEveryCommand) {
  const std::string help = "\n" + consoleHelp();
  for (const char* name :
       {"signal",  "register",  "phonebook", "sim",       "ring",     "wait", "giveup",
        "answer",  "busy",      "hangup",    "silent",    "unplug",   "plug", "say",
        "line",    "echo",      "speed",     "fault",     "state",    "help", "quit",
        "message", "broadcast", "report",    "messages",  "services", "bar",  "lock",
        "pin",     "power",     "battery",   "voicemail", "cell"}) {
    EXPECT_NE(help.find("\n" + std::string(name) + " "), std::string::npos) << name;
  }
  Bench bench;
  EXPECT_EQ("\n" + bench.modem.console("help"), help);
}

TEST(Console, HelpSaysWhichCommandsFollowTheStandardAlone) {
  const std::string help = consoleHelp();
  const std::string last = help.substr(help.rfind('\n') + 1);
  EXPECT_TRUE(last.starts_with("answered by the AT standard alone: "));
  for (const char* name :
       {"AT+FCLASS", "AT+FTM", "AT+FRM", "AT+CGDCONT", "AT+CBC", "AT+COPS", "AT+CGREG"}) {
    EXPECT_NE((last + " ").find(" " + std::string(name) + " "), std::string::npos) << name;
  }
  EXPECT_EQ(last.find("AT+CSQ"), std::string::npos);
}

TEST(Console, RefusesWhatItDoesntKnowAndChangesNothing) {
  Bench bench;
  const std::string before = bench.modem.console("state");
  for (const char* bad :
       {"foo",          "signal",     "signal x",   "signal 1 2 3",   "signal 100",
        "signal -1",    "signal 5 x", "register",   "register 10",    "silent",
        "silent maybe", "echo",       "speed",      "speed fast",     "say",
        "line",         "fault",      "fault add",  "fault add melt", "fault clear now",
        "sim",          "sim maybe",  "unplug now", "quit now",       "state of things",
        "SIGNAL 5"}) {
    EXPECT_TRUE(bench.modem.console(bad).starts_with("error: ")) << bad;
  }
  EXPECT_EQ(bench.modem.console("state"), before);
  EXPECT_EQ(bench.listen(), "");
}

TEST(Console, BearsAnyLine) {
  std::mt19937_64 generator(3);
  Bench bench;
  for (int run = 0; run < 5000; ++run) {
    std::string line;
    for (std::size_t size = generator() % 30; line.size() < size;) {
      line += static_cast<char>(generator());
    }
    const std::string answer = bench.modem.console(line);
    EXPECT_TRUE(answer.empty() || answer.starts_with("error: "));
  }
  EXPECT_EQ(bench.modem.console(""), kDone);
  EXPECT_EQ(bench.modem.console("   "), kDone);
}

}  // namespace
}  // namespace gsm::simulator
