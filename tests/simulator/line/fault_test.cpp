#include "simulator/line/fault.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>

#include "simulator/line/fault_chain.h"
#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

FaultPointer fault(std::string_view text) { return std::get<FaultPointer>(parseFault(text)); }

std::string complaintAbout(std::string_view text) {
  return std::get<std::string>(parseFault(text));
}

// What is left of a transmission after the faults, which are given in order.
Transmission through(const std::vector<std::string>& faults, Transmission transmission,
                     std::uint64_t seed = 1) {
  FaultChain chain(seed);
  for (const std::string& text : faults) chain.add(fault(text));
  chain.apply(transmission);
  return transmission;
}

Transmission reply(std::string bytes) { return {Source::kReply, {{std::move(bytes)}}}; }

TEST(Fault, CutMeetsEverySource) {
  for (const auto source :
       {Source::kEcho, Source::kReply, Source::kUnsolicited, Source::kConsole}) {
    const auto cut = through({"cut 2"}, {source, {{"abc", milliseconds(7)}, {"de"}}});
    EXPECT_EQ(cut.chunks, (std::vector<Chunk>{{"ab", milliseconds(7)}, {"cd"}, {"e"}}));
  }
}

TEST(Fault, DelayMeetsRepliesAlone) {
  EXPECT_EQ(through({"delay 250"}, reply("x")).chunks[0].pause, milliseconds(250));
  EXPECT_EQ(through({"delay 250"}, {Source::kEcho, {{"x"}}}).chunks[0].pause, milliseconds(0));
}

TEST(Fault, GarbleTurnsOneBitOfAByte) {
  const std::string bytes(1000, 'U');
  const std::string garbled = joined(through({"garble 1"}, reply(bytes)).chunks);
  ASSERT_EQ(garbled.size(), bytes.size());
  for (const char c : garbled) {
    EXPECT_EQ(std::popcount(static_cast<unsigned char>(c ^ 'U')), 1);
  }
}

TEST(Fault, GarbleMeetsAboutItsShareOfTheBytes) {
  const std::string garbled =
      joined(through({"garble 0.1"}, reply(std::string(10'000, 'U'))).chunks);
  const auto kept = std::count(garbled.begin(), garbled.end(), 'U');
  EXPECT_GT(kept, 8'700);
  EXPECT_LT(kept, 9'300);
}

TEST(Fault, DropLosesAboutItsShareOfTheBytes) {
  const auto left = joined(through({"drop 0.25"}, reply(std::string(10'000, 'U'))).chunks).size();
  EXPECT_GT(left, 7'200u);
  EXPECT_LT(left, 7'800u);
  EXPECT_EQ(joined(through({"drop 1"}, reply("all")).chunks), "");
  EXPECT_EQ(joined(through({"drop 0", "garble 0"}, reply("all")).chunks), "all");
}

TEST(Fault, SameSeedSpoilsTheSame) {
  const std::vector<std::string> faults = {"garble 0.3", "drop 0.3"};
  const auto spoilt = [&](std::uint64_t seed) {
    return joined(through(faults, reply(std::string(200, 'U')), seed).chunks);
  };
  EXPECT_EQ(spoilt(42), spoilt(42));
  EXPECT_NE(spoilt(42), spoilt(43));
}

TEST(Fault, InterjectStandsBeforeTheReplyNeverInIt) {
  EXPECT_EQ(joined(through({"interject RING"}, reply("\r\nOK\r\n")).chunks),
            "\r\nRING\r\n\r\nOK\r\n");
  EXPECT_EQ(joined(through({"interject RING"}, {Source::kEcho, {{"AT\r"}}}).chunks), "AT\r");
}

TEST(Fault, CombineInEveryOrder) {
  std::vector<std::string> faults = {"cut 3", "delay 40", "garble 0", "drop 0", "interject RING"};
  std::sort(faults.begin(), faults.end());
  do {
    const Transmission spoilt = through(faults, reply("\r\nOK\r\n"));
    EXPECT_EQ(joined(spoilt.chunks), "\r\nRING\r\n\r\nOK\r\n");
    std::chrono::nanoseconds pauses{};
    for (const Chunk& chunk : spoilt.chunks) pauses += chunk.pause;
    EXPECT_LE(pauses, milliseconds(40));
  } while (std::next_permutation(faults.begin(), faults.end()));
}

TEST(Fault, NamesAndParserAgree) {
  for (const char* text : {"cut 3", "delay 40", "garble 0.25", "drop 1", "interject +CREG: 2"}) {
    EXPECT_EQ(fault(text)->name(), text);
  }
}

TEST(Fault, ComplaintsSayWhatWouldBeRight) {
  for (const char* bad : {"cut", "cut 0", "cut x", "cut -1"}) {
    EXPECT_EQ(complaintAbout(bad), "the fault cut wants BYTES, a number above 0") << bad;
  }
  for (const char* bad : {"garble", "garble 1.5", "garble -0.1", "garble nan", "garble x"}) {
    EXPECT_EQ(complaintAbout(bad), "the fault garble wants PROBABILITY per byte, 0 to 1") << bad;
  }
  EXPECT_EQ(complaintAbout("delay 600001"), "the fault delay wants MILLISECONDS, 0 to 600000");
  EXPECT_EQ(complaintAbout("interject"), "the fault interject wants TEXT of an unsolicited line");
  EXPECT_EQ(complaintAbout("melt 3"),
            "no fault 'melt'; there are cut, delay, garble, drop, interject");
}

TEST(Modem, RunsTheSameWithTheSameSeedThroughAllFaults) {
  const auto run = [](std::uint64_t seed) {
    ModemOptions options{.seed = seed};
    for (const char* text : {"garble 0.05", "drop 0.05", "cut 3", "delay 10", "interject RING"}) {
      options.faults.push_back(fault(text));
    }
    Bench bench(options);
    for (const char* command : {"AT+CGMM", "AT&V", "ATI0", "AT+CNMI?"}) bench.ask(command);
    return std::pair(bench.chunks, bench.arrivals);
  };
  EXPECT_EQ(run(42), run(42));
  EXPECT_NE(run(42), run(43));
}

TEST(Modem, LetsAnInterjectionInBetweenEchoAndReply) {
  Bench bench({.faults = {fault("interject RING")}});
  EXPECT_EQ(bench.write("AT+CGMI\r"), "AT+CGMI\r\r\nRING\r\n\r\n WAVECOM MODEM\r\n\r\nOK\r\n");
}

TEST(Modem, AnswersOnWhenAWholeReplyIsLost) {
  Bench bench({.faults = {fault("drop 1")}});
  EXPECT_EQ(bench.write("AT\r"), "");
  bench.modem.console("fault clear");
  EXPECT_EQ(bench.write("AT\r"), "AT\r\r\nOK\r\n");
}

}  // namespace
}  // namespace gsm::simulator
