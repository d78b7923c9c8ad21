#include "simulator/console/console_table.h"

#include <algorithm>

#include "simulator/commands/command_table.h"
#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

constexpr ConsoleRows (*kTables[])() = {networkConsole, simConsole,  callConsole,   messageConsole,
                                        serviceConsole, lineConsole, moduleConsole, generalConsole};

// Where the explanations start in the help.
constexpr std::size_t kHelpColumn = 44;

std::string usage(const ConsoleRow& row) {
  std::string text(row.name);
  if (!row.operands.empty()) text.append(" ").append(row.operands);
  return text;
}

std::string run(const ConsoleRow& row, ModemState& state, std::string_view operands) {
  if (row.operands.empty() && !operands.empty()) return consoleError(usage(row) + " stands alone");
  std::string answer = row.run(state, operands);
  return answer == kWrongUse ? consoleError("usage: " + usage(row)) : answer;
}

}  // namespace

std::optional<bool> parseSwitch(std::string_view word) {
  if (word == "on") return true;
  if (word == "off") return false;
  return std::nullopt;
}

std::string consoleHelp() {
  std::string help;
  for (const auto table : kTables) {
    for (const ConsoleRow& row : table()) {
      std::string line = usage(row);
      line.resize(std::max(kHelpColumn, line.size() + 2), ' ');
      help.append(help.empty() ? "" : "\n").append(line).append(row.help);
    }
  }
  return help + "\nanswered by the AT standard alone: " + standardCommands();
}

std::string runConsoleLine(ModemState& state, std::string_view line) {
  const std::string_view name = takeWord(line);
  if (name.empty()) return {};
  for (const auto table : kTables) {
    for (const ConsoleRow& row : table()) {
      if (row.name == name) return run(row, state, line);
    }
  }
  return consoleError("no command '" + std::string(name) + "'; 'help' lists them");
}

}  // namespace gsm::simulator
