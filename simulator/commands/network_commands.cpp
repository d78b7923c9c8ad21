#include <string>

#include "simulator/commands/profile_number.h"

// The network as the modem sees it: signal, registration, indications.
namespace gsm::simulator {

namespace {

std::string signalText(const Network& network) {
  return std::to_string(network.signal) + "," + std::to_string(network.bitErrorRate);
}

Reply querySignal(ModemState& state, const Command& command) {
  return ok(headed(command, signalText(state.network)));
}

Reply listSignals(ModemState&, const Command& command) {
  return ok(headed(command, "(0-31,99),(0-7,99)"));
}

Reply queryRegistration(ModemState& state, const Command& command) {
  const std::string mode = std::to_string(state.settings.profile.registrationNotices);
  return ok(headed(command, mode + "," + state.network.registrationText()));
}

Reply queryIndications(ModemState& state, const Command& command) {
  return ok(headed(command, std::to_string(state.settings.windMask())));
}

Reply setIndications(ModemState& state, const Command& command) {
  const auto mask = command.arguments.number(0);
  if (command.arguments.size() != 1 || !mask) return error();
  if (!kWindRange.holds(*mask)) return error(EquipmentError::kNotSupported);
  return state.settings.setWindMask(*mask) ? ok() : error(EquipmentError::kNotAllowed);
}

Reply listIndications(ModemState&, const Command& command) {
  return ok(headed(command, kWindRange.listing()));
}

constexpr CommandRow kNetworkCommands[] = {
    {.name = "+CSQ", .execute = querySignal, .test = listSignals},
    {.name = "+CREG",
     .query = queryRegistration,
     .set = setNumbers<&Profile::registrationNotices>,
     .test = listNumbers<&Profile::registrationNotices>},
    {.name = "+WIND", .query = queryIndications, .set = setIndications, .test = listIndications},
};

}  // namespace

CommandRows networkCommands() { return kNetworkCommands; }

}  // namespace gsm::simulator
