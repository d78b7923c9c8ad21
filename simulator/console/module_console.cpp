#include <optional>

#include "simulator/console/console_table.h"
#include "simulator/state/power.h"
#include "simulator/text/text.h"

// The console's hands on the module itself.
namespace gsm::simulator {

namespace {

constexpr Range kPinNumbers = {0, static_cast<int>(kPins) - 1};
constexpr Range kBatteryLevels = {0, kFullBattery};

std::string setPin(ModemState& state, std::string_view operands) {
  const auto given = words(operands);
  if (given.size() != 2) return wrongUse();
  const auto pin = parseNumber<int>(given[0]);
  const bool set = given[1] == "set";
  if (!pin || !kPinNumbers.holds(*pin) || (!set && given[1] != "reset")) return wrongUse();
  state.module.pins[static_cast<std::size_t>(*pin)] = set;
  return {};
}

std::string setPower(ModemState& state, std::string_view operand) {
  if (operand != "on") return wrongUse();
  if (!state.off) return consoleError("the power is on");
  switchOn(state);
  return {};
}

std::string setBattery(ModemState& state, std::string_view operand) {
  const auto level = parseNumber<int>(operand);
  if (!level || !kBatteryLevels.holds(*level)) return wrongUse();
  state.module.battery = *level;
  return {};
}

std::string setVoiceMail(ModemState& state, std::string_view operand) {
  if (operand != "on" && operand != "off") return wrongUse();
  VoiceMail& mail = state.module.voiceMail;
  mail.waiting = operand == "on";
  if (mail.announced) state.notices.line(voiceMailLine(mail));
  return {};
}

std::string changeCell(ModemState& state, std::string_view) {
  state.network.changeCell();
  return {};
}

constexpr ConsoleRow kModuleConsole[] = {
    {"pin", "N set|reset", "what is wired to pin 0 to 7 sets it or resets it", setPin},
    {"power", "on", "switch on again what AT+CPOF switched off", setPower},
    {"battery", "N", "what AT+CIND? reports: 0 empty to 5 full", setBattery},
    {"voicemail", "on|off", "a message waits in the voice mail, or none does", setVoiceMail},
    {"cell", "", "move to the neighbouring cell", changeCell},
};

}  // namespace

ConsoleRows moduleConsole() { return kModuleConsole; }

}  // namespace gsm::simulator
