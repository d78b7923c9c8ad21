#include "simulator/simulator_options.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "simulator/profile/profile.h"
#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

// Takes the option's value, which is empty for one without operand. False when it doesn't fit.
using Apply = bool (*)(SimulatorOptions& options, std::string_view value);

struct OptionRow {
  std::string_view name;
  std::string_view operand;
  std::string_view help;
  Apply apply;
};

bool setLink(SimulatorOptions& options, std::string_view path) {
  options.link = path;
  return !path.empty();
}

bool setProfile(SimulatorOptions& options, std::string_view path) {
  options.profile = path;
  return !path.empty();
}

bool setPhoneBook(SimulatorOptions& options, std::string_view path) {
  options.phoneBook = path;
  return !path.empty();
}

bool setMessages(SimulatorOptions& options, std::string_view path) {
  options.messages = path;
  return !path.empty();
}

bool setNameRoom(SimulatorOptions& options, std::string_view text) {
  options.modem.nameRoom = parseNumber<std::size_t>(text).value_or(0);
  return options.modem.nameRoom >= kShortestNameRoom && options.modem.nameRoom <= kLongestNameRoom;
}

bool setSpeed(SimulatorOptions& options, std::string_view text) {
  options.modem.speed = parseNumber<int>(text);
  return options.modem.speed && kField<&Profile::speed>.accepts(*options.modem.speed);
}

bool setSim(SimulatorOptions& options, std::string_view name) {
  const auto status = parseSimStatus(name);
  if (status) options.modem.sim = *status;
  return status.has_value();
}

bool setSeed(SimulatorOptions& options, std::string_view text) {
  const auto seed = parseNumber<std::uint64_t>(text);
  options.modem.seed = seed.value_or(0);
  options.seeded = seed.has_value();
  return options.seeded;
}

bool setCut(SimulatorOptions& options, std::string_view name) {
  const auto cutter = Cutter::parse(name);
  if (cutter) options.modem.cutter = *cutter;
  return cutter.has_value();
}

bool addFault(SimulatorOptions& options, std::string_view description) {
  const auto parsed = parseFault(description);
  const auto* fault = std::get_if<FaultPointer>(&parsed);
  if (fault != nullptr) options.modem.faults.push_back(*fault);
  return fault != nullptr;
}

bool setTimeFactor(SimulatorOptions& options, std::string_view text) {
  const auto factor = parseNumber<double>(text);
  options.timeFactor = factor.value_or(0);
  return options.timeFactor >= 0.001 && options.timeFactor <= 1'000'000;
}

bool setSilent(SimulatorOptions& options, std::string_view) {
  options.modem.silent = true;
  return true;
}

bool setHelp(SimulatorOptions& options, std::string_view) {
  options.help = true;
  return true;
}

constexpr OptionRow kOptions[] = {
    {"--link", "PATH", "make PATH a symbolic link to the modem's device", setLink},
    {"--speed", "N", "bits per second, 300 to 115200; 0 for any", setSpeed},
    {"--sim", "STATE", "ready, pin, puk, blocked, out or failed", setSim},
    {"--profile", "FILE", "keep the stored profile in FILE", setProfile},
    {"--phonebook", "FILE", "keep the SIM's phone book in FILE: location, tab, number, tab, name",
     setPhoneBook},
    {"--messages", "FILE",
     "keep the SIM's messages in FILE: location, status, number, time, text, tabs between them",
     setMessages},
    {"--name-room", "N", "longest name in the phone book, 10 to 14", setNameRoom},
    {"--seed", "N", "seed of all chance; makes a run repeatable", setSeed},
    {"--cut", "MODE", "pieces of a reply: whole, real or a number of bytes", setCut},
    {"--fault", "FAULT", "spoil the line, as 'garble 0.01'; may stand several times", addFault},
    {"--time-factor", "F", "let delays pass F times faster than real", setTimeFactor},
    {"--silent", "", "start without hearing or saying anything", setSilent},
    {"--help", "", "show this and end", setHelp},
};

const OptionRow* rowOf(std::string_view name) {
  for (const OptionRow& row : kOptions) {
    if (row.name == name) return &row;
  }
  return nullptr;
}

std::string refusal(const OptionRow& row, std::string_view value) {
  return std::string(row.name) + " doesn't take '" + std::string(value) +
         "': " + std::string(row.operand) + " is wanted (" + std::string(row.help) + ")";
}

}  // namespace

std::variant<SimulatorOptions, std::string> parseOptions(std::span<const char* const> arguments) {
  SimulatorOptions options;
  for (std::size_t at = 0; at < arguments.size(); ++at) {
    const OptionRow* row = rowOf(arguments[at]);
    if (row == nullptr) return "there is no option '" + std::string(arguments[at]) + "'";
    std::string_view value;
    if (!row->operand.empty()) {
      if (++at == arguments.size()) return std::string(row->name) + " wants a value after it";
      value = arguments[at];
    }
    if (!row->apply(options, value)) return refusal(*row, value);
  }
  return options;
}

std::string optionsHelp() {
  constexpr std::size_t kHelpColumn = 22;
  std::string help = "usage: modem-simulator [OPTION]...\n";
  for (const OptionRow& row : kOptions) {
    std::string line = "  " + std::string(row.name) + " " + std::string(row.operand);
    line.resize(std::max(kHelpColumn, line.size() + 1), ' ');
    help.append(line).append(row.help).append("\n");
  }
  return help;
}

}  // namespace gsm::simulator
