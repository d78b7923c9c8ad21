#include <variant>

#include "simulator/console/console_table.h"
#include "simulator/line/line_speed.h"
#include "simulator/text/text.h"

// The console's hands on the line between modem and host.
namespace gsm::simulator {

namespace {

std::string setSilent(ModemState& state, std::string_view operand) {
  const auto on = parseSwitch(operand);
  if (!on) return wrongUse();
  if (state.off) return consoleError("there is no power; 'power on' brings it back");
  state.silent = *on;
  return {};
}

std::string setPlugged(ModemState& state, bool plugged) {
  if (state.plugged == plugged) return consoleError(plugged ? "plugged already" : "not plugged");
  state.plugged = plugged;
  if (state.surroundings.plugChanged) state.surroundings.plugChanged(plugged);
  return {};
}

std::string unplug(ModemState& state, std::string_view) { return setPlugged(state, false); }
std::string plug(ModemState& state, std::string_view) { return setPlugged(state, true); }

// Bytes as they are, whatever state the modem is in.
std::string say(ModemState& state, std::string_view operand) {
  const auto bytes = unescaped(operand);
  if (!bytes || bytes->empty()) return wrongUse();
  state.transmitter.send(Source::kConsole, *bytes);
  return {};
}

std::string sendLine(ModemState& state, std::string_view text) {
  if (text.empty()) return wrongUse();
  state.transmitter.send(Source::kUnsolicited, framedLine(text, state.settings.profile));
  return {};
}

std::string setEcho(ModemState& state, std::string_view operand) {
  const auto on = parseSwitch(operand);
  if (!on) return wrongUse();
  state.settings.profile.echo = *on ? 1 : 0;
  return {};
}

std::string setSpeed(ModemState& state, std::string_view operand) {
  const auto speed = parseNumber<int>(operand);
  if (!speed || !kField<&Profile::speed>.accepts(*speed)) return wrongUse();
  state.changeSpeed(*speed);
  return {};
}

std::string addFault(ModemState& state, std::string_view description) {
  const auto parsed = parseFault(description);
  if (const auto* complaint = std::get_if<std::string>(&parsed)) return consoleError(*complaint);
  state.transmitter.faults().add(std::get<FaultPointer>(parsed));
  return {};
}

std::string changeFaults(ModemState& state, std::string_view operands) {
  const std::string_view verb = takeWord(operands);
  if (verb == "add") return addFault(state, operands);
  if (verb != "clear" || !operands.empty()) return wrongUse();
  state.transmitter.faults().clear();
  return {};
}

constexpr ConsoleRow kLineConsole[] = {
    {"silent", "on|off", "hear nothing and say nothing, or be awake again", setSilent},
    {"unplug", "", "pull the plug: the port vanishes", unplug},
    {"plug", "", "put the plug back", plug},
    {"say", "\"BYTES\"", "send bytes as they are; \\r \\n \\t \\\\ \\\" \\xHH", say},
    {"line", "TEXT", "send an unsolicited line", sendLine},
    {"echo", "on|off", "echo what the host writes", setEcho},
    {"speed", "BITS-PER-SECOND", "listen at a speed, 300 to 115200; 0 for any", setSpeed},
    {"fault", "add KIND OPERAND | clear", "spoil the line: cut, delay, garble, drop, interject",
     changeFaults},
};

}  // namespace

ConsoleRows lineConsole() { return kLineConsole; }

}  // namespace gsm::simulator
