#include "simulator/commands/profile_number.h"
#include "simulator/commands/sim_trouble.h"

// The SIM card and its codes.
namespace gsm::simulator {

namespace {

// A peculiarity of this family: no OK follows the status.
Reply queryPin(ModemState& state, const Command& command) {
  switch (state.sim.status()) {
    case SimStatus::kReady: return bare(headed(command, "READY"));
    case SimStatus::kPinWanted: return bare(headed(command, "SIM PIN"));
    case SimStatus::kPukWanted: return bare(headed(command, "SIM PUK"));
    case SimStatus::kAbsent: return error(EquipmentError::kSimMissing);
    case SimStatus::kBlocked:
    case SimStatus::kFailed: break;
  }
  return error(EquipmentError::kSimFailure);
}

// Why the card doesn't take a code of this kind now. One that wants its PIN is no trouble here: it
// was given a PUK.
EquipmentError refusalOf(const SimCard& sim) {
  if (sim.status() == SimStatus::kPinWanted) return EquipmentError::kNotAllowed;
  return simTrouble(sim.status()).value_or(EquipmentError::kNotAllowed);
}

// "=PIN", or "=PUK,NEWPIN".
Reply enterCode(ModemState& state, const Command& command) {
  const Arguments& codes = command.arguments;
  if (codes.size() < 1 || codes.size() > 2) return error();
  const CodeCheck check = codes.size() == 1 ? state.sim.enterPin(codes.text(0))
                                            : state.sim.enterPuk(codes.text(0), codes.text(1));
  if (check == CodeCheck::kNotAsked) return error(refusalOf(state.sim));
  if (check == CodeCheck::kWrong) return error(EquipmentError::kWrongCode);
  Reply reply = ok();
  reply.afterwards.push_back([&state] { state.network.search(); });
  return reply;
}

constexpr CommandRow kSimCommands[] = {
    {.name = "+CPIN", .query = queryPin, .set = enterCode, .test = isSupported},
};

}  // namespace

CommandRows simCommands() { return kSimCommands; }

}  // namespace gsm::simulator
