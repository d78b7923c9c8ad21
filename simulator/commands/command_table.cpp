#include "simulator/commands/command_table.h"

#include <iterator>
#include <utility>
#include <vector>

namespace gsm::simulator {

namespace {

constexpr CommandRows (*kTables[])() = {
    identityCommands,  lineCommands,    profileCommands,      simCommands,
    networkCommands,   callCommands,    dialCommands,         callStatusCommands,
    phoneBookCommands, messageCommands, messageStoreCommands, messageSendCommands,
    serviceCommands,   lockCommands,    audioCommands,        dataCommands,
    cellCommands,      moduleCommands,  operatorCommands,     packetCommands,
    powerCommands,
};

const CommandRow* rowOf(std::string_view name) {
  for (const auto table : kTables) {
    for (const CommandRow& row : table()) {
      if (row.name == name) return &row;
    }
  }
  return nullptr;
}

template <typename Value>
void append(std::vector<Value>& to, std::vector<Value>& from) {
  to.insert(to.end(), std::make_move_iterator(from.begin()), std::make_move_iterator(from.end()));
}

// Puts what a command answers after what those before it did. The last result is the line's.
Reply joined(Reply whole, Reply reply) {
  append(whole.information, reply.information);
  append(whole.afterwards, reply.afterwards);
  whole.result = reply.result;
  whole.code = reply.code;
  whole.later = std::move(reply.later);
  return whole;
}

Reply execute(ModemState& state, std::span<const Command> commands);

// Lets the commands after one that takes its time wait for it, and be left out when it fails.
BeginCommand withRest(ModemState& state, BeginCommand begin, std::span<const Command> rest) {
  if (rest.empty()) return begin;
  return [&state, begin = std::move(begin),
          rest = std::vector<Command>(rest.begin(), rest.end())](const FinishCommand& finish) {
    begin([&state, rest, finish](Reply reply) {
      if (reply.failed()) return finish(std::move(reply));
      Reply whole = joined(std::move(reply), execute(state, rest));
      const BeginCommand later = std::exchange(whole.later, nullptr);
      if (!later) return finish(std::move(whole));
      later([whole, finish](Reply last) { finish(joined(whole, std::move(last))); });
    });
  };
}

Reply execute(ModemState& state, std::span<const Command> commands) {
  Reply whole;
  for (std::size_t at = 0; at < commands.size() && !whole.failed() && !whole.later; ++at) {
    const CommandHandler handler = handlerOf(commands[at]);
    whole = joined(std::move(whole), handler != nullptr ? handler(state, commands[at]) : error());
    if (whole.later) {
      whole.later = withRest(state, std::move(whole.later), commands.subspan(at + 1));
    }
  }
  return whole;
}

}  // namespace

CommandHandler handlerOf(const Command& command) {
  const CommandRow* row = rowOf(command.name);
  if (row == nullptr) return nullptr;
  switch (command.form) {
    case Command::Form::kExecute: return row->execute;
    case Command::Form::kQuery: return row->query;
    case Command::Form::kSet: return row->set;
    case Command::Form::kTest: return row->test;
  }
  return nullptr;
}

Reply executeLine(ModemState& state, std::string_view body) {
  const std::vector<Command> commands = parseCommands(body);
  return execute(state, commands);
}

std::string standardCommands() {
  std::string names;
  for (const auto table : kTables) {
    for (const CommandRow& row : table()) {
      if (row.standardOnly) names.append(names.empty() ? "AT" : " AT").append(row.name);
    }
  }
  return names;
}

}  // namespace gsm::simulator
