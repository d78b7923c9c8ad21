#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(MessageConsole, MessageTakesATextWithEscapes) {
  Bench bench({.messages = {}});
  bench.ask("AT+CMGF=1");
  EXPECT_EQ(bench.modem.console("message 0123 one\\r\\ntwo \\x1A \\\"OK\\\""), "");
  bench.listen();
  EXPECT_TRUE(bench.ask("AT+CMGR=1").ends_with("\r\none\r\ntwo \x1A \"OK\"\r\n\r\nOK\r\n"));
}

TEST(MessageConsole, MessageWantsANumberAndATextThatFits) {
  Bench bench;
  const std::string fits(160, 'x');
  EXPECT_EQ(bench.modem.console("message 0123 " + fits), "");
  for (const std::string& bad :
       {std::string("message"), std::string("message 0123"), std::string("message anna x"),
        "message 0123 x" + fits, std::string("message 123456789012345678901 x"),
        std::string("message 0123 \"open")}) {
    EXPECT_EQ(bench.modem.console(bad), "error: usage: message NUMBER TEXT") << bad;
  }
  EXPECT_EQ(bench.modem.console("broadcast"), "error: usage: broadcast TEXT");
}

TEST(MessageConsole, NothingComesInWithoutServiceOrWhenItIsBarred) {
  Bench bench;
  bench.modem.console("register 0");
  EXPECT_EQ(bench.modem.console("message 0123 x"), "error: the modem has no network");
  EXPECT_EQ(bench.modem.console("broadcast x"), "error: the modem has no network");
  bench.modem.console("register 1");
  bench.modem.console("bar AI 8");
  EXPECT_EQ(bench.modem.console("message 0123 x"), "error: incoming messages are barred");
  bench.modem.console("bar AI 7");
  EXPECT_EQ(bench.modem.console("message 0123 x"), "");
}

TEST(MessageConsole, FullCardTakesNoMessage) {
  Bench bench;
  for (int count = 5; count < 20; ++count) EXPECT_EQ(bench.modem.console("message 0123 x"), "");
  EXPECT_EQ(bench.modem.console("message 0123 x"), "error: the card takes no message");
  bench.listen(seconds(5));
  bench.ask("AT+CMGD=9");
  EXPECT_EQ(bench.modem.console("message 0123 x"), "");
  EXPECT_EQ(bench.listen(), "\r\n+CMTI: \"SM\",9\r\n");
}

TEST(MessageConsole, MessagesShowsTheCards) {
  Bench bench({.messages = {{3, {MessageStatus::kStoredUnsent, "0123", "", "a\tb"}}}});
  EXPECT_EQ(bench.modem.console("messages"), "3\tSTO UNSENT\t0123\t\ta\\tb");
  bench.ask("AT+CMGD=3");
  EXPECT_EQ(bench.modem.console("messages"), "none");
}

TEST(MessageConsole, HelpNamesTheCommandsThatFollowTheStandardAlone) {
  EXPECT_TRUE(Bench().modem.console("help").ends_with(
      "\nanswered by the AT standard alone: AT+CLCC AT+CPAS AT+CSCA AT+CSCB AT+CMGL AT+CCUG "
      "AT+FCLASS AT+FTM AT+FRM AT+CBC AT+COPS AT+CGREG AT+CGATT AT+CIMI AT+CGDCONT"));
}

}  // namespace
}  // namespace gsm::simulator
