#pragma once

#include <string>

#include "simulator/commands/command_table.h"

// Most commands read and set one number of the profile and do nothing else. Their rows are made
// here, from the member alone.
namespace gsm::simulator {

// "+NAME: `rest`", the form of nearly all information responses.
inline std::string headed(const Command& command, std::string_view rest) {
  return command.name + ": " + std::string(rest);
}

// The reply to `=?` of a command that has nothing to list.
inline Reply isSupported(ModemState&, const Command&) { return ok(); }

// Sets the members to the command's values, one each. A value left out, at the end or between
// commas, stays as it is. Nothing changes unless all values are right.
template <int Profile::*... members>
Reply setNumbers(ModemState& state, const Command& command) {
  constexpr std::size_t kCount = sizeof...(members);
  if (command.arguments.size() == 0 || command.arguments.size() > kCount) return error();
  Profile changed = state.settings.profile;
  Reply reply = ok();
  std::size_t index = 0;
  const auto take = [&](const ProfileField& field) {
    const std::size_t at = index++;
    if (reply.failed() || !command.arguments.has(at)) return;
    const auto value = command.arguments.number(at);
    if (!value) {
      reply = error();
    } else if (!field.accepts(*value)) {
      reply = error(EquipmentError::kNotSupported);
    } else {
      changed.*field.member = *value;
    }
  };
  (take(kField<members>), ...);
  if (!reply.failed()) state.settings.profile = changed;
  return reply;
}

// Tells the members' values, separated by commas.
template <int Profile::*... members>
Reply queryNumbers(ModemState& state, const Command& command) {
  std::string values;
  ((values += (values.empty() ? "" : ",") + std::to_string(state.settings.profile.*members)), ...);
  return ok(headed(command, values));
}

// Lists the values that the members take.
template <int Profile::*... members>
Reply listNumbers(ModemState&, const Command& command) {
  std::string ranges;
  ((ranges += (ranges.empty() ? "" : ",") + kField<members>.range.listing()), ...);
  return ok(headed(command, ranges));
}

// A basic command with a digit, such as E1; without the digit it means 0.
template <int Profile::*member>
Reply switchNumber(ModemState& state, const Command& command) {
  const auto value = command.arguments.size() == 0 ? 0 : command.arguments.number(0);
  if (!value || !kField<member>.accepts(*value)) return error();
  state.settings.profile.*member = *value;
  return ok();
}

// The row of an extended command that holds one or several numbers.
template <int Profile::*... members>
constexpr CommandRow profileNumbers(std::string_view name) {
  return {.name = name,
          .query = queryNumbers<members...>,
          .set = setNumbers<members...>,
          .test = listNumbers<members...>};
}

// The row of a basic command that holds one digit.
template <int Profile::*member>
constexpr CommandRow profileSwitch(std::string_view name) {
  return {.name = name, .execute = switchNumber<member>};
}

}  // namespace gsm::simulator
