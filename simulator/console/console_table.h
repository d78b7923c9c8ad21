#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "simulator/state/modem_state.h"

namespace gsm::simulator {

// Does one console command; `operands` is what stands after its name, without the blanks around
// it. Returns what to print: nothing, an answer, or wrongUse.
using ConsoleHandler = std::string (*)(ModemState& state, std::string_view operands);

// A console command with what `help` says of it.
struct ConsoleRow {
  std::string_view name;
  std::string_view operands;
  std::string_view help;
  ConsoleHandler run;
};

using ConsoleRows = std::span<const ConsoleRow>;

// The tables, one for each subject, in the file of that name.
ConsoleRows lineConsole();
ConsoleRows networkConsole();
ConsoleRows simConsole();
ConsoleRows callConsole();
ConsoleRows messageConsole();
ConsoleRows serviceConsole();
ConsoleRows moduleConsole();
ConsoleRows generalConsole();

// What a handler returns when its operands don't fit; it is replaced by an error that shows how the
// command is written.
inline constexpr std::string_view kWrongUse = "wrong use";
inline std::string wrongUse() { return std::string(kWrongUse); }

inline std::string consoleError(std::string_view text) { return "error: " + std::string(text); }

// True for "on", false for "off"; nothing for any other word.
std::optional<bool> parseSwitch(std::string_view word);

// All commands, one on a line, with their operands and what they do; after them the AT commands
// whose answers no modem was heard to give.
std::string consoleHelp();

// Finds the command and does it. An empty line does nothing.
std::string runConsoleLine(ModemState& state, std::string_view line);

}  // namespace gsm::simulator
