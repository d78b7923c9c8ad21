#include "platform/headless/modem_script.h"

#include <cmath>

#include "tests/support/platform_fixture.h"

namespace gsm {
namespace {

using Rule = ModemScript::Rule;

class ModemScriptTest : public PlatformTest, public SerialDevice::Listener {
 protected:
  void SetUp() override {
    machine().ports.set({{.number = 3}});
    line().listen(this);
    line().setModem(&modem);
    line().plug(3);
    line().open(3, LineSettings{}, Handshaking::none);
  }

  HeadlessLine& line() { return machine().line; }

  /// What comes back for `write`, each chunk with its time after the write.
  Notes answersTo(const std::string& write) {
    begin_ = at();
    line().write(write);
    settle();
    return takeNotes();
  }
  static ModemScript::Reply soon(const std::string& text) {
    return {{ModemScript::kDefaultDelay, text}};
  }

  void bytesArrived(std::string_view bytes) override {
    note(std::to_string(std::lround((at() - begin_) * 1000)) + ": " + std::string(bytes));
  }
  void bytesLeft(std::size_t) override {}
  void lineEvent(CommEvent) override {}

  ModemScript modem{machine().time, machine().line};

 private:
  double begin_ = 0;
};

TEST_F(ModemScriptTest, IsSilentWithoutARule) { EXPECT_EQ(answersTo("AT\r"), Notes()); }

TEST_F(ModemScriptTest, AnswersWithTheEchoAndTheTextAsOneChunk) {
  modem.add({.write = "AT\r", .replies = {soon("\r\nOK\r\n")}});
  EXPECT_EQ(answersTo("AT\r"), Notes({"50: AT\r\r\nOK\r\n"}));
}

TEST_F(ModemScriptTest, ARuleForAWholeWriteFitsNoOther) {
  modem.add({.write = "AT\r", .replies = {soon("OK")}});
  EXPECT_EQ(answersTo("AT"), Notes());
  EXPECT_EQ(answersTo("AT\r\n"), Notes());
  EXPECT_EQ(answersTo("at\r"), Notes());
}

TEST_F(ModemScriptTest, ARuleForABeginningFitsWhatBeginsSo) {
  modem.add({.fit = Rule::Fit::beginning, .write = "ATD", .replies = {soon("!")}});
  EXPECT_EQ(answersTo("ATD123;\r"), Notes({"50: ATD123;\r!"}));
  EXPECT_EQ(answersTo("ATD"), Notes({"50: ATD!"}));
  EXPECT_EQ(answersTo("AT"), Notes());
}

TEST_F(ModemScriptTest, OfSeveralRulesTheNewestCounts) {
  modem.add({.write = "AT\r", .replies = {soon("old")}});
  modem.add({.fit = Rule::Fit::beginning, .write = "A", .replies = {soon("new")}});
  EXPECT_EQ(answersTo("AT\r"), Notes({"50: AT\rnew"}));
  modem.add({.write = "AT\r", .replies = {soon("newest")}});
  EXPECT_EQ(answersTo("AT\r"), Notes({"50: AT\rnewest"}));
  EXPECT_EQ(answersTo("ATH\r"), Notes({"50: ATH\rnew"}));
}

TEST_F(ModemScriptTest, TextsAreUsedInTurnTheLastForEver) {
  modem.add({.write = "AT\r", .replies = {soon("1"), soon("2"), soon("3")}});
  EXPECT_EQ(answersTo("AT\r"), Notes({"50: AT\r1"}));
  EXPECT_EQ(answersTo("AT\r"), Notes({"50: AT\r2"}));
  EXPECT_EQ(answersTo("AT\r"), Notes({"50: AT\r3"}));
  EXPECT_EQ(answersTo("AT\r"), Notes({"50: AT\r3"}));
}

TEST_F(ModemScriptTest, EachChunkComesAtItsOwnTimeTheEchoBeforeTheFirst) {
  modem.add(
      {.write = "AT\r",
       .replies = {{{fromSeconds(0.1), "a"}, {fromSeconds(0.3), "b"}, {fromSeconds(2), "c"}}}});
  EXPECT_EQ(answersTo("AT\r"), Notes({"100: AT\ra", "300: b", "2000: c"}));
}

TEST_F(ModemScriptTest, ChunksOfOneInstantStayChunks) {
  modem.add({.write = "AT\r", .replies = {{{fromSeconds(0), "a"}, {fromSeconds(0), "b"}}}});
  EXPECT_EQ(answersTo("AT\r"), Notes({"0: AT\ra", "0: b"}));
}

TEST_F(ModemScriptTest, TheEchoMayBeOff) {
  modem.add({.write = "AT\r", .replies = {soon("OK")}, .echo = false});
  EXPECT_EQ(answersTo("AT\r"), Notes({"50: OK"}));
}

TEST_F(ModemScriptTest, WithoutEchoAnEmptyTextIsSilence) {
  modem.add({.write = "AT\r", .replies = {soon("")}, .echo = false});
  EXPECT_EQ(answersTo("AT\r"), Notes());
}

TEST_F(ModemScriptTest, OtherwiseAnswersWhatNoRuleFits) {
  modem.setOtherwise({.replies = {soon("ERROR")}});
  modem.add({.write = "AT\r", .replies = {soon("OK")}});
  EXPECT_EQ(answersTo("AT\r"), Notes({"50: AT\rOK"}));
  EXPECT_EQ(answersTo("ATX\r"), Notes({"50: ATX\rERROR"}));
  modem.setOtherwise({.replies = {soon("?")}, .echo = false});
  EXPECT_EQ(answersTo("ATX\r"), Notes({"50: ?"}));
}

TEST_F(ModemScriptTest, ForgetDropsTheRulesAndTheOtherwise) {
  modem.setOtherwise({.replies = {soon("ERROR")}});
  modem.add({.write = "AT\r", .replies = {soon("OK")}});
  modem.forget();
  EXPECT_EQ(answersTo("AT\r"), Notes());
}

TEST_F(ModemScriptTest, WhatIsUnderWayComesAlthoughItsRuleIsForgotten) {
  modem.add({.write = "AT\r", .replies = {soon("OK")}});
  line().write("AT\r");
  modem.forget();
  settle();
  EXPECT_EQ(takeNotes(), Notes({"50: AT\rOK"}));
}

TEST_F(ModemScriptTest, HearsNothingAtAnotherSpeed) {
  modem.add({.write = "AT\r", .replies = {soon("OK")}});
  modem.setSpeed(115200);
  EXPECT_EQ(answersTo("AT\r"), Notes());
  line().configure(LineSettings{.baud = 115200}, Handshaking::none);
  EXPECT_EQ(answersTo("AT\r"), Notes({"50: AT\rOK"}));
}

TEST_F(ModemScriptTest, AReplyIsLostWhenThePortClosesBeforeIt) {
  modem.add({.write = "AT\r", .replies = {soon("OK")}});
  line().write("AT\r");
  line().close();
  settle();
  EXPECT_EQ(takeNotes(), Notes());
}

}  // namespace
}  // namespace gsm
