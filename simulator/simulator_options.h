#pragma once

#include <optional>
#include <span>
#include <string>
#include <variant>

#include "simulator/state/modem_options.h"

namespace gsm::simulator {

// What the program's command line asks for.
struct SimulatorOptions {
  ModemOptions modem;
  std::optional<std::string> link;       // path of a symbolic link to the modem's device
  std::optional<std::string> profile;    // file of the stored profile
  std::optional<std::string> phoneBook;  // file of the SIM's phone book
  std::optional<std::string> messages;   // file of the SIM's messages
  bool seeded = false;                   // modem.seed was given
  double timeFactor = 1;                 // how many times faster than real the modem's delays run
  bool help = false;
};

// Reads the arguments after the program's name. Of an option given twice the last one counts,
// except --fault, which adds. Returns the error, as a sentence, when one isn't right.
std::variant<SimulatorOptions, std::string> parseOptions(std::span<const char* const> arguments);

// What --help prints.
std::string optionsHelp();

}  // namespace gsm::simulator
