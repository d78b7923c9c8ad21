#include "simulator/command_table.h"

#include <iterator>
#include <utility>

namespace gsm::simulator {

namespace {

constexpr CommandRows (*kTables[])() = {
    audioCommands,     dataCommands,    cellCommands,     moduleCommands, operatorCommands,
    packetCommands,    powerCommands,   identityCommands, lineCommands,   profileCommands,
    simCommands,       networkCommands, callCommands,     dialCommands,   callStatusCommands,
    phoneBookCommands, messageCommands,
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
  Reply whole;
  for (const Command& command : parseCommands(body)) {
    const CommandHandler handler = handlerOf(command);
    Reply reply = handler != nullptr ? handler(state, command) : error();
    append(whole.information, reply.information);
    append(whole.afterwards, reply.afterwards);
    whole.result = reply.result;
    whole.code = reply.code;
    whole.later = std::move(reply.later);
    if (whole.failed()) break;
  }
  return whole;
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
