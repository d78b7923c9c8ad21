#include <array>

#include "audio/form6.h"
#include "link/conversation.h"
#include "panel/choices.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

constexpr std::array kCallTypes = {
    Item{"Incoming Voice Call", "0"},
    Item{"Incoming Data Call", "1"},
    Item{"Incoming Fax Call", "2"},
    Item{"Incoming SMS", "3"},
};

}  // namespace

void Form6::listMelodies() {
  constexpr int kLastMelody = 10;
  refill(Combo4, kCallTypes);
  Combo5.Clear();
  for (int melody = 0; melody <= kLastMelody; ++melody) Combo5.AddItem(std::to_string(melody));
}

void Form6::changeMelody() try {
  if (Combo4.Text.empty() || Combo5.Text.empty()) return;
  Label7.Caption = "";
  std::string command = "AT+CRMP= " + selectedCode(Combo4, kCallTypes);
  command.append(",").append(std::to_string(Slider11.Value));
  command.append(",0,").append(Combo5.Text.get());
  modem().exchange(command);
  modem().report(Label7, {.ok = "Changes SuccessFul-Ring Melody",
                          .error = "Changes UnSuccessFul-Ring Melody"});
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
