// The run as a whole: start, time, settling, state, the end.

#include "panel/form1.h"
#include "tests/driver/driver_fixture.h"

namespace gsm::driver {
namespace {

class RunRequests : public DriverTest {};

TEST_F(RunRequests, StartingAnswersOkAndNothingHappensBeforeTimePasses) {
  EXPECT_EQ(answerTo(startRequest().dump()), R"({"ok":true})");
  EXPECT_EQ(answerTo(R"({"op":"state"})"),
            R"({"ok":true,"at":0.0,"waiting":0,"ended":false,"loaded":[],"shown":[],"refused":0,)"
            R"("port":{"open":false,"number":1,"settings":"9600,n,8,1","handshaking":0},)"
            R"("settings_store":{}})");
  EXPECT_EQ(answerTo(R"({"op":"run","seconds":0})"),
            R"({"ok":true,"at":0.0,"waiting":0,"ended":false})");
  EXPECT_EQ(state()["loaded"], Json::array({"Form1"}));
  EXPECT_EQ(state()["shown"], Json::array({"Form1"}));
}

TEST_F(RunRequests, TheModemMayBeNowhereOrLeftOut) {
  Json request = startRequest();
  request["modem"] = nullptr;
  tell(request);
}

TEST_F(RunRequests, TheModemMayBeLeftOutOfTheStart) {
  Json request = startRequest();
  request.erase("modem");
  tell(request);
}

TEST_F(RunRequests, AModemMayBePluggedInNowhereAtTheStart) {
  Json request = startRequest();
  request["modem"] = {{"port", nullptr}, {"speed", 115200}};
  tell(request);
}

TEST_F(RunRequests, TheStartsTimeIsTheWallClocks) {
  Json request = startRequest();
  request["now"] = "2024-02-29 23:59:58";
  tell(request);
  run(1);
  EXPECT_EQ(get("Form1.Label9.Caption"), "System Started  29/02/2024,23:59:58");
  EXPECT_EQ(get("Form1.Label4.Caption"), "23:59:59");
  run(1);
  EXPECT_EQ(get("Form1.Label4.Caption"), "00:00:00");
}

TEST_F(RunRequests, TheProgramIsStartedOnce) {
  start();
  run(3);
  EXPECT_TRUE(isRefused(startRequest().dump()));
  EXPECT_EQ(state()["at"], 3.0);
}

TEST_F(RunRequests, AStartThatIsRefusedMayBeTriedAgain) {
  Json bad = startRequest();
  bad["now"] = "soon";
  EXPECT_TRUE(isRefused(bad.dump()));
  EXPECT_TRUE(isRefused(R"({"op":"run","seconds":1})"));
  start();
  run(1);
}

TEST_F(RunRequests, WhatNeedsAProgramIsRefusedBeforeTheStart) {
  for (const char* line :
       {R"({"op":"run","seconds":1})", R"({"op":"settle"})", R"({"op":"state"})",
        R"({"op":"sent"})", R"({"op":"shown"})", R"({"op":"get","property":"Form1.Caption"})",
        R"({"op":"receive","text":"x"})", R"({"op":"click","control":"Form1.Command8"})",
        R"({"op":"close","window":"Form1"})", R"({"op":"modem","port":3})",
        R"({"op":"ports","ports":[]})", R"({"op":"answer"})", R"({"op":"event","value":3})"}) {
    EXPECT_TRUE(isRefused(line));
  }
}

TEST_F(RunRequests, TheModemsRepliesMayComeBeforeTheStart) {
  layComFile("9600,N,8,1 3\r\n");
  tell({{"op", "otherwise"}, {"text", "first"}});
  tell({{"op", "forget"}});
  tell({{"op", "reply"}, {"starting", "AT+CGSN"}, {"text", "forgotten by none"}});
  tell({{"op", "reply"}, {"write", "AT+CGSN\r"}, {"text", "\r\n012345678901234\r\n\r\nOK\r\n"}});
  tell({{"op", "otherwise"}, {"text", "\r\nwhat?\r\n"}});
  start();
  EXPECT_EQ(sent(), Texts());
  settle();
  EXPECT_EQ(get("Form2.Label3.Caption"), "012345678901234");
  EXPECT_EQ(sent(), (Texts{"AT+CGSN\r", "AT\r"}));
  receive("x");
  run(3);
  EXPECT_EQ(transcript(), "x");
  click("Form1.Label8");
  run(1);
  EXPECT_EQ(transcript(), "xAT\r\r\nwhat?\r\n");
}

TEST_F(RunRequests, ForgettingBeforeTheStartDropsWhatCameBeforeIt) {
  layComFile("9600,N,8,1 3\r\n");
  tell({{"op", "reply"}, {"write", "AT+CGSN\r"}, {"text", "\r\n012345678901234\r\n\r\nOK\r\n"}});
  tell({{"op", "otherwise"}, {"text", "OK"}});
  tell({{"op", "forget"}});
  start();
  run(1);
  EXPECT_EQ(transcript(), "");
}

TEST_F(RunRequests, HowBoxesGoMayBeSaidBeforeTheStart) {
  layComFile("\r\n");
  tell({{"op", "boxes"}, {"answer", "hold"}});
  Json request = startRequest();
  request["ports"] = Json::array();
  tell(request);
  run(5);
  EXPECT_EQ(shown(), Texts{"No Comm Ports Present"});
  EXPECT_EQ(state()["waiting"], 1);
  tell({{"op", "answer"}});
  settle();
  EXPECT_EQ(state()["waiting"], 0);
}

TEST_F(RunRequests, WhatIsRefusedBeforeTheStartPreparesNothing) {
  layComFile("9600,N,8,1 3\r\n");
  for (const char* line : {R"({"op":"boxes","answer":"later"})", R"({"op":"boxes"})",
                           R"({"op":"reply","write":"AT+CGSN\r"})", R"({"op":"reply","text":"OK"})",
                           R"({"op":"reply","starting":"AT","texts":[]})", R"({"op":"otherwise"})",
                           R"({"op":"otherwise","text":"OK","after":-1})"}) {
    EXPECT_TRUE(isRefused(line));
  }
  EXPECT_TRUE(isRefused(R"({"op":"start"})"));
  start();
  run(1);
  EXPECT_EQ(transcript(), "");
}

TEST_F(RunRequests, WhatIsPreparedOutlivesAStartThatIsRefused) {
  layComFile("9600,N,8,1 3\r\n");
  tell({{"op", "otherwise"}, {"text", "\r\nwhat?\r\n"}});
  Json bad = startRequest();
  bad["now"] = "soon";
  EXPECT_TRUE(isRefused(bad.dump()));
  start();
  run(1);
  EXPECT_EQ(transcript(), "AT+CGSN\r\r\nwhat?\r\n");
}

TEST_F(RunRequests, ARunTakesExactlyItsTime) {
  start();
  EXPECT_EQ(answerTo(R"({"op":"run","seconds":12.5})"),
            R"({"ok":true,"at":12.5,"waiting":0,"ended":false})");
  EXPECT_EQ(answerTo(R"({"op":"run","seconds":86400})"),
            R"({"ok":true,"at":86412.5,"waiting":0,"ended":false})");
}

TEST_F(RunRequests, ARunEndsThoughHandlersWaitAndTheNextGoesOn) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  // The load waits for the modem's answer, and the send event's handler on top of it.
  EXPECT_EQ(answerTo(R"({"op":"run","seconds":0.5})"),
            R"({"ok":true,"at":0.5,"waiting":2,"ended":false})");
  EXPECT_EQ(state()["waiting"], 2);
  tell({{"op", "receive"}, {"text", "OK"}});
  EXPECT_EQ(run(0)["waiting"], 3);
}

TEST_F(RunRequests, SettlingEndsWithTheLastThatIsQueued) {
  start();
  EXPECT_EQ(answerTo(R"({"op":"settle"})"), R"({"ok":true,"at":0.0,"waiting":0,"ended":false})");
  tell({{"op", "receive"}, {"text", "x"}, {"after", 7.5}});
  EXPECT_EQ(settle()["at"], 7.5);
}

TEST_F(RunRequests, SettlingWaitsForHandlers) {
  startWithOpenPort();
  const double begin = state()["at"];
  receive("unclaimed", 1);
  EXPECT_EQ(settle()["at"], begin + 3);
  EXPECT_EQ(state()["waiting"], 0);
}

TEST_F(RunRequests, SettlingEndsAtItsLimit) {
  start();
  receive("x", 50);
  EXPECT_EQ(answerTo(R"({"op":"settle","limit":20})"),
            R"({"ok":true,"at":20.0,"waiting":0,"ended":false})");
  receive("x", 10'000);
  EXPECT_EQ(settle()["at"], 620.0);
}

TEST_F(RunRequests, TheStateReportsThePortAndTheWindows) {
  startWithOpenPort();
  const Json now = state();
  EXPECT_EQ(now["port"].dump(),
            R"({"open":true,"number":3,"settings":"9600,N,8,1","handshaking":0})");
  std::vector<std::string> names;
  for (const auto& [name, value] : now.items()) names.push_back(name);
  EXPECT_EQ(names, Texts({"ok", "at", "waiting", "ended", "loaded", "shown", "refused", "port",
                          "settings_store"}));
  EXPECT_NE(std::find(now["shown"].begin(), now["shown"].end(), "Form7"), now["shown"].end());
}

TEST_F(RunRequests, ClosingTheMainWindowEndsTheProgram) {
  start();
  run(1);
  tell({{"op", "close"}, {"window", "Form1"}, {"after", 2}});
  EXPECT_EQ(answerTo(R"({"op":"run","seconds":10})"),
            R"({"ok":true,"at":3.0,"waiting":0,"ended":true})");
}

TEST_F(RunRequests, AfterTheEndEverythingAnswersAsItStoodAndNothingMoves) {
  startWithOpenPort();
  tell({{"op", "close"}, {"window", "Form1"}});
  settle();
  const Json end = state();
  EXPECT_EQ(end["ended"], true);
  EXPECT_EQ(end["port"]["open"], false);
  EXPECT_EQ(sent(), Texts({"AT&W\r"}));
  EXPECT_EQ(get("Form1.Label2.Caption"), "Port 3");
  EXPECT_EQ(get("Form7.Visible"), false);

  click("Form1.Label8");
  receive("RING");
  tell({{"op", "event"}, {"value", 3}});
  EXPECT_EQ(run(100).dump(),
            (Json{{"ok", true}, {"at", end["at"]}, {"waiting", 0}, {"ended", true}}.dump()));
  settle();
  EXPECT_EQ(state().dump(), end.dump());
  EXPECT_EQ(sent(), Texts());
  EXPECT_TRUE(isRefused(startRequest().dump()));
}

TEST_F(RunRequests, AFailureThatNothingTrapsIsShownAndEndsTheProgram) {
  layComFile("9600,N,8,1 3\r\n");
  Json request = startRequest();
  request["now"] = "2026-03-01 23:59:40";
  tell(request);
  tell({{"op", "reply"}, {"write", "AT+CGSN\r"}, {"text", "\r\nOK\r\n"}});
  run(19.5);
  ASSERT_EQ(state()["waiting"], 0);
  tell({{"op", "close"}, {"window", "Form1"}});  // waits a second, in which midnight passes
  EXPECT_EQ(run(5).dump(), R"({"ok":true,"at":20.0,"waiting":0,"ended":true})");
  EXPECT_EQ(answerTo(R"({"op":"shown"})"),
            R"({"ok":true,"boxes":[{"at":20.0,"text":"Overflow","title":"GSM-APPLICATION",)"
            R"("icon":"none"}]})");
}

}  // namespace
}  // namespace gsm::driver
