#include <algorithm>
#include <array>
#include <string_view>

#include "modem/form20.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"
#include "settings/form15.h"

namespace gsm {
namespace {

// In the order in which they are looked for: a modem at 57600 shows "600".
constexpr std::array kSpeeds = {"9600", "115200", "19200", "300",   "600",
                                "1200", "2400",   "4800",  "38400", "57600"};

// What a digit of "+ICF:" stands for: words for the panel, an option of the settings window.
struct Choice {
  std::string_view digit;
  std::string_view words;
  OptionButton Form15::*option;
};
constexpr std::array kFormats = {
    Choice{"0", "Character Framing:Auto Detect", &Form15::Option1},
    Choice{"1", "8 Data,2 Stop", &Form15::Option2},
    Choice{"2", "8 Data,1 Parity,1 Stop", &Form15::Option3},
    Choice{"3", "8 Data,1 Stop", &Form15::Option4},
    Choice{"4", "7 Data,2 Stop", &Form15::Option5},
    Choice{"5", "7 Data,1 Parity,1 Stop", &Form15::Option6},
    Choice{"6", "7 Data,1 Stop", &Form15::Option7},
};
constexpr std::array kParities = {
    Choice{"0", "Parity:Odd", &Form15::Option8},   Choice{"1", "Parity:Even", &Form15::Option9},
    Choice{"2", "Parity:Mark", &Form15::Option10}, Choice{"3", "Parity:Space", &Form15::Option11},
    Choice{"4", "Parity:None", &Form15::Option12},
};

// Selects the option of `digit`, if there is one, and returns its words.
template <class Choices>
std::string choose(const Choices& choices, std::string_view digit, Form15& window) {
  const auto choice = std::find_if(choices.begin(), choices.end(),
                                   [digit](const Choice& each) { return each.digit == digit; });
  if (choice == choices.end()) return {};
  (window.*choice->option).Value = true;
  return std::string(choice->words);
}

}  // namespace

void Form1::ShowModemSpeed() try {
  const auto speed = std::find_if(kSpeeds.begin(), kSpeeds.end(),
                                  [this](const char* each) { return Text1.holds(each); });
  if (speed == kSpeeds.end()) return;
  Label6.Caption = *speed;
  panel_.form15.Combo1.Text = *speed;
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form1::ShowCharacterFraming() try {
  const Position key = Text1.position("+ICF:");
  if (key != 0) {
    Form15& window = panel_.form15;
    const std::string format = choose(kFormats, Text1.slice(key + 6, 1), window);
    const std::string parity = choose(kParities, Text1.slice(key + 8, 1), window);
    window.Option28.Value = true;
    Label7.Caption = "Character Framing:" + format + " " + parity + "ECHO:Enabled";
    Frame5.Visible = false;
    for (CommandButton* button : {&Command1, &Command2, &Command3, &Command4, &Command5, &Command6,
                                  &Command10, &Command12, &Command11}) {
      button->Enabled = true;
    }
    panel_.form20.Timer1.Enabled = true;
  }
  Text1.clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// One place before ShowCharacterFraming, since the profile's line has no blank behind its colon.
void Form1::ParseCharacterFraming() try {
  const Position key = Text1.position("+ICF:");
  if (key == 0) return;
  choose(kFormats, Text1.slice(key + 5, 1), panel_.form15);
  choose(kParities, Text1.slice(key + 7, 1), panel_.form15);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
