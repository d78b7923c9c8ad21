#include "simulator/commands/profile_number.h"
#include "simulator/profile/profile_dump.h"

// Storing, reloading and showing the profile.
namespace gsm::simulator {

namespace {

// These commands know profile 0 alone, which the digit may name.
bool namesProfileZero(const Command& command) {
  return command.arguments.size() == 0 || command.arguments.number(0) == 0;
}

Reply storeProfile(ModemState& state, const Command& command) {
  if (!namesProfileZero(command)) return error();
  return state.settings.storeProfile() ? ok() : error(EquipmentError::kNotAllowed);
}

Reply restoreFactory(ModemState& state, const Command& command) {
  if (!namesProfileZero(command)) return error();
  if (!state.settings.restoreFactory()) return error(EquipmentError::kNotAllowed);
  Reply reply = ok();
  reply.afterwards.push_back([&state] { state.applyFraming(); });
  return reply;
}

// As with AT+IPR, another speed waits for the OK, and so does another framing.
Reply reloadProfile(ModemState& state, const Command& command) {
  if (!namesProfileZero(command)) return error();
  state.settings.reloadProfile();
  Reply reply = ok();
  reply.afterwards.push_back([&state] {
    state.applyFraming();
    state.changeSpeed(state.settings.profile.speed);
  });
  return reply;
}

Reply showProfile(ModemState& state, const Command& command) {
  const auto page = command.arguments.size() == 0 ? 0 : command.arguments.number(0);
  switch (page.value_or(-1)) {
    case 0: return ok(dumped(state.settings.profile));
    case 1: return ok(dumped(state.settings.storedProfile()));
    case 2: return ok(dumped(Profile{}));
    default: return error();
  }
}

constexpr CommandRow kProfileCommands[] = {
    {.name = "&F", .execute = restoreFactory},
    {.name = "&V", .execute = showProfile},
    {.name = "&W", .execute = storeProfile},
    {.name = "Z", .execute = reloadProfile},
};

}  // namespace

CommandRows profileCommands() { return kProfileCommands; }

}  // namespace gsm::simulator
