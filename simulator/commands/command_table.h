#pragma once

#include <span>
#include <string>
#include <string_view>

#include "simulator/dialogue/command.h"
#include "simulator/dialogue/reply.h"
#include "simulator/state/modem_state.h"

namespace gsm::simulator {

// Does one command. It may change the state; the reply isn't out yet when it returns.
using CommandHandler = Reply (*)(ModemState& state, const Command& command);

// A command with what it does in each form. A form without a handler answers ERROR.
struct CommandRow {
  std::string_view name;
  CommandHandler execute = nullptr;
  CommandHandler query = nullptr;
  CommandHandler set = nullptr;
  CommandHandler test = nullptr;

  // Nobody has noted down what a modem of this family answers: its bytes are the AT standard's.
  bool standardOnly = false;
};

// The same row, marked as one that follows the standard alone.
constexpr CommandRow fromStandard(CommandRow row) {
  row.standardOnly = true;
  return row;
}

using CommandRows = std::span<const CommandRow>;

// The tables, one for each subject, in the file of that name.
CommandRows audioCommands();
CommandRows dataCommands();
CommandRows cellCommands();
CommandRows moduleCommands();
CommandRows operatorCommands();
CommandRows packetCommands();
CommandRows powerCommands();
CommandRows identityCommands();
CommandRows lineCommands();
CommandRows profileCommands();
CommandRows simCommands();
CommandRows networkCommands();
CommandRows callCommands();
CommandRows dialCommands();
CommandRows callStatusCommands();
CommandRows phoneBookCommands();
CommandRows messageCommands();
CommandRows messageStoreCommands();
CommandRows messageSendCommands();
CommandRows serviceCommands();
CommandRows lockCommands();

// The handler for a command; null when there is none.
CommandHandler handlerOf(const Command& command);

// Does the commands of a line, with `body` being what stands after "AT", up to the first that
// fails. The reply holds what all of them say, and the result of the last one done. Those after a
// command that takes its time wait for it.
Reply executeLine(ModemState& state, std::string_view body);

// The commands that follow the standard alone, with blanks between them.
std::string standardCommands();

}  // namespace gsm::simulator
