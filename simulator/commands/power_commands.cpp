#include "simulator/commands/profile_number.h"
#include "simulator/state/power.h"

// Power.
namespace gsm::simulator {

namespace {

// The OK is the last thing that the modem answers.
Reply powerOff(ModemState& state, const Command&) {
  Reply reply = ok();
  reply.afterwards.push_back([&state] { switchOff(state); });
  return reply;
}

constexpr int kFull = 1;
constexpr Range kSwitch = {0, 1};

Reply queryFunctionality(ModemState&, const Command& command) {
  return ok(headed(command, std::to_string(kFull)));
}

Reply listFunctionalities(ModemState&, const Command& command) {
  return ok(headed(command, kSwitch.listing() + "," + kSwitch.listing()));
}

// "=1[,RESTART]": full functionality, which is all that there is, after a restart or at once.
Reply setFunctionality(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const auto level = given.number(0);
  const auto restart = given.has(1) ? given.number(1) : 0;
  if (given.size() > 2 || !level || !restart) return error();
  if (*level != kFull || !kSwitch.holds(*restart)) return error(EquipmentError::kNotSupported);
  Reply reply = ok();
  if (*restart == 0) return reply;
  reply.afterwards.push_back([&state] {
    switchOff(state);
    switchOn(state);
  });
  return reply;
}

constexpr CommandRow kPowerCommands[] = {
    {.name = "+CPOF", .execute = powerOff, .test = isSupported},
    {.name = "+CFUN",
     .query = queryFunctionality,
     .set = setFunctionality,
     .test = listFunctionalities},
};

}  // namespace

CommandRows powerCommands() { return kPowerCommands; }

}  // namespace gsm::simulator
