#include "module/form18.h"

#include <algorithm>
#include <array>

#include "link/conversation.h"
#include "panel/choices.h"
#include "panel/panel.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

constexpr std::string_view kConfigure = "Configure";
constexpr std::array kModes = {
    Item{"DeActivate", "0"},
    Item{"Activate", "1"},
    Item{kConfigure, "2"},
};

struct ResponseWords {
  std::string_view digit;
  std::string_view words;
};
constexpr std::array kResponses = {
    ResponseWords{"0", "Automatic Response Not Activated"},
    ResponseWords{"1", "Automatic Response  Activated"},
};

}  // namespace

Form18::Form18(Panel& panel) : ModuleWindow(panel, "Form18", "GSM-SIM TOOl KIT SETTINGS") {
  Combo1.Click = [this] { chooseMode(); };
  Command1.Click = [this] { changeMode(); };
  Command2.Click = [this] { refresh(); };
}

// What it says goes to a label that stays hidden until there is a status, so neither the wait nor
// the modem's refusal is on view at first.
void Form18::Form_Load() try {
  Label2.Caption = "";
  Label6.Visible = false;
  refill(Combo1, kModes);
  Label2.Caption = "Plz Wait.Checking Current Values";
  modem().exchange("AT+STSF?");
  const bool refused = modem().holds("ERROR");
  const Position key = modem().position("+STSF:");
  if (key != 0) showStatus(modem().slice(key + 7, 25));
  if (refused) Label2.Caption = "Cannot Get The Current Status";
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// Mode, a configuration of ten characters in quotes, timeout, response: 0,"160060C01F",3,1. All of
// it and the "OK" behind it must lie within `reply`, or else `invalidArgument`.
void Form18::showStatus(const std::string& reply) {
  const std::string digit = slice(reply, 1, 1);
  const std::string tail = slice(reply, 16, position("OK", reply));
  const std::string timeout = before(",", tail);
  const std::string responseDigit = slice(behind(",", tail), 1, 1);

  std::string modeWords;
  const auto mode = std::find_if(kModes.begin(), kModes.end(),
                                 [&](const Item& each) { return each.code == digit; });
  if (mode != kModes.end()) {
    modeWords = "Mode:  " + std::string(mode->text) + " SIM ToolKit Functionalities";
    Combo1.Text = std::string(mode->text);
  }
  const auto response =
      std::find_if(kResponses.begin(), kResponses.end(),
                   [&](const ResponseWords& each) { return each.digit == responseDigit; });
  for (Label* label : {&Label2, &Label3, &Label4}) label->Visible = true;
  Label2.Caption = "Current Status: " + modeWords;
  Label3.Caption = "TIMEOUT: " + timeout;
  Label4.Caption = response == kResponses.end() ? std::string() : std::string(response->words);
}

// Only a choice by the user opens the configuration: one that was read doesn't.
void Form18::chooseMode() {
  Label6.Visible = false;
  const bool configures = Combo1.Text.get() == kConfigure;
  Text1.Visible = configures;
  Label5.Visible = configures;
  Text1.Text = "";
}

// The text says what kind of command it is, the place in the list which mode: a text that was typed
// has none. One that names no mode sends nothing.
void Form18::changeMode() try {
  Label2.Caption = "";
  Label2.Visible = true;
  for (Label* label : {&Label3, &Label4, &Label6}) label->Visible = false;
  const std::string mode = Combo1.Text;
  if (mode.empty()) return;
  std::string command = "AT+STSF=" + selectedCode(Combo1, kModes);
  modem().clear();
  if (mode == kConfigure) {
    if (Text1.Text.empty()) {
      platform().boxes.show("Enter Valid Config Number");
      closeConfiguration();
      return;
    }
    command.append(",\"").append(Text1.Text.get()).append("\"");
  }
  const bool isMode = std::any_of(kModes.begin(), kModes.end(),
                                  [&](const Item& each) { return each.text == mode; });
  if (isMode) modem().exchange(command);
  const Outcome outcome = modem().report(
      Label2, {.ok = "Changes SuccessFul-SIM ToolKit", .error = "Changes UnSuccessFul"});
  if (outcome != Outcome::none) Label6.Visible = outcome == Outcome::ok;
  modem().clear();
  closeConfiguration();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form18::refresh() {
  closeConfiguration();
  Label6.Visible = false;
  Form_Load();
}

void Form18::closeConfiguration() {
  Text1.Visible = false;
  Label5.Visible = false;
  Text1.Text = "";
}

void Form18::Form_Unload() {
  Label6.Visible = false;
  ModuleWindow::Form_Unload();
}

}  // namespace gsm
