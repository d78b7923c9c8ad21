#include "simulator/commands/profile_number.h"

// How calls are announced and heard. Who waits is among the network's services.
namespace gsm::simulator {

namespace {

// The second value says that the network offers the service.
Reply queryCallerId(ModemState& state, const Command& command) {
  return ok(headed(command, std::to_string(state.settings.profile.callerId) + ",1"));
}

constexpr CommandRow kCallCommands[] = {
    {.name = "+CLIP",
     .query = queryCallerId,
     .set = setNumbers<&Profile::callerId>,
     .test = listNumbers<&Profile::callerId>},
    profileNumbers<&Profile::callTypes>("+CRC"),
    profileNumbers<&Profile::speaker>("+SPEAKER"),
};

}  // namespace

CommandRows callCommands() { return kCallCommands; }

}  // namespace gsm::simulator
