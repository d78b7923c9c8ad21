#include <gtest/gtest.h>

#include <algorithm>

#include "modem/form10.h"
#include "modem/form20.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/healthy_modem_test.h"
#include "tests/support/open_port_test.h"

namespace gsm {
namespace {

constexpr const char* kNotFound = "SIM Not Found !.Insert SIM Properly";

// The question whether a SIM is there and wants a code, in the start-up.
class SimStatus : public HealthyModemTest {
 protected:
  bool logged(const std::string& line) {
    const Texts lines = log();
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  }
  bool initialised() {
    const Texts commands = sent();
    return std::find(commands.begin(), commands.end(), "AT+CMEE=0\r") != commands.end();
  }
  Form10& prompt() { return panel().form10; }
};

TEST_F(SimStatus, OfAReadySimInitialisesWithoutAnyWindow) {
  startHealthy();
  settle();
  EXPECT_TRUE(logged("Check SIM PIN"));
  EXPECT_TRUE(initialised());
  EXPECT_FALSE(prompt().isLoaded());
  expectWorking();
  expectAtRest();
}

TEST_F(SimStatus, WithAClosingOkInitialisesAsWell) {
  startHealthy(information("+CPIN: READY"));
  settle();
  EXPECT_TRUE(initialised());
  expectWorking();
}

TEST_F(SimStatus, IsAskedOnlyAfterAnAnswerToTheFirstCommand) {
  startHealthy();
  silence("AT");
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CGSN\r", "AT\r"}));
  EXPECT_FALSE(logged("Check SIM PIN"));
  EXPECT_EQ(statusLine(), "");
  EXPECT_TRUE(panel().form7.Visible.peek());
  expectLocked();
  expectAtRest();
}

TEST_F(SimStatus, ShowsThatTheUserShallWaitBeforeTheStatusWindow) {
  startHealthy();
  silence("AT");
  run(2.1);
  EXPECT_EQ(sent().back(), "AT\r");
  EXPECT_EQ(statusLine(), "Please Wait...");
  EXPECT_FALSE(panel().form7.Visible.peek());
  run(2);
  EXPECT_EQ(statusLine(), "");
  EXPECT_TRUE(panel().form7.Visible.peek());
}

TEST_F(SimStatus, ThatNeverComesLeavesThePanelLocked) {
  startHealthy();
  silence("AT+CPIN?");
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CGSN\r", "AT\r", "AT+CPIN?\r"}));
  EXPECT_EQ(log().back(), "Check SIM PIN");
  EXPECT_EQ(statusLine(), "");
  expectLocked();
  expectAtRest();
}

TEST_F(SimStatus, AnErrorToTheFirstCommandIsAMissingSimToo) {
  startHealthy();
  world().modem.add(
      {.write = "AT\r",
       .replies = {{{ModemScript::kDefaultDelay, kError}}, {{ModemScript::kDefaultDelay, kOk}}}});
  settle();
  const Texts commands = sent();
  ASSERT_GE(commands.size(), 3U);
  EXPECT_EQ(commands[2], "AT+CMEE=0\r");
  EXPECT_FALSE(logged("Check SIM PIN"));
  EXPECT_TRUE(logged(kNotFound));
  expectNoSim();
}

TEST_F(SimStatus, WithItsPortGoneEndsSilently) {
  startHealthy();
  run(2.04);
  machine().ports.set({});
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CGSN\r"});
  EXPECT_EQ(statusLine(), "Please Wait...");
  expectLocked();
  expectAtRest();
}

TEST_F(SimStatus, ClearsTheTranscriptBeforeEachOfItsCommands) {
  startHealthy();
  receive("ERROR", 1);  // while the first exchange of the start-up waits
  Texts commands;
  while (commands.size() < 3 && now() < 20) {
    run(0.02);
    for (const std::string& command : sent()) {
      EXPECT_EQ(transcript(), "") << command;
      commands.push_back(command);
    }
  }
  EXPECT_EQ(commands, (Texts{"AT+CGSN\r", "AT\r", "AT+CPIN?\r"}));
  settle();
  EXPECT_FALSE(logged(kNotFound));
}

struct MissingRow {
  std::string name;
  std::string reply;
};
class MissingSim : public SimStatus, public ::testing::WithParamInterface<MissingRow> {};

TEST_P(MissingSim, NarrowsThePanel) {
  startHealthy(GetParam().reply);
  settle();
  EXPECT_TRUE(logged(kNotFound));
  EXPECT_EQ(statusLine(), "");
  expectNoSim();
  EXPECT_TRUE(panel().form20.Timer1.Enabled.peek());
  expectAtRest();
}

TEST_P(MissingSim, NarrowsThePanelAlsoWithoutTheFraming) {
  startHealthy(GetParam().reply);
  reply("AT+ICF?", kError);
  settle();
  expectNoSim();
  EXPECT_FALSE(panel().form20.isLoaded());
  EXPECT_EQ(form1().Label7.Caption.peek(), "");
}

INSTANTIATE_TEST_SUITE_P(Replies, MissingSim,
                         ::testing::Values(MissingRow{"Error", kError},
                                           MissingRow{"NoSim", "\r\n+CME ERROR: 10\r\n"},
                                           MissingRow{"SimFailure", "\r\n+CME ERROR: 13\r\n"},
                                           MissingRow{"StillStarting", "\r\n+CME ERROR: 515\r\n"}),
                         RowName());

TEST_F(SimStatus, OfAMissingSimIsLoggedBeforeTheSequence) {
  startHealthy(kError);
  run(6.2);
  EXPECT_EQ(sent().back(), "AT+CMEE=0\r");
  EXPECT_EQ(log().back(), kNotFound);
  EXPECT_EQ(statusLine(), "Intializing Settings....");
  expectLocked();
}

TEST_F(SimStatus, OfAMissingSimIsTakenBackByARestartWithASim) {
  startHealthy(kError);
  settle();
  expectNoSim();
  reply("AT+CPIN?", unsolicited("+CPIN: READY"));
  click(form1().Command9);
  settle();
  expectWorking();
}

enum class Prompt { pin, puk };
struct WordRow {
  std::string name;
  std::string word;
  Prompt prompt;
};
class SimWord : public SimStatus, public ::testing::WithParamInterface<WordRow> {};

TEST_P(SimWord, OpensThePrompt) {
  startHealthy(unsolicited("+CPIN: " + GetParam().word));
  settle();
  const bool pin = GetParam().prompt == Prompt::pin;
  EXPECT_TRUE(prompt().Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_TRUE(prompt().Label1.Visible.peek());
  EXPECT_TRUE(prompt().Text1.Visible.peek());
  EXPECT_EQ(prompt().Label2.Visible.peek(), !pin);
  EXPECT_EQ(prompt().Text2.Visible.peek(), !pin);
  EXPECT_EQ(form1().Text2.Visible.peek(), pin);
  EXPECT_EQ(form1().Text3.Visible.peek(), !pin);
  EXPECT_EQ(form1().Text2.Text.peek(), "0");
  EXPECT_EQ(form1().Text3.Text.peek(), "0");
  EXPECT_FALSE(initialised());
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(statusLine(), "");
  EXPECT_EQ(log().back(), "Check SIM PIN");
  expectLocked();
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(Words, SimWord,
                         ::testing::Values(WordRow{"Pin", "SIM PIN", Prompt::pin},
                                           WordRow{"SecondPin", "SIM PIN2", Prompt::pin},
                                           WordRow{"PhonePin", "PH-SIM PIN", Prompt::pin},
                                           WordRow{"Puk", "SIM PUK", Prompt::puk},
                                           WordRow{"SecondPuk", "SIM PUK2", Prompt::puk},
                                           WordRow{"PhonePuk", "PH-SIM PUK", Prompt::puk},
                                           WordRow{"PinBeforePuk", "SIM PUK, SIM PIN",
                                                   Prompt::pin}),
                         RowName());

TEST_F(SimStatus, ReadyCountsBeforeEveryOtherWord) {
  startHealthy(unsolicited("+CPIN: SIM PIN") + unsolicited("+CPIN: READY"));
  settle();
  EXPECT_FALSE(prompt().isLoaded());
  expectWorking();
}

struct UnknownRow {
  std::string name;
  std::string reply;
};
class UnknownSimWord : public SimStatus, public ::testing::WithParamInterface<UnknownRow> {};

TEST_P(UnknownSimWord, EndsTheProgramWithABox) {
  startHealthy(GetParam().reply);
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  run(20);
  EXPECT_EQ(statusLine(), "SIM Failure");
  expectBox("SIM FAILURE", "GSM");
  EXPECT_FALSE(ended());
  world().time().after(Duration::zero(), [this] { machine().boxes.answerTop(); });
  run(1);
  EXPECT_TRUE(ended());
  EXPECT_FALSE(machine().line.isOpen());
  EXPECT_FALSE(initialised());
}

INSTANTIATE_TEST_SUITE_P(Replies, UnknownSimWord,
                         ::testing::Values(UnknownRow{"Network", "\r\n+CPIN: PH-NET PIN\r\n"},
                                           UnknownRow{"Empty", "\r\n+CPIN: \r\n"},
                                           UnknownRow{"OtherCase", "\r\n+CPIN: Ready\r\n"},
                                           UnknownRow{"CutInTheWord", "\r\n+CPIN: SIM P"}),
                         RowName());

TEST_F(SimStatus, WhoseWordComesInTimeIsPutTogether) {
  startHealthy();
  world().modem.add({.write = "AT+CPIN?\r",
                     .replies = {{{std::chrono::milliseconds(50), "\r\n+CPIN: REA"},
                                  {std::chrono::milliseconds(1900), "DY\r\n"}}}});
  settle();
  expectWorking();
}

TEST_F(SimStatus, WhoseWordComesTooLateIsUnknown) {
  startHealthy();
  world().modem.add({.write = "AT+CPIN?\r",
                     .replies = {{{std::chrono::milliseconds(50), "\r\n+CPIN: REA"},
                                  {std::chrono::milliseconds(2100), "DY\r\n"}}}});
  settle();
  expectBox("SIM FAILURE", "GSM");
  EXPECT_TRUE(ended());
}

class SimStatusUnasked : public OpenPortTest {};

TEST_F(SimStatusUnasked, OfAReadySimInitialises) {
  receive(unsolicited("+CPIN: READY"));
  run(2.1);
  EXPECT_EQ(sent(), Texts{"AT+CMEE=0\r"});
}

TEST_F(SimStatusUnasked, IsClearedAfterThePrompt) {
  receive(unsolicited("+CPIN: SIM PIN"));
  settle();
  EXPECT_TRUE(panel().form10.Visible.peek());
  EXPECT_EQ(transcript(), "");
}

TEST_F(SimStatusUnasked, OfAPukLeavesItsBoxAsThePinLeftIt) {
  receive(unsolicited("+CPIN: SIM PIN"));
  settle();
  receive(unsolicited("+CPIN: SIM PUK"));
  settle();
  Form10& prompt = panel().form10;
  EXPECT_TRUE(prompt.Label1.Visible.peek());
  EXPECT_TRUE(prompt.Text1.Visible.peek());
  EXPECT_TRUE(prompt.Label2.Visible.peek());
  EXPECT_FALSE(prompt.Text2.Visible.peek());
}

}  // namespace
}  // namespace gsm
