#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

// A modem with three entries and a hole, which reports its error codes.
class PhoneBookCommands : public testing::Test {
 protected:
  PhoneBookCommands() { bench_.ask("AT+CMEE=1"); }

  Bench bench_{{.phoneBook = {{12, {"112", "Emergency"}},
                              {13, {"+331290909", "Fred"}},
                              {15, {"0146290808", "Zazi"}}}}};
};

TEST_F(PhoneBookCommands, CountReportsUsedAndTotal) {
  EXPECT_EQ(Bench().write("AT+CPBS?\r"), "AT+CPBS?\r\r\n+CPBS: \"SM\",8,250\r\n\r\nOK\r\n");
  EXPECT_EQ(bench_.ask("AT+CPBS?"), withOk("+CPBS: \"SM\",3,250"));
}

TEST_F(PhoneBookCommands, OnlyTheCardsOwnMemoryExists) {
  EXPECT_EQ(bench_.ask("AT+CPBS=?"), withOk("+CPBS: (\"SM\")"));
  EXPECT_EQ(bench_.ask("AT+CPBS=\"SM\""), kOk);
  EXPECT_EQ(bench_.ask("AT+CPBS=SM"), kOk);
  EXPECT_EQ(bench_.ask("AT+CPBS=\"FD\""), cmeError(4));
  EXPECT_EQ(bench_.ask("AT+CPBS="), kError);
}

TEST_F(PhoneBookCommands, ReadReportsOneEntryByteForByte) {
  EXPECT_EQ(bench_.write("AT+CPBR=12\r"),
            "AT+CPBR=12\r\r\n+CPBR: 12,\"112\",129,\"Emergency\"\r\n\r\nOK\r\n");
}

TEST_F(PhoneBookCommands, ReadOfARangePassesOverHolesWithoutEmptyLines) {
  const char* const all =
      "\r\n+CPBR: 12,\"112\",129,\"Emergency\"\r\n+CPBR: 13,\"+331290909\",145,\"Fred\"\r\n"
      "+CPBR: 15,\"0146290808\",129,\"Zazi\"\r\n\r\nOK\r\n";
  EXPECT_EQ(bench_.ask("AT+CPBR=12,15"), all);
  EXPECT_EQ(bench_.ask("AT+CPBR=1,250"), all);
  EXPECT_EQ(bench_.ask("AT+CPBR=13,14"), withOk("+CPBR: 13,\"+331290909\",145,\"Fred\""));
}

TEST_F(PhoneBookCommands, EmptyLocationIsNotFound) {
  EXPECT_EQ(bench_.ask("AT+CPBR=14"), cmeError(22));
  EXPECT_EQ(bench_.ask("AT+CPBR=16,250"), cmeError(22));
  bench_.ask("AT+CMEE=0");
  EXPECT_EQ(bench_.ask("AT+CPBR=14"), kError);
}

TEST_F(PhoneBookCommands, LocationOutOfRangeIsAnInvalidIndex) {
  for (const char* bad : {"AT+CPBR=0", "AT+CPBR=251", "AT+CPBR=-1", "AT+CPBR=0,5", "AT+CPBR=5,251",
                          "AT+CPBR=15,12", "AT+CPBW=0", "AT+CPBW=251", "AT+CPBW=251,\"1\""}) {
    EXPECT_EQ(bench_.ask(bad), cmeError(21)) << bad;
  }
  bench_.ask("AT+CMEE=0");
  EXPECT_EQ(bench_.ask("AT+CPBR=251"), kError);
}

TEST_F(PhoneBookCommands, BadlyFormedOnesAreErrorsWithoutACode) {
  for (const char* bad :
       {"AT+CPBR=", "AT+CPBR=x", "AT+CPBR=\"12\"", "AT+CPBR=1,x", "AT+CPBR=1,", "AT+CPBR=1,2,3",
        "AT+CPBR", "AT+CPBR?", "AT+CPBW=", "AT+CPBW=x", "AT+CPBW=x,\"1\"", "AT+CPBW=1,\"1\",x",
        "AT+CPBW=1,\"1\",129,\"a\",1", "AT+CPBR=99999999999999999999"}) {
    EXPECT_EQ(bench_.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench_.ask("AT+CPBS?"), withOk("+CPBS: \"SM\",3,250"));
}

TEST_F(PhoneBookCommands, LimitsFollowTheRoomForNames) {
  EXPECT_EQ(bench_.ask("AT+CPBR=?"), withOk("+CPBR: (1-250),20,14"));
  EXPECT_EQ(bench_.ask("AT+CPBW=?"), withOk("+CPBW: (1-250),20,(129,145),14"));
  Bench small({.nameRoom = 10});
  EXPECT_EQ(small.ask("AT+CPBR=?"), withOk("+CPBR: (1-250),20,10"));
  EXPECT_EQ(small.ask("AT+CPBW=20,\"1\",129,\"tenletters\""), kOk);
  EXPECT_EQ(small.ask("AT+CPBW=21,\"1\",129,\"eleven char\""), kError);
}

TEST_F(PhoneBookCommands, WriteTakesQuotedAndUnquotedNumbers) {
  EXPECT_EQ(bench_.ask("AT+CPBW=6,\"+33639981201\",145,\"Anna\""), kOk);
  EXPECT_EQ(bench_.ask("AT+CPBR=6"), withOk("+CPBR: 6,\"+33639981201\",145,\"Anna\""));
  EXPECT_EQ(bench_.ask("AT+CPBW=6,0123456,,\" Anna b\""), kOk);
  EXPECT_EQ(bench_.ask("AT+CPBR=6"), withOk("+CPBR: 6,\"0123456\",129,\" Anna b\""));
  EXPECT_EQ(bench_.ask("AT+CPBW=6,+33639981201,,\" Anna\""), kOk);
  EXPECT_EQ(bench_.ask("AT+CPBR=6"), withOk("+CPBR: 6,\"+33639981201\",145,\" Anna\""));
  EXPECT_EQ(bench_.ask("AT+CPBW=6,\"5\""), kOk);
  EXPECT_EQ(bench_.ask("AT+CPBR=6"), withOk("+CPBR: 6,\"5\",129,\"\""));
}

TEST_F(PhoneBookCommands, InternationalTypeAddsThePlusThatIsMissing) {
  EXPECT_EQ(bench_.ask("AT+CPBW=1,\"33639981201\",145,\"Anna\""), kOk);
  EXPECT_EQ(bench_.ask("AT+CPBR=1"), withOk("+CPBR: 1,\"+33639981201\",145,\"Anna\""));
  EXPECT_EQ(bench_.ask("AT+CPBW=1,\"+33639981201\",129,\"Anna\""), kOk);
  EXPECT_EQ(bench_.ask("AT+CPBR=1"), withOk("+CPBR: 1,\"+33639981201\",145,\"Anna\""));
}

TEST_F(PhoneBookCommands, NameKeepsItsCommasAndSemicolons) {
  EXPECT_EQ(bench_.ask("AT+CPBW=1,\"1\",129,\"A,b;c\";+CPBS?"), withOk("+CPBS: \"SM\",4,250"));
  EXPECT_EQ(bench_.ask("AT+CPBR=1"), withOk("+CPBR: 1,\"1\",129,\"A,b;c\""));
}

TEST_F(PhoneBookCommands, WriteWithoutALocationTakesTheFirstFreeOne) {
  EXPECT_EQ(bench_.ask("AT+CPBW=,\"123\",129,\"Anna\""), kOk);
  EXPECT_EQ(bench_.ask("AT+CPBW=,\"456\",129,\"Ben\""), kOk);
  EXPECT_EQ(bench_.ask("AT+CPBR=1,2"),
            withOk("+CPBR: 1,\"123\",129,\"Anna\"\r\n+CPBR: 2,\"456\",129,\"Ben\""));
}

TEST_F(PhoneBookCommands, EraseEmptiesALocationAndDoesntMindAnEmptyOne) {
  EXPECT_EQ(bench_.ask("AT+CPBW=13"), kOk);
  EXPECT_EQ(bench_.ask("AT+CPBR=13"), cmeError(22));
  EXPECT_EQ(bench_.ask("AT+CPBS?"), withOk("+CPBS: \"SM\",2,250"));
  EXPECT_EQ(bench_.ask("AT+CPBW=13"), kOk);
}

TEST_F(PhoneBookCommands, FlawsHaveTheirCodesAndChangeNothing) {
  const std::pair<const char*, int> kFlaws[] = {
      {"AT+CPBW=12,\"123456789012345678901\",129,\"a\"", 26},
      {"AT+CPBW=12,\"12a\",129,\"a\"", 27},
      {"AT+CPBW=12,\"1 2\",129,\"a\"", 27},
      {"AT+CPBW=12,\"1\",129,\"fifteen letters\"", 24},
      {"AT+CPBW=12,\"1\",129,\"a", 25},
      {"AT+CPBW=12,\"1\",161,\"a\"", 4},
      {"AT+CPBW=12,\"\",129,\"\"", 3},
  };
  for (const auto& [command, number] : kFlaws) {
    EXPECT_EQ(bench_.ask(command), cmeError(number)) << command;
  }
  EXPECT_EQ(bench_.ask("AT+CPBR=12"), withOk("+CPBR: 12,\"112\",129,\"Emergency\""));
  EXPECT_TRUE(bench_.phoneBooks.empty());
}

TEST_F(PhoneBookCommands, FullBookTakesOnlyWhatReplaces) {
  PhoneBookEntries full;
  for (int location = 1; location <= kPhoneBookLocations; ++location) full[location] = {"1", "x"};
  Bench bench({.speed = 115200, .phoneBook = full});
  bench.hostSpeed = 115200;
  bench.ask("AT+CMEE=1");
  EXPECT_EQ(bench.ask("AT+CPBS?"), withOk("+CPBS: \"SM\",250,250"));
  EXPECT_EQ(bench.ask("AT+CPBW=,\"2\",129,\"y\""), cmeError(20));
  EXPECT_EQ(bench.ask("AT+CPBW=250,\"2\",129,\"y\""), kOk);
  bench.modem.hostWrites("AT+CPBR=1,250\r", 115200);
  const std::string all = bench.listen(seconds(30));
  EXPECT_TRUE(all.ends_with("\r\n+CPBR: 249,\"1\",129,\"x\"\r\n+CPBR: 250,\"2\",129,\"y\"\r\n" +
                            std::string(kOk)));
}

TEST_F(PhoneBookCommands, EveryChangeIsKept) {
  bench_.ask("AT+CPBW=12");
  bench_.ask("AT+CPBW=13,\"1\"");
  EXPECT_EQ(bench_.phoneBooks,
            (std::vector<std::string>{"13\t+331290909\tFred\n15\t0146290808\tZazi\n",
                                      "13\t1\t\n15\t0146290808\tZazi\n"}));
}

TEST_F(PhoneBookCommands, ChangeThatCantBeKeptIsAnError) {
  bench_.phoneBookFits = false;
  EXPECT_EQ(bench_.ask("AT+CPBW=12"), cmeError(23));
  EXPECT_EQ(bench_.ask("AT+CPBW=1,\"1\""), cmeError(23));
  EXPECT_EQ(bench_.ask("AT+CPBS?"), withOk("+CPBS: \"SM\",3,250"));
}

TEST_F(PhoneBookCommands, NeedAReadyCard) {
  const std::pair<SimStatus, int> kCodes[] = {{SimStatus::kPinWanted, 11},
                                              {SimStatus::kPukWanted, 12},
                                              {SimStatus::kAbsent, 10},
                                              {SimStatus::kBlocked, 13},
                                              {SimStatus::kFailed, 13}};
  for (const auto& [status, number] : kCodes) {
    Bench bench({.sim = status});
    EXPECT_EQ(bench.ask("AT+CPBS?"), kError);
    bench.ask("AT+CMEE=1");
    for (const char* command : {"AT+CPBS?", "AT+CPBS=\"SM\"", "AT+CPBR=1", "AT+CPBR=?", "AT+CPBW=1",
                                "AT+CPBW=,\"1\"", "AT+CPBW=?"}) {
      EXPECT_EQ(bench.ask(command), cmeError(number)) << command;
    }
  }
}

TEST_F(PhoneBookCommands, ListingLeavesTheModemWholeWhereverTheLineIsCut) {
  bench_.ask("ATE0");
  const std::string expected = bench_.ask("AT+CPBR=12,15");
  for (int size = 1; size < 20; ++size) {
    bench_.modem.console("fault add cut " + std::to_string(size));
    EXPECT_EQ(bench_.ask("AT+CPBR=12,15"), expected);
    EXPECT_LE(bench_.chunks.back().size(), static_cast<std::size_t>(size));
    bench_.modem.console("fault clear");
  }
}

}  // namespace
}  // namespace gsm::simulator
