// What the modem does, and where it is plugged in. "<<Signal>>" writes "AT" to the port, so it is
// the way to a write here; no text below holds a word that anything routes.

#include "panel/form1.h"
#include "tests/driver/driver_fixture.h"

namespace gsm::driver {
namespace {

class ModemRequests : public DriverTest {
 protected:
  void SetUp() override { startWithOpenPort(); }

  /// What the transcript gains when "AT" has been written, `seconds` later.
  std::string gainedBy(double seconds) {
    settle();
    const std::string before = transcript();
    click("Form1.Label8");
    run(seconds);
    return transcript().substr(before.size());
  }
};

TEST_F(ModemRequests, AReplyIsTheEchoAndTheTextAfterATwentiethOfASecond) {
  EXPECT_EQ(answerTo(R"({"op":"reply","write":"AT\r","text":"one"})"), R"({"ok":true})");
  EXPECT_EQ(gainedBy(0.049), "");
  EXPECT_EQ(gainedBy(0.051), "AT\rone");
}

TEST_F(ModemRequests, AReplyMayComeLaterAndWithoutEcho) {
  tell({{"op", "reply"}, {"write", "AT\r"}, {"text", "one"}, {"after", 0.5}, {"echo", false}});
  EXPECT_EQ(gainedBy(0.499), "");
  EXPECT_EQ(gainedBy(0.5), "one");
}

TEST_F(ModemRequests, AReplyMayFitABeginning) {
  tell({{"op", "reply"}, {"starting", "A"}, {"text", "one"}});
  EXPECT_EQ(gainedBy(1), "AT\rone");
}

TEST_F(ModemRequests, AWholeWriteIsWithItsCarriageReturn) {
  tell({{"op", "reply"}, {"write", "AT"}, {"text", "one"}});
  EXPECT_EQ(gainedBy(1), "");
}

TEST_F(ModemRequests, OfSeveralRepliesTheNewestCounts) {
  tell({{"op", "reply"}, {"write", "AT\r"}, {"text", "old"}});
  tell({{"op", "reply"}, {"starting", "AT"}, {"text", "new"}});
  EXPECT_EQ(gainedBy(1), "AT\rnew");
}

TEST_F(ModemRequests, TextsAreUsedInTurnTheLastForEver) {
  tell({{"op", "reply"}, {"write", "AT\r"}, {"texts", {"1", "2"}}, {"echo", false}});
  EXPECT_EQ(gainedBy(1), "1");
  EXPECT_EQ(gainedBy(1), "2");
  EXPECT_EQ(gainedBy(1), "2");
}

TEST_F(ModemRequests, ChunksComeAtTheirOwnTimesTheEchoBeforeTheFirst) {
  tell({{"op", "reply"},
        {"write", "AT\r"},
        {"chunks", Json::array({Json::array({0.1, "a"}), Json::array({0.3, "b"})})}});
  click("Form1.Label8");
  run(0.2);
  EXPECT_EQ(transcript(), "AT\ra");
  run(0.2);
  EXPECT_EQ(transcript(), "AT\rab");
}

TEST_F(ModemRequests, EveryChunkStartsAHandlerOfItsOwn) {
  receive("a");
  receive("b");
  receive("cd");
  EXPECT_EQ(run(0)["waiting"], 3);
}

TEST_F(ModemRequests, OtherwiseAnswersWhatNoReplyFits) {
  EXPECT_EQ(answerTo(R"({"op":"otherwise","text":"what?","after":0.2,"echo":false})"),
            R"({"ok":true})");
  EXPECT_EQ(gainedBy(0.199), "");
  EXPECT_EQ(gainedBy(0.3), "what?");
  tell({{"op", "reply"}, {"write", "AT\r"}, {"text", "one"}});
  EXPECT_EQ(gainedBy(1), "AT\rone");
  tell({{"op", "otherwise"}, {"text", "with echo"}});
  tell({{"op", "forget"}});
  EXPECT_EQ(gainedBy(1), "");
}

TEST_F(ModemRequests, WithoutAnyReplyTheModemIsSilentNotEvenAnEcho) {
  EXPECT_EQ(gainedBy(5), "");
  EXPECT_EQ(sent(), Texts({"AT\r"}));
}

TEST_F(ModemRequests, ReceivedTextComesFromTheCodePageOfTheMachine) {
  receive("\u20AC \u00E4 \u0416");
  run(0);
  EXPECT_EQ(transcript(), "\u20AC \u00E4 ?");
}

TEST_F(ModemRequests, ReceivedTextMayComeLater) {
  receive("late", 1.5);
  run(1.25);
  EXPECT_EQ(transcript(), "");
  run(0.25);
  EXPECT_EQ(transcript(), "late");
}

TEST_F(ModemRequests, AnEventRoutesTheTranscriptAnewWithNothingAdded) {
  for (const int value : {1, 3, 4, 5, 6, 7, 1001, 1004, 1006, 1009, 0, 77}) {
    EXPECT_EQ(answerTo(Json{{"op", "event"}, {"value", value}}.dump()), R"({"ok":true})");
    EXPECT_EQ(run(0)["waiting"], 1) << value;
    settle();
    EXPECT_EQ(transcript(), "");
  }
}

TEST_F(ModemRequests, AnEventMayComeLater) {
  tell({{"op", "event"}, {"value", 3}, {"after", 2}});
  EXPECT_EQ(run(1.9)["waiting"], 0);
  EXPECT_EQ(run(0.1)["waiting"], 1);
}

TEST_F(ModemRequests, TheReceiveEventNeedsBytes) {
  EXPECT_TRUE(isRefused(R"({"op":"event","value":2})"));
}

TEST_F(ModemRequests, AnUnpluggedModemSaysAndHearsNothing) {
  tell({{"op", "reply"}, {"write", "AT\r"}, {"text", "one"}});
  EXPECT_EQ(answerTo(R"({"op":"modem","port":null})"), R"({"ok":true})");
  receive("lost");
  EXPECT_EQ(gainedBy(1), "");
  EXPECT_EQ(sent(), Texts({"AT\r"}));
  tell({{"op", "modem"}, {"port", 3}});
  EXPECT_EQ(gainedBy(1), "AT\rone");
}

TEST_F(ModemRequests, AModemAtAnotherPortOrSpeedHearsNothing) {
  tell({{"op", "reply"}, {"write", "AT\r"}, {"text", "one"}});
  tell({{"op", "modem"}, {"port", 4}});
  EXPECT_EQ(gainedBy(1), "");
  tell({{"op", "modem"}, {"port", 3}, {"speed", 300}});
  EXPECT_EQ(gainedBy(1), "");
  EXPECT_EQ(answerTo(R"({"op":"modem","speed":9600})"), R"({"ok":true})");
  EXPECT_EQ(gainedBy(1), "AT\rone");
}

TEST_F(ModemRequests, APortThatHasGoneFailsTheWriteAndNothingElse) {
  EXPECT_EQ(answerTo(R"({"op":"ports","ports":[]})"), R"({"ok":true})");
  click("Form1.Label8");
  settle();
  EXPECT_EQ(sent(), Texts());
  EXPECT_EQ(state()["ended"], false);
  EXPECT_EQ(shown(), Texts());
}

TEST_F(ModemRequests, TheSendEventComesWhenTheWriteHasDrained) {
  settle();
  click("Form1.Label8");  // writes three bytes, which take 3.125 milliseconds
  EXPECT_EQ(run(0.003)["waiting"], 1);
  EXPECT_EQ(run(0.0002)["waiting"], 2);
}

TEST(PortRequests, AHeldPortAndAFailingOneAreSaidAtTheStart) {
  const struct {
    Json port;
    bool sweeps;  // which "Port already open" alone makes the start-up do
  } rows[] = {{{{"number", 3}, {"held", true}}, true},
              {{{"number", 3}, {"fails", "Port already open"}}, true},
              {{{"number", 3}, {"fails", "on fire"}}, false},
              {{{"number", 4}}, false}};
  for (const auto& [port, sweeps] : rows) {
    const TemporaryFolder folder;
    folder.write("COM.txt", "9600,N,8,1 3\r\n");
    Session session;
    session.answer(Json{
        {"op", "start"},
        {"folder", folder.path().string()},
        {"now", "2026-03-01 10:00:00"},
        {"ports", Json::array({port})},
        {"modem",
         nullptr}}.dump());
    session.answer(R"({"op":"settle"})");
    const Json log =
        Json::parse(session.answer(R"({"op":"get","property":"Form1.List1.List"})"))["value"];
    EXPECT_EQ(log.size() > 1, sweeps) << port.dump() << ": " << log.dump();
  }
}

}  // namespace
}  // namespace gsm::driver
