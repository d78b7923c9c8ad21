#include <array>

#include "simulator/commands/profile_number.h"
#include "simulator/commands/sim_trouble.h"
#include "simulator/text/phone_number.h"
#include "simulator/text/text.h"

// How messages and texts are sent, shown and announced.
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

Reply queryServiceCentre(ModemState& state, const Command& command) {
  if (const auto trouble = messageTrouble(state.sim.status())) return error(*trouble);
  return ok(headed(command, numberFields(state.messages.serviceCentre)));
}

// "=NUMBER[,TYPE]". No number is fine until a message is to be sent.
Reply setServiceCentre(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  if (given.size() < 1 || given.size() > 2) return error();
  if (const auto trouble = messageTrouble(state.sim.status())) return error(*trouble);
  std::string number(given.text(0));
  if (!number.empty() && !isPhoneNumber(number)) return error(MessageError::kTextModeParameter);
  const bool lacksPlus = !number.empty() && !number.starts_with('+');
  if (lacksPlus && given.number(1) == kInternationalNumber) number.insert(0, "+");
  state.messages.serviceCentre = number;
  return ok();
}

Reply queryBroadcast(ModemState& state, const Command& command) {
  const auto& [mode, kinds, languages] = state.messages.broadcast;
  return ok(headed(command, std::to_string(mode) + "," + quoted(kinds) + "," + quoted(languages)));
}

constexpr Range kBroadcastModes = {0, 1};

// "=MODE[,KINDS[,LANGUAGES]]", in the standard's way: 0 takes pages, 1 takes none.
Reply setBroadcast(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const auto mode = given.number(0);
  if (given.size() > 3 || !mode) return error();
  if (!kBroadcastModes.holds(*mode)) return error(MessageError::kTextModeParameter);
  state.messages.broadcast.mode = *mode;
  if (given.size() > 1) state.messages.broadcast.kinds = given.text(1);
  if (given.size() > 2) state.messages.broadcast.languages = given.text(2);
  return ok();
}

Reply listBroadcastModes(ModemState&, const Command& command) {
  return ok(headed(command, kBroadcastModes.listing()));
}

constexpr CommandRow kMessageCommands[] = {
    profileNumbers<&Profile::textMode>("+CMGF"),
    profileNumbers<&Profile::messageNotices, &Profile::messageRoute, &Profile::broadcastRoute,
                   &Profile::reportRoute, &Profile::noticeBuffer>("+CNMI"),
    profileNumbers<&Profile::messageKind, &Profile::messageValidity, &Profile::messageProtocol,
                   &Profile::messageCoding>("+CSMP"),
    fromStandard({.name = "+CSCA",
                  .query = queryServiceCentre,
                  .set = setServiceCentre,
                  .test = isSupported}),
    fromStandard({.name = "+CSCB",
                  .query = queryBroadcast,
                  .set = setBroadcast,
                  .test = listBroadcastModes}),
    {.name = "+CSCS",
     .query = queryCharacterSet,
     .set = setCharacterSet,
     .test = listCharacterSets},
};

}  // namespace

CommandRows messageCommands() { return kMessageCommands; }

}  // namespace gsm::simulator
