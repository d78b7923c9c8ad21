// What the user does, and what the user can't.

#include "audio/form6.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/driver/driver_fixture.h"

namespace gsm::driver {
namespace {

class UserRequests : public DriverTest {
 protected:
  void SetUp() override {
    start();
    run(0);
  }

  /// How many of the user's doings have been refused so far.
  int refused() { return state()["refused"]; }
};

TEST_F(UserRequests, EveryDoingIsAnsweredOkAndTakesPlaceDuringTheNextRun) {
  for (const char* line :
       {R"({"op":"click","control":"Form1.Label8"})",
        R"({"op":"type","control":"Form1.Text2","text":"1"})",
        R"({"op":"erase","control":"Form1.Text2"})",
        R"({"op":"select","control":"Form1.List1","index":0})",
        R"({"op":"move","control":"Form6.Slider1","value":1})",
        R"({"op":"minimise","window":"Form1"})", R"({"op":"restore","window":"Form1"})",
        R"({"op":"maximise","window":"Form1"})", R"({"op":"close","window":"Form7"})",
        R"({"op":"answer"})", R"({"op":"boxes","answer":"auto"})"}) {
    EXPECT_EQ(answerTo(line), R"({"ok":true})") << line;
  }
  EXPECT_EQ(get("Form1.WindowState"), 0);
  EXPECT_EQ(get("Form1.Text2.Text"), "0");
  EXPECT_EQ(refused(), 0);
  run(0);
  EXPECT_EQ(get("Form1.WindowState"), 2);
  EXPECT_EQ(get("Form1.Text2.Text"), "");
  EXPECT_EQ(get("Form1.List1.ListIndex"), 0);
}

TEST_F(UserRequests, AClickRunsItsHandler) {
  click("Form1.Label8");
  EXPECT_EQ(state()["shown"], Json::array({"Form1"}));
  run(0);
  EXPECT_EQ(get("Form7.Visible"), true);
  EXPECT_EQ(refused(), 0);
}

TEST_F(UserRequests, ADoingMayComeLater) {
  tell({{"op", "type"}, {"control", "Form1.Text2"}, {"text", "x"}, {"after", 1.5}});
  run(1.25);
  EXPECT_EQ(get("Form1.Text2.Text"), "0");
  run(0.25);
  EXPECT_EQ(get("Form1.Text2.Text"), "0x");
}

TEST_F(UserRequests, DoingsRunInTheOrderOfTheirTimesThenOfTheirQueueing) {
  const auto type = [this](const char* text, double after) {
    tell({{"op", "type"}, {"control", "Form1.Text2"}, {"text", text}, {"after", after}});
  };
  type("d", 2);
  type("a", 1);
  type("b", 1);
  type("e", 2);
  type("c", 1.5);
  run(3);
  EXPECT_EQ(get("Form1.Text2.Text"), "0abcde");
}

TEST_F(UserRequests, AnAfterCountsFromThePresentTime) {
  run(10);
  tell({{"op", "type"}, {"control", "Form1.Text2"}, {"text", "x"}, {"after", 1}});
  run(0.5);
  tell({{"op", "type"}, {"control", "Form1.Text2"}, {"text", "y"}});
  run(0.5);
  EXPECT_EQ(get("Form1.Text2.Text"), "0yx");
}

TEST_F(UserRequests, TypingGoesKeyByKeyAndTheBackspaceKeyTakesOneAway) {
  tell({{"op", "type"}, {"control", "Form1.Text2"}, {"text", "12\b3\b\b\b\b4"}});
  run(0);
  EXPECT_EQ(get("Form1.Text2.Text"), "4");
}

TEST_F(UserRequests, TypingIsOfTheCodePage) {
  tell({{"op", "type"}, {"control", "Form1.Text2"}, {"text", "\u20AC\u00E4\u0416"}});
  run(0);
  EXPECT_EQ(get("Form1.Text2.Text"), "0\u20AC\u00E4?");
}

TEST_F(UserRequests, AnEditableComboTakesTypingAndErasing) {
  tell({{"op", "type"}, {"control", "Form1.Combo1"}, {"text", "12"}});
  run(0);
  EXPECT_EQ(get("Form1.Combo1.Text"), "12");
  EXPECT_EQ(get("Form1.Combo1.ListIndex"), -1);
  tell({{"op", "erase"}, {"control", "Form1.Combo1"}});
  run(0);
  EXPECT_EQ(get("Form1.Combo1.Text"), "");
  EXPECT_EQ(refused(), 0);
}

TEST_F(UserRequests, WindowStatesChange) {
  const struct {
    const char* op;
    int state;
  } rows[] = {{"minimise", 1}, {"maximise", 2}, {"restore", 0}};
  for (const auto& [op, windowState] : rows) {
    tell({{"op", op}, {"window", "Form1"}});
    run(0);
    EXPECT_EQ(get("Form1.WindowState"), windowState);
  }
}

TEST_F(UserRequests, WhatIsOutOfReachIsNotDoneButCounted) {
  const struct {
    const char* why;
    Json request;
  } rows[] = {
      {"a disabled button", {{"op", "click"}, {"control", "Form1.Command2"}}},
      {"a window that isn't loaded", {{"op", "move"}, {"control", "Form6.Slider1"}, {"value", 1}}},
      {"a window that isn't loaded", {{"op", "click"}, {"control", "Form6.Option1"}}},
      {"a window that isn't loaded", {{"op", "click"}, {"control", "Form7.Image1"}}},
      {"a window that isn't loaded", {{"op", "close"}, {"window", "Form7"}}},
      {"a window that isn't loaded", {{"op", "minimise"}, {"window", "Form7"}}},
      {"an item that isn't there", {{"op", "select"}, {"control", "Form1.List1"}, {"index", 1000}}},
      {"an item that isn't there", {{"op", "select"}, {"control", "Form1.List1"}, {"index", -1}}},
      {"an item that isn't there", {{"op", "select"}, {"control", "Form1.Combo1"}, {"index", 0}}},
      {"no box is up", {{"op", "answer"}}},
  };
  int count = 0;
  for (const auto& [why, request] : rows) {
    SCOPED_TRACE(why);
    tell(request);
    EXPECT_EQ(refused(), count) << "counted before its time";
    run(0);
    EXPECT_EQ(refused(), ++count) << request.dump();
  }
  EXPECT_EQ(state()["loaded"], Json::array({"Form1"}));
}

TEST_F(UserRequests, AMessageBoxHoldsTheWindowsUntilItIsAnswered) {
  // Without any port and with an empty line saved, the start-up says so.
  Session session;
  layComFile("\r\n");
  const auto ask = [&](const Json& request) { return Json::parse(session.answer(request.dump())); };
  Json request = startRequest();
  request["ports"] = Json::array();
  ask(request);
  ask({{"op", "boxes"}, {"answer", "hold"}});
  EXPECT_EQ(ask({{"op", "run"}, {"seconds", 5}})["waiting"], 1);
  EXPECT_EQ(session.answer(R"({"op":"shown"})"),
            R"({"ok":true,"boxes":[{"at":0.0,"text":"No Comm Ports Present","title":"GSM",)"
            R"("icon":"none"}]})");
  EXPECT_EQ(session.answer(R"({"op":"shown"})"), R"({"ok":true,"boxes":[]})");

  ask({{"op", "click"}, {"control", "Form1.Label8"}});
  ask({{"op", "close"}, {"window", "Form1"}});
  ask({{"op", "minimise"}, {"window", "Form1"}});
  ask({{"op", "run"}, {"seconds", 1}});
  EXPECT_EQ(ask({{"op", "state"}})["refused"], 3);
  EXPECT_EQ(ask({{"op", "state"}})["ended"], false);

  ask({{"op", "answer"}, {"after", 2}});
  EXPECT_EQ(ask({{"op", "run"}, {"seconds", 1.5}})["waiting"], 1);
  EXPECT_EQ(ask({{"op", "run"}, {"seconds", 0.5}})["waiting"], 0);
  ask({{"op", "click"}, {"control", "Form1.Label8"}});
  ask({{"op", "run"}, {"seconds", 0}});
  EXPECT_EQ(ask({{"op", "state"}})["refused"], 3);
}

TEST_F(UserRequests, OnlyWhatFitsAControlsKindIsAccepted) {
  for (const char* line :
       {R"({"op":"click","control":"Form1.Text2"})", R"({"op":"click","control":"Form1.Frame5"})",
        R"({"op":"click","control":"Form1.Timer1"})", R"({"op":"click","control":"Form1.List1"})",
        R"({"op":"type","control":"Form1.Label8","text":"x"})",
        R"({"op":"type","control":"Form1.List1","text":"x"})",
        R"({"op":"erase","control":"Form1.Command7"})",
        R"({"op":"select","control":"Form1.Text2","index":0})",
        R"({"op":"tab","control":"Form1.Label8","index":1})",
        R"({"op":"move","control":"Form1.Label8","value":1})"}) {
    EXPECT_TRUE(isRefused(line));
  }
  run(0);
  EXPECT_EQ(refused(), 0);
}

}  // namespace
}  // namespace gsm::driver
