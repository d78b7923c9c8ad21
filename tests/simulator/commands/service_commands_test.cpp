#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

// Forwarding, waiting and closed user groups, in the words of a host.
namespace gsm::simulator {
namespace {

TEST(Forwardings, AreOffForAllOfTheUsualClassesFirst) {
  Bench bench;
  for (const char* reason : {"0", "1", "2", "3", "4", "5"}) {
    const std::string query = "AT+CCFC=" + std::string(reason) + ",2";
    EXPECT_EQ(bench.askNetwork(query), withOk("+CCFC: 0,7")) << reason;
  }
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,2,,,8"), withOk("+CCFC: 0,8"));
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,2,,,16"), withOk("+CCFC: 0,16"));
  EXPECT_EQ(bench.ask("AT+CCFC=?"), withOk("+CCFC: (0-5)"));
}

TEST(Forwardings, AnswerComesOnceTheNetworkHasThoughtAboutIt) {
  Bench bench;
  EXPECT_EQ(bench.write("AT+CCFC=0,2\r", milliseconds(1500)), "AT+CCFC=0,2\r");
  EXPECT_EQ(bench.listen(milliseconds(200)), withOk("+CCFC: 0,7"));
}

TEST(Forwardings, OfAllClassesToOneNumberMakeOneLine) {
  Bench bench;
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,3,\"+33639981201\",7"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,2"), withOk("+CCFC: 1,7,\"+33639981201\",145"));
  EXPECT_EQ(bench.askNetwork("AT+CCFC=1,2"), withOk("+CCFC: 0,7")) << "another reason";
}

TEST(Forwardings, OfOneClassMakeItsLineAlone) {
  Bench bench;
  EXPECT_EQ(bench.askNetwork("AT+CCFC=1,3,\"0146290800\",2"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCFC=1,2"), withOk("+CCFC: 1,2,\"0146290800\",129"));
  EXPECT_EQ(bench.askNetwork("AT+CCFC=1,2,,,1"), withOk("+CCFC: 0,1"));
}

TEST(Forwardings, ThatDifferMakeALineEach) {
  Bench bench;
  bench.askNetwork("AT+CCFC=2,3,\"0146290800\",1");
  bench.askNetwork("AT+CCFC=2,3,\"0146290802\",2");
  bench.askNetwork("AT+CCFC=2,3,\"0146290804\",4");
  EXPECT_EQ(bench.askNetwork("AT+CCFC=2,2"), withOk("+CCFC: 1,1,\"0146290800\",129\r\n"
                                                    "+CCFC: 1,2,\"0146290802\",129\r\n"
                                                    "+CCFC: 1,4,\"0146290804\",129"));
}

TEST(Forwardings, EraseWithoutAClassErasesAll) {
  Bench bench;
  bench.askNetwork("AT+CCFC=3,3,\"1\",7");
  bench.askNetwork("AT+CCFC=3,3,\"1\",8");
  EXPECT_EQ(bench.askNetwork("AT+CCFC=3,2,,,8"), withOk("+CCFC: 1,8,\"1\",129"));
  EXPECT_EQ(bench.askNetwork("AT+CCFC=3,4"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCFC=3,2,,,15"), withOk("+CCFC: 0,15"));
}

TEST(Forwardings, TakeATypeAndAClassInTheirPlaces) {
  Bench bench;
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,3,\"33639981201\",145,1"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,2,,,1"), withOk("+CCFC: 1,1,\"+33639981201\",145"));
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,3,\"0123\",129,2,,,20"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,2,,,2"), withOk("+CCFC: 1,2,\"0123\",129"));
}

TEST(Forwardings, AreSwitchedOffAndOnWithTheirNumberKept) {
  Bench bench;
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,1"), kError) << "there is no number";
  bench.askNetwork("AT+CCFC=0,3,\"0123\",7");
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,0"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,2"), withOk("+CCFC: 0,7"));
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,1"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,2"), withOk("+CCFC: 1,7,\"0123\",129"));
}

TEST(Forwardings, ReasonsThatStandForSeveralChangeThoseAndSayWhatTheyAgreeOn) {
  Bench bench;
  bench.askNetwork("AT+CCFC=5,3,\"0123\",7");
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,2"), withOk("+CCFC: 0,7"));
  for (const char* query : {"AT+CCFC=1,2", "AT+CCFC=2,2", "AT+CCFC=3,2", "AT+CCFC=5,2"}) {
    EXPECT_EQ(bench.askNetwork(query), withOk("+CCFC: 1,7,\"0123\",129")) << query;
  }
  EXPECT_EQ(bench.askNetwork("AT+CCFC=4,2"), withOk("+CCFC: 0,7"));
  bench.askNetwork("AT+CCFC=0,3,\"0123\",7");
  EXPECT_EQ(bench.askNetwork("AT+CCFC=4,2"), withOk("+CCFC: 1,7,\"0123\",129"));
  bench.askNetwork("AT+CCFC=2,3,\"0124\",7");
  EXPECT_EQ(bench.askNetwork("AT+CCFC=5,2"), withOk("+CCFC: 0,7"));
  bench.askNetwork("AT+CCFC=4,4");
  EXPECT_EQ(bench.askNetwork("AT+CCFC=2,2"), withOk("+CCFC: 0,7"));
}

TEST(Forwardings, BadOnesAreRefusedAtOnce) {
  Bench bench;
  bench.ask("AT+CMEE=1");
  const std::pair<const char*, std::string> kBad[] = {
      {"AT+CCFC=", kError},
      {"AT+CCFC=0", kError},
      {"AT+CCFC=,3,\"0123\",7", kError},
      {"AT+CCFC=x,2", kError},
      {"AT+CCFC=0,2,,,1,,,20,1", kError},
      {"AT+CCFC=0,3,\"1\",129,x", kError},
      {"AT+CCFC=6,2", cmeError(4)},
      {"AT+CCFC=0,5", cmeError(4)},
      {"AT+CCFC=0,3,\"0123\",0", cmeError(4)},
      {"AT+CCFC=0,3,\"0123\",129,256", cmeError(4)},
      {"AT+CCFC=0,3,\"\",7", cmeError(27)},
      {"AT+CCFC=0,3,\"12a\",7", cmeError(27)},
      {"AT+CCFC=0,3,\"123456789012345678901\",7", cmeError(26)},
  };
  for (const auto& [command, answer] : kBad) EXPECT_EQ(bench.ask(command), answer) << command;
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,2"), withOk("+CCFC: 0,7"));
}

TEST(Forwardings, KeepCallersAway) {
  Bench bench;
  bench.askNetwork("AT+CCFC=0,3,\"0123\",1");
  EXPECT_EQ(bench.modem.console("ring 0146290800"), "error: calls are forwarded to 0123");
  bench.askNetwork("AT+CCFC=0,4");
  EXPECT_EQ(bench.modem.console("ring 0146290800"), "");
}

struct NetworkCommand {
  const char* command;
};

class NetworkCommands : public testing::TestWithParam<NetworkCommand> {};

TEST_P(NetworkCommands, NeedACardAndService) {
  Bench locked({.sim = SimStatus::kPinWanted});
  locked.ask("AT+CMEE=1");
  EXPECT_EQ(locked.ask(GetParam().command), cmeError(11));
  Bench lost;
  lost.ask("AT+CMEE=1");
  lost.modem.console("register 2");
  EXPECT_EQ(lost.ask(GetParam().command), cmeError(30));
}

INSTANTIATE_TEST_SUITE_P(All, NetworkCommands,
                         testing::Values(NetworkCommand{"AT+CCFC=0,2"},
                                         NetworkCommand{"AT+CCWA=1,2"},
                                         NetworkCommand{"AT+CLCK=\"AO\",2"},
                                         NetworkCommand{"AT+CPWD=\"AO\",0000,1111"}));

TEST(Services, CommandsAfterOneThatTakesItsTimeWaitForIt) {
  Bench bench;
  EXPECT_EQ(bench.write("AT+CSQ;+CCFC=0,2;+CCWA=,2;+CMGF?\r"),
            "AT+CSQ;+CCFC=0,2;+CCWA=,2;+CMGF?\r\r\n+CSQ: 17,0\r\n");
  EXPECT_EQ(bench.listen(seconds(3)),
            "\r\n+CCFC: 0,7\r\n\r\n+CCWA: 1,1\r\n\r\n+CMGF: 0\r\n\r\nOK\r\n");
}

TEST(Services, FailureAtTheNetworkEndsTheLine) {
  Bench bench;
  EXPECT_EQ(bench.askNetwork("AT+CCFC=0,1;+CMGF=1"), kError);
  EXPECT_EQ(bench.ask("AT+CMGF?"), withOk("+CMGF: 0"));
}

TEST(Waiting, SaysWhatTheNetworkDoes) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CCWA?"), withOk("+CCWA: 0"));
  EXPECT_EQ(bench.ask("AT+CCWA=?"), withOk("+CCWA: (0,1)"));
  EXPECT_EQ(bench.askNetwork("AT+CCWA=1,2"), withOk("+CCWA: 1,1"));
  EXPECT_EQ(bench.ask("AT+CCWA?"), withOk("+CCWA: 1"));
  EXPECT_EQ(bench.askNetwork("AT+CCWA=1,0,7"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCWA=1,2"), withOk("+CCWA: 0,7"));
  EXPECT_EQ(bench.askNetwork("AT+CCWA=1,1,1"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCWA=,2"), withOk("+CCWA: 1,1"));
  EXPECT_EQ(bench.ask("AT+CCWA=0"), kOk);
  EXPECT_EQ(bench.ask("AT+CCWA?"), withOk("+CCWA: 0"));
}

TEST(Waiting, HasItsStateForEachClass) {
  Bench bench;
  EXPECT_EQ(bench.askNetwork("AT+CCWA=1,2,4"), withOk("+CCWA: 0,4"));
  EXPECT_EQ(bench.askNetwork("AT+CCWA=1,1,4"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCWA=1,2"), withOk("+CCWA: 1,1\r\n+CCWA: 1,4"));
  EXPECT_EQ(bench.askNetwork("AT+CCWA=1,1,2"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCWA=1,2"), withOk("+CCWA: 1,7"));
  EXPECT_EQ(bench.askNetwork("AT+CCWA=1,1,15"), kOk);
  EXPECT_EQ(bench.askNetwork("AT+CCWA=1,2,15"), withOk("+CCWA: 1,15"));
}

TEST(Waiting, BadOnesChangeNothing) {
  Bench bench;
  for (const char* bad : {"AT+CCWA=", "AT+CCWA=x", "AT+CCWA=2", "AT+CCWA=1,3", "AT+CCWA=1,x",
                          "AT+CCWA=1,0,0", "AT+CCWA=1,0,256", "AT+CCWA=1,0,x", "AT+CCWA=1,0,1,1"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench.ask("AT+CCWA?"), withOk("+CCWA: 0"));
  EXPECT_EQ(bench.askNetwork("AT+CCWA=0,2"), withOk("+CCWA: 1,1"));
}

TEST(Waiting, NoticesNeedNoCard) {
  Bench bench({.sim = SimStatus::kPinWanted});
  EXPECT_EQ(bench.ask("AT+CCWA=1,2"), kError);
  EXPECT_EQ(bench.ask("AT+CCWA?"), withOk("+CCWA: 0")) << "a refusal changes nothing";
  EXPECT_EQ(bench.ask("AT+CCWA=1"), kOk);
  EXPECT_EQ(bench.ask("AT+CCWA?"), withOk("+CCWA: 1"));
}

TEST(ClosedUserGroup, HoldsItsThreeNumbers) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CCUG?"), withOk("+CCUG: 0,0,0"));
  EXPECT_EQ(bench.ask("AT+CCUG=?"), withOk("+CCUG: (0,1),(0-10),(0-3)"));
  EXPECT_EQ(bench.ask("AT+CCUG=1,10,3"), kOk);
  EXPECT_EQ(bench.ask("AT+CCUG?"), withOk("+CCUG: 1,10,3"));
}

TEST(ClosedUserGroup, KeepsTheIndexThatIsLeftOut) {
  Bench bench;
  bench.ask("AT+CCUG=1,4,3");
  EXPECT_EQ(bench.ask("AT+CCUG=1,,0"), kOk);
  EXPECT_EQ(bench.ask("AT+CCUG?"), withOk("+CCUG: 1,4,0"));
  EXPECT_EQ(bench.ask("AT+CCUG=,,"), kOk);
}

TEST(ClosedUserGroup, RefusesWhatItDoesntHave) {
  Bench bench;
  for (const char* bad :
       {"AT+CCUG=2,0,0", "AT+CCUG=1,11,0", "AT+CCUG=1,0,4", "AT+CCUG=x", "AT+CCUG=", "AT+CCUG"}) {
    EXPECT_EQ(bench.ask(bad), kError) << bad;
  }
  EXPECT_EQ(bench.ask("AT+CCUG?"), withOk("+CCUG: 0,0,0"));
}

}  // namespace
}  // namespace gsm::simulator
