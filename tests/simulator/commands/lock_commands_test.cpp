#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

// Locks, barrings and their passwords, in the words of a host.
namespace gsm::simulator {
namespace {

class LockCommands : public testing::Test {
 protected:
  LockCommands() { bench_.ask("AT+CMEE=1"); }

  Bench bench_;
};

TEST_F(LockCommands, AllLocksMakeOneLineOfPairs) {
  EXPECT_EQ(bench_.write("AT+CLCK?\r"),
            "AT+CLCK?\r\r\n+CLCK:(\"PS\",0),(\"SC\",0),(\"FD\",0),(\"PN\",0),(\"PU\",0),(\"PP\",0),"
            "(\"PC\",0)\r\n\r\nOK\r\n");
  bench_.modem.console("lock PS on");
  bench_.modem.console("lock SC on");
  bench_.modem.console("lock PN on");
  EXPECT_EQ(bench_.ask("AT+CLCK?"),
            withOk("+CLCK:(\"PS\",1),(\"SC\",1),(\"FD\",0),(\"PN\",1),(\"PU\",0),(\"PP\",0),"
                   "(\"PC\",0)"));
  EXPECT_EQ(bench_.ask("AT+CLCK=?"),
            withOk("+CLCK: (\"PS\",\"SC\",\"FD\",\"PN\",\"PU\",\"PP\",\"PC\",\"AO\",\"OI\",\"OX\","
                   "\"AI\",\"IR\",\"AB\",\"AG\",\"AC\")"));
}

struct LockRow {
  const char* name;
  const char* password;
  const char* wrong;
  const char* changed;
};

class Locks : public testing::TestWithParam<LockRow> {
 protected:
  Locks() { bench_.ask("AT+CMEE=1"); }

  std::string set(const char* mode, const char* password) {
    return bench_.ask(std::string("AT+CLCK=\"") + GetParam().name + "\"," + mode + "," + password);
  }

  std::string change(const char* old, const char* changed) {
    return bench_.ask(std::string("AT+CPWD=\"") + GetParam().name + "\"," + old + "," + changed);
  }

  std::string state() { return bench_.ask(std::string("AT+CLCK=\"") + GetParam().name + "\",2"); }

  Bench bench_;
};

TEST_P(Locks, TurnOnAndOffWithTheirPassword) {
  EXPECT_EQ(state(), withOk("+CLCK: 0"));
  EXPECT_EQ(set("1", GetParam().wrong), cmeError(16));
  EXPECT_EQ(state(), withOk("+CLCK: 0"));
  EXPECT_EQ(set("1", GetParam().password), kOk);
  EXPECT_EQ(state(), withOk("+CLCK: 1"));
  EXPECT_EQ(set("0", GetParam().wrong), cmeError(16));
  EXPECT_EQ(set("0", ""), cmeError(16));
  EXPECT_EQ(state(), withOk("+CLCK: 1"));
  EXPECT_EQ(set("0", GetParam().password), kOk);
  EXPECT_EQ(state(), withOk("+CLCK: 0"));
}

TEST_P(Locks, RefuseWhatTheyAreAlready) {
  EXPECT_EQ(set("0", GetParam().password), cmeError(3));
  set("1", GetParam().password);
  EXPECT_EQ(set("1", GetParam().password), cmeError(3));
  bench_.ask("AT+CMEE=0");
  EXPECT_EQ(set("1", GetParam().password), kError);
}

TEST_P(Locks, ChangeTheirPasswordWhileTheyAreOn) {
  EXPECT_EQ(change(GetParam().password, GetParam().changed), cmeError(3));
  set("1", GetParam().password);
  EXPECT_EQ(change(GetParam().wrong, GetParam().changed), cmeError(16));
  EXPECT_EQ(change(GetParam().password, "12x"), cmeError(16));
  EXPECT_EQ(change(GetParam().password, GetParam().changed), kOk);
  EXPECT_EQ(set("0", GetParam().password), cmeError(16));
  EXPECT_EQ(set("0", GetParam().changed), kOk);
}

TEST_P(Locks, TakeThePasswordInQuotesAsWell) {
  EXPECT_EQ(set("1", (std::string("\"") + GetParam().password + "\"").c_str()), kOk);
}

TEST_P(Locks, BearPasswordsThatAreNone) {
  for (const char* bad : {"a,b", "\"", "\"1,2\"", " ", "\"12\"34\"", "12;34"}) {
    EXPECT_NE(set("1", bad).find("ERROR"), std::string::npos) << bad;
  }
  EXPECT_EQ(state(), withOk("+CLCK: 0"));
}

INSTANTIATE_TEST_SUITE_P(All, Locks,
                         testing::Values(LockRow{"PS", "12345678", "12345679", "00000000"},
                                         LockRow{"PN", "87654321", "12345678", "00000000"},
                                         LockRow{"SC", "1234", "1235", "98765"}),
                         [](const auto& row) { return row.param.name; });

TEST_F(LockCommands, ThirdWrongPinBlocksTheCardWithTheNetwork) {
  bench_.ask("AT+CLCK=\"SC\",1,9999");
  bench_.ask("AT+CLCK=\"SC\",1,9998");
  EXPECT_EQ(bench_.ask("AT+CPIN?"), "\r\n+CPIN: READY\r\n");
  EXPECT_EQ(bench_.ask("AT+CLCK=\"SC\",1,9997"), cmeError(16));
  EXPECT_EQ(bench_.ask("AT+CPIN?"), "\r\n+CPIN: SIM PUK\r\n");
  EXPECT_EQ(bench_.ask("AT+CREG?"), withOk("+CREG: 0,0"));
  EXPECT_EQ(bench_.ask("AT+CLCK?"), cmeError(12));
  EXPECT_EQ(bench_.ask("AT+CPIN=12345678,4444"), kOk);
  EXPECT_EQ(bench_.ask("AT+CLCK=\"SC\",0,4444"), kOk);
}

TEST_F(LockCommands, RightPinGivesAllTriesBack) {
  bench_.ask("AT+CLCK=\"SC\",1,9999");
  bench_.ask("AT+CLCK=\"SC\",1,9998");
  bench_.ask("AT+CLCK=\"SC\",1,1234");
  EXPECT_NE(bench_.modem.console("state").find("ready, 3 PIN"), std::string::npos);
}

TEST_F(LockCommands, PinThatIsNoneCostsNoTry) {
  bench_.ask("AT+CLCK=\"SC\",1,99");
  bench_.ask("AT+CLCK=\"SC\",1,");
  EXPECT_NE(bench_.modem.console("state").find("ready, 3 PIN"), std::string::npos);
}

TEST_F(LockCommands, CardAsksForItsPinOnceItIsTurnedOn) {
  bench_.ask("AT+CLCK=\"SC\",1,1234");
  bench_.ask("AT+CPWD=\"SC\",1234,5678");
  bench_.modem.console("sim out");
  bench_.modem.console("sim in");
  bench_.listen();
  EXPECT_EQ(bench_.ask("AT+CPIN?"), "\r\n+CPIN: SIM PIN\r\n");
  EXPECT_EQ(bench_.ask("AT+CPIN=1234"), cmeError(16));
  EXPECT_EQ(bench_.ask("AT+CPIN=5678"), kOk);
  EXPECT_EQ(bench_.ask("AT+CLCK=\"SC\",0,5678"), kOk);
  bench_.modem.console("sim out");
  bench_.modem.console("sim in");
  bench_.listen();
  EXPECT_EQ(bench_.ask("AT+CPIN?"), "\r\n+CPIN: READY\r\n");
}

TEST_F(LockCommands, LocksThatCantBeUsedAreOffAndStaySo) {
  for (const char* name : {"FD", "PU", "PP", "PC"}) {
    const std::string command = std::string("AT+CLCK=\"") + name + "\",";
    EXPECT_EQ(bench_.ask(command + "2"), withOk("+CLCK: 0"));
    EXPECT_EQ(bench_.ask(command + "1,1234"), cmeError(3));
  }
}

TEST_F(LockCommands, BadOnesAreRefused) {
  const std::pair<const char*, std::string> kBad[] = {
      {"AT+CLCK=", kError},
      {"AT+CLCK=\"PS\"", kError},
      {"AT+CLCK=\"PS\",x", kError},
      {"AT+CLCK=\"AO\",1,0000,1,1", kError},
      {"AT+CLCK=\"AO\",1,0000,x", kError},
      {"AT+CLCK=\"XX\",2", cmeError(4)},
      {"AT+CLCK=\"PS\",3", cmeError(4)},
      {"AT+CLCK=\"AO\",1,0000,0", cmeError(4)},
      {"AT+CLCK=\"AB\",2", cmeError(4)},
      {"AT+CLCK=\"AG\",1,0000", cmeError(4)},
      {"AT+CPWD=", kError},
      {"AT+CPWD=\"PS\",1", kError},
      {"AT+CPWD=\"PS\",1,2,3", kError},
      {"AT+CPWD=\"P2\",1,2", cmeError(4)},
      {"AT+CLCK", kError},
      {"AT+CPWD?", kError},
  };
  for (const auto& [command, answer] : kBad) EXPECT_EQ(bench_.ask(command), answer) << command;
}

TEST_F(LockCommands, NothingIsKnownWithoutACard) {
  bench_.modem.console("sim out");
  bench_.listen();
  EXPECT_EQ(bench_.ask("AT+CLCK?"), cmeError(10));
  EXPECT_EQ(bench_.ask("AT+CLCK=\"PS\",2"), cmeError(10));
  EXPECT_EQ(bench_.ask("AT+CPWD=\"PS\",12345678,11112222"), cmeError(10));
}

TEST_F(LockCommands, BarringsAreOffFirst) {
  for (const char* name : {"AO", "OI", "OX", "AI", "IR"}) {
    EXPECT_EQ(bench_.askNetwork(std::string("AT+CLCK=\"") + name + "\",2"), withOk("+CLCK: 0,7"))
        << name;
  }
}

TEST_F(LockCommands, BarringTakesItsPasswordAndAClass) {
  EXPECT_EQ(bench_.write("AT+CLCK=\"AO\",1,0000,2\r"), "AT+CLCK=\"AO\",1,0000,2\r");
  EXPECT_EQ(bench_.listen(), kOk);
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",2"), withOk("+CLCK: 1,2"));
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",1,0000,1"), kOk);
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",2"), withOk("+CLCK: 1,1\r\n+CLCK: 1,2"));
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",1,0000,7"), kOk);
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",2"), withOk("+CLCK: 1,7"));
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",0,0000,4"), kOk);
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",2"), withOk("+CLCK: 1,1\r\n+CLCK: 1,2"));
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"OI\",2"), withOk("+CLCK: 0,7"));
}

TEST_F(LockCommands, GroupOfBarringsIsLiftedAsOne) {
  for (const char* name : {"AO", "OI", "AI"}) {
    bench_.askNetwork(std::string("AT+CLCK=\"") + name + "\",1,0000");
  }
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AG\",0,0000"), kOk);
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"OI\",2"), withOk("+CLCK: 0,7"));
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AI\",2"), withOk("+CLCK: 1,7"));
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AB\",0,0000"), kOk);
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AI\",2"), withOk("+CLCK: 0,7"));
}

TEST_F(LockCommands, ThirdWrongNetworkPasswordLocksIt) {
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",1,1,7"), cmeError(16));
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AI\",1,1234,7"), cmeError(16));
  EXPECT_EQ(bench_.askNetwork("AT+CPWD=\"OI\",1234,5555"), cmeError(16));
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",1,0000,7"), cmeError(3));
  EXPECT_EQ(bench_.askNetwork("AT+CPWD=\"AO\",0000,5555"), cmeError(3));
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",2"), withOk("+CLCK: 0,7"));
  EXPECT_EQ(bench_.modem.console("bar unlock"), "");
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",1,0000,7"), kOk);
}

TEST_F(LockCommands, RightNetworkPasswordGivesAllTriesBack) {
  for (int round = 0; round < 3; ++round) {
    EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",1,1111"), cmeError(16));
    EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",1,2222"), cmeError(16));
    EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"AO\",1,0000"), kOk);
  }
}

TEST_F(LockCommands, NetworkPasswordIsOneForAllBarringsAndHasFourDigits) {
  EXPECT_EQ(bench_.askNetwork("AT+CPWD=\"AO\",0000,123"), cmeError(16));
  EXPECT_EQ(bench_.askNetwork("AT+CPWD=\"AO\",0000,12a4"), cmeError(16));
  EXPECT_EQ(bench_.askNetwork("AT+CPWD=\"AO\",0000,5555"), kOk);
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"IR\",1,0000"), cmeError(16));
  EXPECT_EQ(bench_.askNetwork("AT+CLCK=\"IR\",1,5555"), kOk);
  EXPECT_EQ(bench_.ask("AT+CPWD=?"),
            withOk("+CPWD: (\"PS\",8),(\"SC\",8),(\"PN\",8),(\"AO\",4),(\"OI\",4),(\"OX\",4),"
                   "(\"AI\",4),(\"IR\",4),(\"AB\",4),(\"AG\",4),(\"AC\",4)"));
}

struct BarredCall {
  const char* bar;
  const char* number;
  bool barred;
};

TEST_F(LockCommands, BarredCallsFindNoCarrier) {
  constexpr BarredCall kCalls[] = {
      {"AO", "0123", true},         {"AO", "+33639981201", true}, {"OI", "0123", false},
      {"OI", "+33639981201", true}, {"OX", "0123", false},        {"OX", "+33639981201", false},
      {"OX", "+49301234561", true}, {"AI", "0123", false},        {"IR", "0123", false},
  };
  for (const auto& [bar, number, barred] : kCalls) {
    Bench bench;
    bench.modem.console(std::string("bar ") + bar + " 1");
    EXPECT_EQ(bench.ask(std::string("ATD") + number + ";", seconds(4)),
              barred ? "\r\nNO CARRIER\r\n" : kOk)
        << bar << " " << number;
  }
}

TEST_F(LockCommands, BarredCallersStayAway) {
  bench_.modem.console("bar IR 1");
  EXPECT_EQ(bench_.modem.console("ring 0123"), "");
  bench_.modem.console("giveup");
  bench_.modem.console("register 5");
  EXPECT_EQ(bench_.modem.console("ring 0123"), "error: incoming calls are barred");
  bench_.modem.console("register 1");
  bench_.modem.console("bar AI 2");
  EXPECT_EQ(bench_.modem.console("ring 0123"), "") << "data calls are";
  bench_.modem.console("giveup");
  bench_.modem.console("bar AI 1");
  EXPECT_EQ(bench_.modem.console("ring 0123"), "error: incoming calls are barred");
  EXPECT_EQ(bench_.modem.console("wait 0123"), "error: incoming calls are barred");
}

}  // namespace
}  // namespace gsm::simulator
