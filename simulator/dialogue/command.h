#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulator/dialogue/arguments.h"

namespace gsm::simulator {

// One command of a command line.
struct Command {
  // The four things that a host can want of a command: to do it, to tell its value (`?`), to set
  // its value (`=`), to list the values that it takes (`=?`).
  enum class Form { kExecute, kQuery, kSet, kTest };

  // In upper case: "+CSQ", "&C", "E", "S0". A badly formed command has a name that none has.
  std::string name;
  Form form = Form::kExecute;

  // After "=", or the digits after the letter of a basic command such as E1.
  Arguments arguments;
};

// The commands of a command line, in order, with `body` being what stands after "AT". Blanks and
// the case of letters outside quotes don't count. Extended commands are joined by semicolons, basic
// ones follow one another directly; D takes all the rest as its one argument.
std::vector<Command> parseCommands(std::string_view body);

}  // namespace gsm::simulator
