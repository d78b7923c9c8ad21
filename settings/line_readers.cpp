#include <algorithm>
#include <array>
#include <string_view>

#include "modem/form20.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"
#include "settings/form15.h"
#include "settings/line_options.h"

namespace gsm {
namespace {

// In the order in which they are looked for: a modem at 57600 shows "600".
constexpr std::array kSpeedsToLookFor = {"9600", "115200", "19200", "300",   "600",
                                         "1200", "2400",   "4800",  "38400", "57600"};

// Sets the option of `code`, if there is one, and returns its words.
std::string choose(std::span<const OptionCode<Form15>> options, std::string_view code,
                   Form15& window) {
  const auto* chosen = selectOption<Form15>(window, options, code);
  return chosen == nullptr ? std::string() : std::string(chosen->words);
}

}  // namespace

void Form1::ShowModemSpeed() try {
  const auto speed = std::find_if(kSpeedsToLookFor.begin(), kSpeedsToLookFor.end(),
                                  [this](const char* each) { return Text1.holds(each); });
  if (speed == kSpeedsToLookFor.end()) return;
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
