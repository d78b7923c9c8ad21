#include <gtest/gtest.h>

#include <iterator>
#include <random>

#include "tests/simulator/bench.h"

// Sending and storing messages, in the words of a host.
namespace gsm::simulator {
namespace {

constexpr const char* kTextPrompt = "\r\n> ";

class MessageSendCommands : public testing::Test {
 protected:
  MessageSendCommands() { bench_.ask("AT+CMGF=1;+CMEE=1"); }

  // Writes the command, waits for the prompt, and returns what comes after the text's echo.
  std::string send(const std::string& command, const std::string& text,
                   std::chrono::nanoseconds time = seconds(4)) {
    EXPECT_EQ(bench_.ask(command), kTextPrompt) << command;
    return bench_.write(text + "\x1A", time);
  }

  Bench bench_{{.messages = {}}};
};

TEST_F(MessageSendCommands, SendAsksForTheTextAndReportsItsReferenceByteForByte) {
  EXPECT_EQ(bench_.write("AT+CMGS=+33639981201\r"), "AT+CMGS=+33639981201\r\r\n> ");
  EXPECT_EQ(bench_.write("Hello you\x1A"), "Hello you");
  EXPECT_EQ(bench_.listen(seconds(3)), "\r\n+CMGS: 0\r\n\r\nOK\r\n");
  EXPECT_EQ(bench_.ask("AT+CMGL=\"ALL\""), kOk) << "what is sent isn't kept";
}

TEST_F(MessageSendCommands, NetworkTakesThreeSeconds) {
  bench_.ask("AT+CMGS=0123");
  EXPECT_EQ(bench_.write("x\x1A", milliseconds(3000)), "x");
  EXPECT_EQ(bench_.listen(milliseconds(100)), withOk("+CMGS: 0"));
}

TEST_F(MessageSendCommands, NumberMayStandInQuotesWithItsTypeAfterIt) {
  for (const char* command : {"AT+CMGS=\"0123\"", "AT+CMGS=\"+3363\",145", "AT+CMGS=0123,129",
                              "AT+CMGS=12 34", "AT+CMGS= 0123"}) {
    EXPECT_TRUE(send(command, "x").ends_with(kOk)) << command;
  }
}

TEST_F(MessageSendCommands, BadNumbersGetNoPrompt) {
  const std::pair<const char*, std::string> kBad[] = {
      {"AT+CMGS=", kError},
      {"AT+CMGS", kError},
      {"AT+CMGS=1,129,1", kError},
      {"AT+CMGS=anna", cmsError(305)},
      {"AT+CMGS=\"1 2\"", cmsError(305)},
      {"AT+CMGS=1,x", cmsError(305)},
      {"AT+CMGS=1,7", cmsError(305)},
      {"AT+CMGS=123456789012345678901", cmsError(305)},
      {"AT+CMGW=anna", cmsError(305)},
      {"AT+CMGW=1,129,\"REC READ\"", cmsError(305)},
      {"AT+CMGW=1,129,\"SENT\"", cmsError(305)},
      {"AT+CMGW=1,129,\"STO SENT\",1", kError},
  };
  for (const auto& [command, answer] : kBad) EXPECT_EQ(bench_.ask(command), answer) << command;
}

TEST_F(MessageSendCommands, TextSentWithoutAPromptIsNoCommand) {
  bench_.ask("AT+CMGS=anna");
  EXPECT_EQ(bench_.write("Hello\x1A"), "Hello\x1A");
  EXPECT_EQ(bench_.write("\rAT\r"), "\rAT\r\r\nOK\r\n");
}

TEST_F(MessageSendCommands, TextMayComeInPiecesAndBeforeThePrompt) {
  bench_.modem.hostWrites("AT+CMGS=0123\rHel", Bench::kSpeed);
  bench_.modem.hostWrites("lo", Bench::kSpeed);
  EXPECT_EQ(bench_.listen(), "AT+CMGS=0123\r\r\n> Hello");
  for (const char c : std::string(" you")) bench_.modem.hostWrites({&c, 1}, Bench::kSpeed);
  EXPECT_EQ(bench_.listen(), " you");
  EXPECT_EQ(bench_.write("\x1A", seconds(4)), withOk("+CMGS: 0"));
}

TEST_F(MessageSendCommands, CommandsAfterTheTextWait) {
  EXPECT_EQ(bench_.write("AT+CMGS=0123\rx\x1A"
                         "AT+CMGF?\r",
                         seconds(5)),
            "AT+CMGS=0123\r\r\n> x\r\n+CMGS: 0\r\n\r\nOK\r\nAT+CMGF?\r\r\n+CMGF: 1\r\n\r\nOK\r\n");
}

TEST_F(MessageSendCommands, EveryLineOfTheTextHasAPrompt) {
  bench_.ask("AT+CMGW=0123");
  EXPECT_EQ(bench_.write("one\r\ntwo\x1A"), "one\r\r\n> \ntwo\r\n+CMGW: 1\r\n\r\nOK\r\n");
  EXPECT_EQ(bench_.ask("AT+CMGR=1"), withOk("+CMGR: \"STO UNSENT\",\"0123\",\r\none\r\ntwo"));
}

TEST_F(MessageSendCommands, TextIsEchoedOnlyWithEcho) {
  bench_.ask("ATE0");
  EXPECT_EQ(bench_.write("AT+CMGW=0123\r"), kTextPrompt);
  EXPECT_EQ(bench_.write("one\rtwo\x1A"), "\r\n> \r\n+CMGW: 1\r\n\r\nOK\r\n");
}

TEST_F(MessageSendCommands, LineFeedAfterTheCommandIsNoText) {
  bench_.write("AT+CMGW=0123\r\nx\x1A");
  EXPECT_EQ(bench_.ask("AT+CMGR=1"), withOk("+CMGR: \"STO UNSENT\",\"0123\",\r\nx"));
}

TEST_F(MessageSendCommands, BackspaceTakesTheLastByteBack) {
  bench_.ask("AT+CMGW=0123");
  bench_.write("\bab\b\bcd\be\x1A");
  EXPECT_EQ(bench_.ask("AT+CMGR=1"), withOk("+CMGR: \"STO UNSENT\",\"0123\",\r\nce"));
}

TEST_F(MessageSendCommands, EscapeGivesTheTextUpWithOk) {
  for (const char* command : {"AT+CMGS=0123", "AT+CMGW=0123"}) {
    EXPECT_EQ(bench_.ask(command), kTextPrompt);
    EXPECT_EQ(bench_.write("Hello\x1B", seconds(4)), std::string("Hello") + kOk) << command;
  }
  EXPECT_EQ(bench_.ask("AT+CMGL=\"ALL\""), kOk);
  EXPECT_TRUE(send("AT+CMGS=0123", "x").find("+CMGS: 0") != std::string::npos)
      << "what was given up costs no reference";
}

TEST_F(MessageSendCommands, EveryOtherByteIsText) {
  std::string text;
  for (int byte = 1; byte < 256; ++byte) {
    if (byte != '\b' && byte != '\r' && byte != 0x1A && byte != 0x1B) {
      text += static_cast<char>(byte);
    }
  }
  text.erase(text.find('\n'), 1);
  for (const std::string& part : {text.substr(0, 160), text.substr(160)}) {
    bench_.ask("AT+CMGW=1");
    bench_.write(part + "\x1A");
  }
  EXPECT_EQ(bench_.ask("AT+CMGR=1"),
            withOk("+CMGR: \"STO UNSENT\",\"1\",\r\n" + text.substr(0, 160)));
  EXPECT_EQ(bench_.ask("AT+CMGR=2"), withOk("+CMGR: \"STO UNSENT\",\"1\",\r\n" + text.substr(160)));
}

TEST_F(MessageSendCommands, CommandsInATextAreText) {
  EXPECT_EQ(send("AT+CMGS=0123", "ATH\rOK\rERROR"),
            "ATH\r\r\n> OK\r\r\n> ERROR\r\n+CMGS: 0\r\n\r\nOK\r\n");
}

TEST_F(MessageSendCommands, TextOf160FitsAndALongerOneDoesnt) {
  EXPECT_TRUE(send("AT+CMGS=0123", std::string(160, 'x')).ends_with(kOk));
  EXPECT_TRUE(send("AT+CMGS=0123", std::string(161, 'x')).ends_with(cmsError(305)));
  EXPECT_TRUE(send("AT+CMGW=0123", std::string(161, 'x')).ends_with(cmsError(305)));
  EXPECT_TRUE(send("AT+CMGW=0123", std::string(10'000, 'x'), seconds(20)).ends_with(cmsError(305)));
}

TEST_F(MessageSendCommands, EmptyTextIsAMessage) {
  EXPECT_EQ(send("AT+CMGS=0123", ""), withOk("+CMGS: 0"));
  EXPECT_EQ(send("AT+CMGW=0123", ""), withOk("+CMGW: 1"));
  EXPECT_EQ(bench_.ask("AT+CMGR=1"), withOk("+CMGR: \"STO UNSENT\",\"0123\",\r\n"));
}

struct Refusal {
  const char* number;
  int code;
  int seconds;  // by when it has come, and not two seconds before
};

TEST_F(MessageSendCommands, LastDigitDecidesAndFailuresCountToo) {
  constexpr Refusal kRefusals[] = {{"01237", 42, 3}, {"01238", 332, 13}, {"01239", 21, 3}};
  for (const auto& [number, refusal, time] : kRefusals) {
    bench_.ask(std::string("AT+CMGS=") + number);
    EXPECT_EQ(bench_.write("x\x1A", seconds(time - 2)), "x");
    EXPECT_EQ(bench_.listen(seconds(2)), cmsError(refusal)) << number;
  }
  EXPECT_EQ(send("AT+CMGS=0123", ""), withOk("+CMGS: 3"));
}

TEST_F(MessageSendCommands, ReferencesStartAnewAfter255) {
  for (int reference = 0; reference < 256; ++reference) send("AT+CMGS=1", "");
  EXPECT_EQ(send("AT+CMGS=1", ""), withOk("+CMGS: 0"));
}

TEST_F(MessageSendCommands, NeedsServiceAndAServiceCentre) {
  bench_.modem.console("register 0");
  EXPECT_EQ(send("AT+CMGS=1", ""), cmsError(331));
  bench_.modem.console("register 1");
  bench_.ask("AT+CMGS=1");
  bench_.write("\x1A", seconds(1));
  bench_.modem.console("register 0");
  EXPECT_EQ(bench_.listen(seconds(3)), cmsError(331)) << "lost on the way";
  bench_.modem.console("register 1");
  EXPECT_EQ(bench_.ask("AT+CSCA=\"\""), kOk);
  EXPECT_EQ(send("AT+CMGS=1", ""), cmsError(330));
  EXPECT_EQ(send("AT+CMGW=1", ""), withOk("+CMGW: 1"));
}

TEST_F(MessageSendCommands, BarredMessageIsRefused) {
  bench_.modem.console("bar AO 1");
  EXPECT_EQ(send("AT+CMGS=1", ""), withOk("+CMGS: 0")) << "only calls are";
  bench_.modem.console("bar AO 8");
  EXPECT_EQ(send("AT+CMGS=1", ""), cmsError(10));
}

TEST_F(MessageSendCommands, WriteStoresInTheFirstHoleAsUnsentOrSent) {
  EXPECT_EQ(send("AT+CMGW=+33639981201", "one"), "one" + withOk("+CMGW: 1"));
  EXPECT_EQ(send("AT+CMGW=\"0123\",129,\"STO SENT\"", "two"), "two" + withOk("+CMGW: 2"));
  EXPECT_EQ(send("AT+CMGW=33639981201,145", "three"), "three" + withOk("+CMGW: 3"));
  EXPECT_EQ(send("AT+CMGW", "four"), "four" + withOk("+CMGW: 4"));
  bench_.ask("AT+CMGD=2");
  EXPECT_EQ(send("AT+CMGW=,,\"STO UNSENT\"", "two"), "two" + withOk("+CMGW: 2"));
  EXPECT_EQ(bench_.ask("AT+CMGL=\"ALL\""),
            withOk("+CMGL: 1,\"STO UNSENT\",\"+33639981201\",,\r\none\r\n"
                   "+CMGL: 2,\"STO UNSENT\",\"\",,\r\ntwo\r\n"
                   "+CMGL: 3,\"STO UNSENT\",\"+33639981201\",,\r\nthree\r\n"
                   "+CMGL: 4,\"STO UNSENT\",\"\",,\r\nfour"));
  EXPECT_EQ(bench_.messages.front(), "1\tSTO UNSENT\t+33639981201\t\tone\n");
}

TEST_F(MessageSendCommands, FullCardTakesNothing) {
  for (int count = 1; count <= 20; ++count) send("AT+CMGW=1", "x");
  EXPECT_EQ(bench_.ask("AT+CPMS?"), withOk("+CPMS: \"SM\",20,20,\"SM\",20,20"));
  EXPECT_EQ(send("AT+CMGW=1", "x"), "x" + cmsError(322));
}

TEST_F(MessageSendCommands, MessageThatCantBeKeptIsAnError) {
  bench_.messagesFit = false;
  EXPECT_EQ(send("AT+CMGW=1", "x"), "x" + cmsError(320));
  bench_.messagesFit = true;
  EXPECT_EQ(send("AT+CMGW=1", "x"), "x" + withOk("+CMGW: 1"));
}

TEST_F(MessageSendCommands, PromptAnswersOfOneLineFollowOneAnother) {
  EXPECT_EQ(bench_.ask("AT+CMGW=1;+CMGW=2;+CMGF?"), kTextPrompt);
  EXPECT_EQ(bench_.write("a\x1A"), "a\r\n> ");
  EXPECT_EQ(bench_.write("b\x1A"), "b\r\n+CMGW: 1\r\n\r\n+CMGW: 2\r\n\r\n+CMGF: 1\r\n\r\nOK\r\n");
}

TEST_F(MessageSendCommands, NoticeMayComeInTheMiddle) {
  bench_.ask("AT+CMGS=0123");
  bench_.write("Hel");
  bench_.modem.console("message 0199 x");
  EXPECT_EQ(bench_.listen(), "\r\n+CMTI: \"SM\",1\r\n");
  EXPECT_EQ(bench_.write("lo\x1A", seconds(4)), "lo" + withOk("+CMGS: 0"));
}

TEST_F(MessageSendCommands, SilentModemKeepsItsPromptOpen) {
  bench_.ask("AT+CMGW=0123");
  bench_.modem.console("silent on");
  EXPECT_EQ(bench_.write("lost\x1A"), "");
  bench_.modem.console("silent off");
  EXPECT_EQ(bench_.write("heard\x1A"), "heard" + withOk("+CMGW: 1"));
}

// Whatever a host writes, a text's end, a line's end and some patience bring the modem back.
TEST(MessageSending, BearsAnyOrderOfCommandsTextsAndControls) {
  constexpr std::string_view kPieces[] = {
      "AT+CMGS=0123\r",
      "AT+CMGW=0123\r",
      "AT+CMGW=1;+CCFC=0,2;+CMGS=2\r",
      "Hello",
      "\x1A",
      "\x1B",
      "\r",
      "\n",
      "\b",
      "AT+CMGR= 1\r",
      "AT+CMGD=1,4\r",
      "AT+CCWA=1,2\r",
      "ATD0123;\r",
      "ATH\r",
      "AT+CLCK=\"AO\",2\r",
      "AT+CMGL=\"ALL\"\r",
  };
  for (unsigned seed = 1; seed <= 200; ++seed) {
    std::mt19937 generator(seed);
    Bench bench;
    bench.ask("AT+CMGF=1;E0");
    for (int piece = 0; piece < 30; ++piece) {
      bench.modem.hostWrites(kPieces[generator() % std::size(kPieces)], Bench::kSpeed);
      bench.listen(milliseconds(generator() % 3000));
      if (generator() % 4 == 0) bench.modem.console("message 0199 x");
    }
    bench.listen(seconds(60));
    bench.write("\x1A\x1A\r\x1A\r\x1B\r", seconds(60));
    EXPECT_TRUE(bench.ask("AT").ends_with(kOk)) << "seed " << seed;
  }
}

TEST(MessageSending, MayEndWithTheModem) {
  VirtualTimeline time;
  MemoryProfileStore store;
  std::string received;
  {
    Modem modem(time, store,
                Surroundings{.toHost = [&](std::string_view chunk) { received += chunk; }},
                ModemOptions{.speed = 9600});
    modem.hostWrites("AT+CMGF=1\rAT+CMGS=1\rx\x1A", 9600);
    time.advance(seconds(1));
  }
  time.advance(seconds(20));
  EXPECT_TRUE(received.ends_with("\r\n> x"));
}

}  // namespace
}  // namespace gsm::simulator
