#include <array>

#include "simulator/profile_number.h"
#include "simulator/text.h"

// How messages and texts are shown and announced.
namespace gsm::simulator {

namespace {

constexpr std::array<std::string_view, 4> kCharacterSets = {"GSM", "PCCP437", "CUSTOM", "HEX"};

Reply queryCharacterSet(ModemState& state, const Command& command) {
  const auto index = static_cast<std::size_t>(state.settings.profile.characterSet);
  return ok(headed(command, quoted(kCharacterSets.at(index))));
}

Reply setCharacterSet(ModemState& state, const Command& command) {
  if (command.arguments.size() != 1) return error();
  for (std::size_t index = 0; index < kCharacterSets.size(); ++index) {
    if (kCharacterSets[index] != command.arguments.text(0)) continue;
    state.settings.profile.characterSet = static_cast<int>(index);
    return ok();
  }
  return error(EquipmentError::kNotSupported);
}

Reply listCharacterSets(ModemState&, const Command& command) {
  std::string names;
  for (const auto name : kCharacterSets) names += (names.empty() ? "" : ",") + quoted(name);
  return ok(headed(command, "(" + names + ")"));
}

constexpr CommandRow kRows[] = {
    profileNumbers<&Profile::textMode>("+CMGF"),
    profileNumbers<&Profile::messageNotices, &Profile::messageRoute, &Profile::broadcastRoute,
                   &Profile::reportRoute, &Profile::noticeBuffer>("+CNMI"),
    {.name = "+CSCS",
     .query = queryCharacterSet,
     .set = setCharacterSet,
     .test = listCharacterSets},
};

}  // namespace

CommandRows messageCommands() { return kRows; }

}  // namespace gsm::simulator
