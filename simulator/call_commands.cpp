#include "simulator/profile_number.h"
#include "simulator/sim_trouble.h"

// How calls are announced and heard.
namespace gsm::simulator {

namespace {

// The second value tells that the network offers the service.
Reply queryCallerId(ModemState& state, const Command& command) {
  return ok(headed(command, std::to_string(state.settings.profile.callerId) + ",1"));
}

// What AT+CCWA can want of the network.
enum class WaitingMode { kDisable, kEnable, kQuery };
constexpr Range kWaitingModes = {0, 2};

// The classes of calls are bits of a sum. Only voice calls ever come.
constexpr int kVoice = 1;
constexpr int kUsualClasses = 7;
constexpr Range kClasses = {1, 255};

// A query tells the classes that are on, each on a line, or that all of those asked for are off.
Reply askNetwork(ModemState& state, const Command& command, WaitingMode mode, int classes) {
  if (const auto trouble = simTrouble(state.sim.status())) return error(*trouble);
  const bool voice = (classes & kVoice) != 0;
  if (mode == WaitingMode::kQuery) {
    const bool on = voice && state.calls.waitingEnabled;
    return ok(headed(command, on ? "1,1" : "0," + std::to_string(classes)));
  }
  if (voice) state.calls.waitingEnabled = mode == WaitingMode::kEnable;
  return ok();
}

// "=[NOTICES][,MODE[,CLASSES]]": the notices of a caller who waits, and the network's service.
Reply setCallWaiting(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  Profile& profile = state.settings.profile;
  if (given.size() == 0 || given.size() > 3) return error();
  const auto notices = given.has(0) ? given.number(0) : profile.callWaiting;
  const auto mode = given.has(1) ? given.number(1) : 0;
  const auto classes = given.has(2) ? given.number(2) : kUsualClasses;
  if (!notices || !mode || !classes) return error();
  if (!kField<&Profile::callWaiting>.accepts(*notices) || !kWaitingModes.holds(*mode) ||
      !kClasses.holds(*classes)) {
    return error(EquipmentError::kNotSupported);
  }
  Reply reply =
      given.has(1) ? askNetwork(state, command, static_cast<WaitingMode>(*mode), *classes) : ok();
  if (!reply.failed()) profile.callWaiting = *notices;
  return reply;
}

constexpr CommandRow kRows[] = {
    {.name = "+CLIP",
     .query = queryCallerId,
     .set = setNumbers<&Profile::callerId>,
     .test = listNumbers<&Profile::callerId>},
    {.name = "+CCWA",
     .query = queryNumbers<&Profile::callWaiting>,
     .set = setCallWaiting,
     .test = listNumbers<&Profile::callWaiting>},
    profileNumbers<&Profile::callTypes>("+CRC"),
    profileNumbers<&Profile::speaker>("+SPEAKER"),
};

}  // namespace

CommandRows callCommands() { return kRows; }

}  // namespace gsm::simulator
