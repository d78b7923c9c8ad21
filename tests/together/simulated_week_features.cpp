// What the user does with the module's own features in the simulated week.

#include <algorithm>

#include "module/form16.h"
#include "module/form17.h"
#include "module/form18.h"
#include "module/form19.h"
#include "panel/form1.h"
#include "simulator/messages/message.h"
#include "tests/together/simulated_week.h"

namespace gsm {
namespace {

struct ContextBoxes {
  TextBox Form19::*number;
  TextBox Form19::*type;
  TextBox Form19::*name;
};
constexpr std::array kGrid = {
    ContextBoxes{&Form19::Text2, &Form19::Text3, &Form19::Text4},
    ContextBoxes{&Form19::Text5, &Form19::Text6, &Form19::Text7},
    ContextBoxes{&Form19::Text8, &Form19::Text9, &Form19::Text10},
    ContextBoxes{&Form19::Text11, &Form19::Text12, &Form19::Text13},
};

// The number behind `word` in what the console tells.
int numberBehind(const std::string& word, const std::string& text) {
  return std::stoi(text.substr(text.find(word) + word.size()));
}

}  // namespace

void SimulatedWeek::openFeature(CommandButton Form16::*button, Window& window) {
  if (window.Visible.peek()) return;
  showPanel();
  press(form1().Command12);
  ASSERT_TRUE(panel().form16.Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  press(panel().form16.*button);
  ASSERT_TRUE(window.Visible.peek());
  EXPECT_FALSE(panel().form16.Visible.peek());
  EXPECT_EQ(panel().form16.Label1.Caption.peek(), "");
}

// The button's page takes the place of the others.
void SimulatedWeek::openMakersPage(CommandButton Form17::*page) {
  comeToRest();
  openFeature(&Form16::Command1, maker());
  press(maker().*page);
  EXPECT_EQ(maker().Frame1.Visible.peek(), page == &Form17::Command1);
  EXPECT_EQ(maker().Frame5.Visible.peek(), page == &Form17::Command2);
  EXPECT_EQ(maker().Frame6.Visible.peek(), page == &Form17::Command3);
  EXPECT_EQ(maker().Frame9.Visible.peek(), page == &Form17::Command5);
}

// No call is up.
std::string SimulatedWeek::indicatorsTold() {
  constexpr int kStrongest = 31;
  constexpr int kRoaming = 5;
  const std::string state = tell("state");
  const auto messages = messagesOnCard();
  const bool isNews = std::any_of(messages.begin(), messages.end(), [](const auto& each) {
    return each.second.status == simulator::MessageStatus::kReceivedUnread;
  });
  const int registration = numberBehind("registration ", state);
  const int signal = numberBehind("signal ", state);
  const int bars = signal > kStrongest ? 0 : signal * 5 / kStrongest;
  const std::string gap = ",   ";
  return "BatteryChargeLevel->" + std::to_string(numberBehind("battery ", state)) + gap +
         "signal level-" + std::to_string(bars) + gap +
         (registration == 1 || registration == kRoaming ? "service Enabled" : "service disabled") +
         gap + (isNews ? "Received New Message" : "No New Message") + gap + "No New Call" + gap +
         (registration == kRoaming ? "Roam Enabled" : "Roam Disabled") + gap +
         (freePlaceOnCard() ? "SMS Not FULL" : "SMS  FULL");
}

// The traveller comes home in the end, since callers go elsewhere abroad.
void SimulatedWeek::checkIndicators() {
  openMakersPage(&Form17::Command1);
  EXPECT_EQ(maker().Label14.Caption.peek(), indicatorsTold());
  tell("battery " + std::to_string(below(6)));
  tell("signal " + std::to_string(perhaps(6) ? 99 : below(32)));
  if (perhaps(4)) tell("cell");
  const bool travels = perhaps(3);
  if (travels) tell(perhaps(2) ? "register 5" : "register 0");
  press(maker().Command6);
  EXPECT_EQ(maker().Label14.Caption.peek(), indicatorsTold());
  if (travels) tell("register 1");
}

// Dumps that come by themselves go on until they are stopped, and nobody reads them.
void SimulatedWeek::dumpCells() {
  enum Mode { kOnce, kByItself, kStop };
  openMakersPage(&Form17::Command1);
  if (perhaps(4)) {
    press(maker().Command7);
    expectBox("Select Valid Mode And Request Dump");
  }
  const auto ask = [this](Mode mode) {
    pick(maker().Combo1, mode);
    // A typed one has no code, so the modem takes the last one, which at first has the signal in
    // it: the dispatcher would take that, and the whole reply with it.
    if (module_.hasChosenDump && perhaps(6)) {
      type(maker().Combo2, "all");
    } else {
      pick(maker().Combo2, static_cast<int>(below(3)));
    }
    module_.hasChosenDump = true;
    press(maker().Command7);
    EXPECT_EQ(maker().Label1.Caption.peek(), "Changes SuccessFul-CCED");
  };
  ask(kOnce);
  clearTranscript();
  run(12);
  EXPECT_EQ(transcript(), "") << "once";
  ask(kByItself);
  clearTranscript();
  run(12);
  EXPECT_NE(transcript().find("+CCED:"), std::string::npos) << transcript();
  ask(kStop);
  clearTranscript();
  run(12);
  EXPECT_EQ(transcript(), "");
}

// Only the levels that were asked for come; with all of them silent it is as before. A locked card
// would want its code when it comes back.
void SimulatedWeek::letIndicationsCome() {
  constexpr int kLost = 128;
  constexpr std::size_t kSimLock = 1;
  static const std::vector<std::string> kTyped = {"255", "128", "127", "192", "0"};
  openMakersPage(&Form17::Command1);
  if (perhaps(4)) {
    press(maker().Command8);
    expectBox("Select Indication Level");
  }
  const std::string words = maker().Label5.Caption.peek();
  if (perhaps(2)) {
    pick(maker().Combo3, static_cast<int>(below(10)));
    EXPECT_NE(maker().Label5.Caption.peek(), "");
  } else {
    type(maker().Combo3, oneOf(kTyped));
    EXPECT_EQ(maker().Label5.Caption.peek(), words);
  }
  const int level = std::stoi(maker().Combo3.Text.peek());
  press(maker().Command8);
  EXPECT_EQ(maker().Label1.Caption.peek(), "Changes SuccessFul-WIND");
  clearTranscript();
  if (!isLocked(kSimLock)) {
    tell("sim out");
    run(10);
    EXPECT_EQ(transcript().find("+WIND: 8") != std::string::npos, (level & kLost) != 0)
        << level << ": " << transcript();
    tell("sim in");
    run(20);
  }
  type(maker().Combo3, "0");
  press(maker().Command8);
  EXPECT_EQ(maker().Label1.Caption.peek(), "Changes SuccessFul-WIND");
  clearTranscript();
}

// What the modem tells of the mail comes unasked, and only while it is announced.
void SimulatedWeek::switchVoiceMail() {
  openMakersPage(&Form17::Command2);
  if (perhaps(6)) {
    sent();
    press(maker().Command9);
    EXPECT_EQ(sent(), Texts{}) << "nothing is chosen";
  }
  const int mode = static_cast<int>(below(3));
  pick(maker().Combo4, mode);
  press(maker().Command9);
  EXPECT_EQ(maker().Label6.Caption.peek(), "Changes SuccessFul-CPHS");
  if (mode < 2) module_.announcesMail = mode == 1;
  clearTranscript();
  const bool waits = perhaps(2);
  tell(waits ? "voicemail on" : "voicemail off");
  run(5);
  EXPECT_EQ(transcript(), module_.announcesMail
                              ? std::string("\r\n+WVMI: 1,") + (waits ? "1" : "0") + "\r\n"
                              : "");
  clearTranscript();
}

// The state of a pin is never shown, but the reply that tells of it stays.
void SimulatedWeek::readPin() {
  openMakersPage(&Form17::Command3);
  const std::size_t pin = below(8);
  const bool isSet = perhaps(2);
  tell("pin " + std::to_string(pin) + (isSet ? " set" : " reset"));
  pick(maker().Combo5, static_cast<int>(pin));
  press(maker().Command10);
  EXPECT_EQ(maker().Label9.Caption.peek(), "");
  EXPECT_NE(transcript().find(isSet ? "+WIOR: 1\r" : "+WIOR: 0\r"), std::string::npos)
      << transcript();
}

// A configuration leaves the toolkit on or off as it was.
void SimulatedWeek::setToolkit() {
  static const std::vector<std::string> kConfigs = {"160060C01F", "5FFFFFFF7F", "1f6bffff1f",
                                                    "160060C01", "all"};
  enum Mode { kDeactivate, kActivate, kConfigure };
  comeToRest();
  openFeature(&Form16::Command2, toolkit());
  press(toolkit().Command2);
  const std::string mode = module_.isActive ? "Activate" : "DeActivate";
  EXPECT_EQ(toolkit().Combo1.Text.peek(), mode);
  EXPECT_EQ(toolkit().Label2.Caption.peek(),
            "Current Status: Mode:  " + mode + " SIM ToolKit Functionalities");
  EXPECT_EQ(toolkit().Label3.Caption.peek(), "TIMEOUT: 3");
  EXPECT_EQ(toolkit().Label4.Caption.peek(), "Automatic Response  Activated");
  EXPECT_FALSE(toolkit().Label6.Visible.peek());
  EXPECT_FALSE(toolkit().Text1.Visible.peek());
  const auto wanted = static_cast<int>(below(3));
  pick(toolkit().Combo1, wanted);
  EXPECT_EQ(toolkit().Text1.Visible.peek(), wanted == kConfigure);
  bool isTaken = true;
  if (wanted == kConfigure && perhaps(4)) {
    press(toolkit().Command1);
    expectBox("Enter Valid Config Number");
    EXPECT_FALSE(toolkit().Text1.Visible.peek());
    return;
  }
  if (wanted == kConfigure) {
    const std::string& config = oneOf(kConfigs);
    isTaken = config.size() == 10;
    type(toolkit().Text1, config);
  } else {
    module_.isActive = wanted == kActivate;
  }
  press(toolkit().Command1);
  EXPECT_EQ(toolkit().Label2.Caption.peek(),
            isTaken ? "Changes SuccessFul-SIM ToolKit" : "Changes UnSuccessFul");
  EXPECT_EQ(toolkit().Label6.Visible.peek(), isTaken);
  EXPECT_FALSE(toolkit().Text1.Visible.peek());
}

// A context is read back at once. The letters of "IP" in a name make one of the other type a
// mistaken one: what would be its name begins five characters behind them.
void SimulatedWeek::defineContext() {
  static const std::vector<std::string> kNames = {"internet", "wap.example", "a.b.c", "IP.example",
                                                  "abcdefghijklmnopqrst"};
  comeToRest();
  openFeature(&Form16::Command3, contexts());
  const std::size_t number = 1 + below(kGrid.size());
  const bool isPoint = perhaps(2);
  const std::string name = perhaps(8) ? "" : oneOf(kNames);
  pick(contexts().Combo1, static_cast<int>(number) - 1);
  pick(contexts().Combo2, isPoint ? 1 : 0);
  type(contexts().Text1, name);
  press(contexts().Command1);
  if (name.empty()) {
    expectBox("Please Enter Proper Data");
  } else {
    const bool isMistaken = isPoint && name == "IP.example";
    module_.contexts[static_cast<int>(number)] =
        isMistaken ? "IP|ample" : (isPoint ? "PPP|" : "IP|") + name;
  }
  EXPECT_EQ(contexts().Label1.Caption.peek(), module_.contexts.empty() ? "" : "Current Status");
  EXPECT_EQ(contexts().Label2.Visible.peek(), !module_.contexts.empty());
  for (std::size_t row = 0; row < kGrid.size(); ++row) {
    const ContextBoxes& boxes = kGrid[row];
    const auto context = module_.contexts.find(static_cast<int>(row) + 1);
    const bool isThere = context != module_.contexts.end();
    EXPECT_EQ((contexts().*boxes.number).Visible.peek(), isThere);
    EXPECT_EQ((contexts().*boxes.number).Text.peek(), isThere ? std::to_string(row + 1) : "");
    EXPECT_EQ((contexts().*boxes.type).Text.peek() + "|" + (contexts().*boxes.name).Text.peek(),
              isThere ? context->second : "|");
  }
}

}  // namespace gsm
