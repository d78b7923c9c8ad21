// What the user sets of the modem's line in the simulated week, and how he finds a modem again that
// has gone to another rate.

#include <algorithm>

#include "module/form16.h"
#include "module/form18.h"
#include "panel/form1.h"
#include "settings/form15.h"
#include "settings/line_options.h"
#include "startup/frm_settings.h"
#include "tests/together/simulated_week.h"

namespace gsm {
namespace {

using Options = std::span<const OptionCode<Form15>>;

constexpr int kFormatsOf8Bits = 4;  // the first ones

// The place of the option that is set; -1 when none is.
int chosenIn(const Form15& window, Options options) {
  for (std::size_t i = 0; i < options.size(); ++i) {
    if ((window.*options[i].option).Value.peek()) return static_cast<int>(i);
  }
  return -1;
}

std::string wordsAt(Options options, int place) {
  return std::string(options[static_cast<std::size_t>(place)].words);
}

}  // namespace

void SimulatedWeek::openLine() {
  showPanel();
  press(form1().Command11);
  ASSERT_TRUE(line().Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  compareLine();
}

// "&D" is judged by the digit of "&C", unless it is 0. Nothing is read for the last two groups, but
// the start-up leaves its own choice of the echo.
void SimulatedWeek::compareLine() {
  EXPECT_EQ(line().Combo1.Text.peek(), line_.rate);
  EXPECT_EQ(chosenIn(line(), kFormats), line_.format);
  EXPECT_EQ(chosenIn(line(), kParities), line_.parity);
  EXPECT_EQ(chosenIn(line(), kFlowToHost), line_.flowToHost);
  EXPECT_EQ(chosenIn(line(), kFlowToModem), line_.flowToModem);
  EXPECT_EQ(chosenIn(line(), kCarrier), line_.carrier);
  EXPECT_EQ(chosenIn(line(), kTerminalReady),
            line_.terminalReady == 0 ? 0 : (line_.carrier == 0 ? -1 : line_.carrier));
  if (!line_.seen) return;
  EXPECT_EQ(chosenIn(line(), kDataSetReady), -1);
  EXPECT_EQ(chosenIn(line(), kEcho), -1);
}

// Chooses something in each group and saves it. The modem knows no Xon, and goes to a new rate at
// once, where nothing else reaches it.
void SimulatedWeek::saveLine() {
  const auto choose = [this](Options options, std::size_t place) {
    click(line().*options[place].option);
    return static_cast<int>(place);
  };
  Line wanted = line_;
  wanted.format = choose(kFormats, below(kFormats.size()));
  wanted.parity = choose(kParities, below(kParities.size()));
  wanted.flowToHost = choose(kFlowToHost, perhaps(4) ? below(4) : 2 * below(2));
  wanted.flowToModem = choose(kFlowToModem, perhaps(4) ? below(3) : 2 * below(2));
  wanted.carrier = choose(kCarrier, below(2));
  wanted.terminalReady = choose(kTerminalReady, below(3));
  choose(kDataSetReady, below(2));
  const int echo = choose(kEcho, perhaps(4) ? 0 : 1);
  const bool moves = perhaps(4);
  const bool isKnown = moves || !perhaps(6);
  if (moves) wanted.rate = line_.rate == "9600" ? "19200" : "9600";
  type(line().Combo1, isKnown ? wanted.rate : "1234");
  const std::string framingBefore = form1().Label7.Caption.peek();
  sent();
  press(line().Command1);
  EXPECT_EQ(sent().size(), 8U) << "whatever becomes of the steps";
  if (isKnown) {
    EXPECT_EQ(form1().Label6.Caption.peek(), "Speed:" + wanted.rate);
  }
  if (moves) {
    EXPECT_EQ(line().Label1.Caption.peek(), "Changes SuccessFul") << "none is heard";
    EXPECT_EQ(form1().Label7.Caption.peek(), framingBefore);
    line_.rate = wanted.rate;
    followModem();
    return;
  }
  const bool takesFlow = wanted.flowToHost % 2 == 0 && wanted.flowToModem % 2 == 0;
  const std::string failures = std::string(isKnown ? "" : " Changes UnsuccessFul-IPR ") +
                               (takesFlow ? "" : "Changes UnsuccessFul-DCE-DTE Flow Control");
  EXPECT_EQ(line().Label1.Caption.peek(), failures.empty() ? "Changes SuccessFul" : failures);
  EXPECT_EQ(form1().Label7.Caption.peek(), "Character Framing:" + wordsAt(kFormats, wanted.format) +
                                               " " + wordsAt(kParities, wanted.parity) +
                                               (echo == 0 ? "ECHO:Disable" : "ECHO:Enable"));
  if (!takesFlow) {
    wanted.flowToHost = line_.flowToHost;
    wanted.flowToModem = line_.flowToModem;
  }
  line_ = wanted;
  // Neither texts in seven bits nor a panel that looks for the echo would do.
  const bool isTold = tell("state").find("echo on") != std::string::npos;
  EXPECT_EQ(isTold, echo == 1);
  if (isTold && line_.format < kFormatsOf8Bits) return;
  line_.format = choose(kFormats, below(kFormatsOf8Bits));
  choose(kEcho, 1);
  type(line().Combo1, line_.rate);
  click(line().*kFlowToHost[static_cast<std::size_t>(line_.flowToHost)].option);
  click(line().*kFlowToModem[static_cast<std::size_t>(line_.flowToModem)].option);
  press(line().Command1);
  EXPECT_EQ(line().Label1.Caption.peek(), "Changes SuccessFul");
}

// The port has stayed at the old rate, and only its own settings help.
void SimulatedWeek::followModem() {
  showPanel();
  press(form1().Command12);
  press(panel().form16.Command2);
  EXPECT_EQ(toolkit().Label2.Caption.peek(), "Plz Wait.Checking Current Values") << "no answer";
  showPanel();
  frmSettings& port = panel().settings;
  click(form1().Command7);
  run(1);
  ASSERT_TRUE(port.Visible.peek());
  const Texts rates = port.cboBaud.List.peek();
  const auto rate = std::find(rates.begin(), rates.end(), line_.rate);
  pick(port.cboBaud, static_cast<int>(rate - rates.begin()));
  press(port.cmdAction[0]);
  EXPECT_FALSE(port.isLoaded());
  EXPECT_EQ(form1().Label3.Caption.peek(), line_.rate + ",N,8,1");
  EXPECT_EQ(file("COM.txt"), line_.rate + ",N,8,1 3\r\n");
  EXPECT_TRUE(form1().Command2.Enabled.peek()) << "the modem has been found again";
  line_.seen = false;
}

void SimulatedWeek::setLine() {
  comeToRest();
  openLine();
  line_.seen = true;
  saveLine();
}

}  // namespace gsm
