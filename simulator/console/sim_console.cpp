#include "simulator/card/phone_book_text.h"
#include "simulator/console/console_table.h"

// The console's hands on the SIM card.
namespace gsm::simulator {

namespace {

std::string takeOut(ModemState& state) {
  if (state.sim.status() == SimStatus::kAbsent) return consoleError("the card is out already");
  state.sim.remove();
  state.notices.indicate(Indication::kSimPresence, "0");
  state.notices.simFailure();
  state.calls.lose();
  state.network.lose();
  return {};
}

std::string putIn(ModemState& state) {
  if (state.sim.status() != SimStatus::kAbsent) return consoleError("the card is in already");
  state.sim.insert();
  state.notices.indicate(Indication::kSimPresence, "1");
  if (state.sim.status() == SimStatus::kReady) state.network.search();
  return {};
}

std::string force(ModemState& state, SimStatus status) {
  state.sim.force(status);
  if (status == SimStatus::kFailed) state.notices.simFailure();
  if (status == SimStatus::kReady) {
    state.network.search();
  } else {
    state.calls.lose();
    state.network.lose();
  }
  return {};
}

std::string changeSim(ModemState& state, std::string_view operand) {
  if (operand == "in") return putIn(state);
  const auto status = parseSimStatus(operand);
  if (!status) return wrongUse();
  return *status == SimStatus::kAbsent ? takeOut(state) : force(state, *status);
}

std::string showPhoneBook(ModemState& state, std::string_view) {
  std::string entries = toText(state.phoneBook.entries());
  if (entries.empty()) return "none";
  entries.pop_back();  // the console ends the line itself
  return entries;
}

constexpr ConsoleRow kSimConsole[] = {
    {"phonebook", "", "show the card's entries: location, number and name", showPhoneBook},
    {"sim", "ready|pin|puk|blocked|failed|out|in", "change the card, take it out or put it in",
     changeSim},
};

}  // namespace

ConsoleRows simConsole() { return kSimConsole; }

}  // namespace gsm::simulator
