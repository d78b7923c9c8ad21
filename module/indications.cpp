#include <array>

#include "link/conversation.h"
#include "module/form17.h"
#include "panel/choices.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

constexpr std::array kDumpModes = {
    Item{"1 Shot Request", "0"},
    Item{"Automatic Shot Request", "1"},
    Item{"Stop Automatic Shot", "2"},
};

constexpr std::array kDumps = {
    Item{"Main Cell", "1"},
    Item{"Neighbour1-Neighbour2", "2"},
    Item{"Timing Advance", "4"},
};

// A bit of the module's mask. The list offers them one at a time; a sum has to be typed.
struct Level {
  std::string_view bit;
  std::string_view words;
};
constexpr std::array kLevels = {
    Level{"0", "WIND disable"},
    Level{"1", "The SIM Presence Has Been Detected"},
    Level{"2", "Calling Party Is Alerting"},
    Level{"4", "Module is Ready to Treat AT Commands(Except phonebook,AOC,SMS)"},
    Level{"8", "Module Is Ready To Treat ALL AT Commands At The End Of Init"},
    Level{"16", "Indication that a New Call Identifier Has Been Created"},
    Level{"32",
          "Indication that an Active,Held or Waiting Call Has Been Released by network or other "
          "Party"},
    Level{"64", "Network Service Avialable Indication"},
    Level{"128", "Network Lost Indication"},
    Level{"256", "Audio On Indication"},
};

}  // namespace

// Each visit builds the lists anew, which loses what was chosen, and reads.
void Form17::openIndications() {
  turnTo(Frame1);
  refill(Combo1, kDumpModes);
  refill(Combo2, kDumps);
  Combo3.Clear();
  for (const Level& level : kLevels) Combo3.AddItem(std::string(level.bit));
  readIndicators();
}

void Form17::changeDump() try {
  if (Combo1.Text.empty() || Combo2.Text.empty()) {
    platform().boxes.show("Select Valid Mode And Request Dump");
    return;
  }
  Label1.Caption = "";
  change("AT+CCED=" + selectedCode(Combo1, kDumpModes) + "," + selectedCode(Combo2, kDumps), Label1,
         {.ok = "Changes SuccessFul-CCED", .error = "Changes UnSuccessFul-CCED"});
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// A typed level has no words of its own: it keeps those of the last one that was chosen.
void Form17::showLevel() try {
  const auto chosen = static_cast<std::size_t>(Combo3.ListIndex.get());
  Label5.Caption = chosen < kLevels.size() ? std::string(kLevels[chosen].words) : "";
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form17::changeLevel() try {
  if (Combo3.Text.empty()) {
    platform().boxes.show("Select Indication Level");
    return;
  }
  Label1.Caption = "";
  change("AT+WIND=" + Combo3.Text.get(), Label1,
         {.ok = "Changes SuccessFul-WIND", .error = "Changes UnSuccessFul-WIND"});
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
