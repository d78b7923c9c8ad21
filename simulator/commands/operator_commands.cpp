#include <array>
#include <string>

#include "simulator/commands/profile_number.h"
#include "simulator/commands/sim_trouble.h"
#include "simulator/text/text.h"

// The network's operator, and the registration for packets.
namespace gsm::simulator {

namespace {

// The operator in the three forms that a host can choose: long, short, and as country and network.
constexpr std::array<std::string_view, 3> kOperatorNames = {"TEST NETWORK", "TESTNET", "20820"};
constexpr Range kForms = {0, 2};

// The codes of AT+COPS. The modem finds its network by itself, always.
constexpr int kAutomatic = 0;
constexpr int kSetForm = 3;

Reply queryOperator(ModemState& state, const Command& command) {
  std::string text = std::to_string(kAutomatic);
  if (state.network.hasService()) {
    const int form = state.network.operatorForm;
    text +=
        "," + std::to_string(form) + "," + quoted(kOperatorNames[static_cast<std::size_t>(form)]);
  }
  return ok(headed(command, text));
}

// "=0" leaves the choice to the modem; "=3,FORM" sets the form of the name.
Reply setOperator(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const auto mode = given.number(0);
  const auto form = given.has(1) ? given.number(1) : state.network.operatorForm;
  if (!mode || !form || given.size() > 2) return error();
  if ((*mode != kAutomatic && *mode != kSetForm) || !kForms.holds(*form)) {
    return error(EquipmentError::kNotSupported);
  }
  state.network.operatorForm = *form;
  return ok();
}

// The network carries packets wherever it carries calls.
Reply queryPacketRegistration(ModemState& state, const Command& command) {
  return ok(headed(command, std::to_string(state.network.packetNotices) + "," +
                                state.network.packetRegistrationText()));
}

constexpr Range kPacketNotices = {0, 2};

Reply setPacketRegistration(ModemState& state, const Command& command) {
  const auto notices = command.arguments.number(0);
  if (command.arguments.size() != 1 || !notices) return error();
  if (!kPacketNotices.holds(*notices)) return error(EquipmentError::kNotSupported);
  state.network.packetNotices = *notices;
  return ok();
}

Reply listPacketRegistration(ModemState&, const Command& command) {
  return ok(headed(command, kPacketNotices.listing()));
}

constexpr Range kSwitch = {0, 1};

Reply queryAttachment(ModemState& state, const Command& command) {
  const bool attached = state.network.packetsWanted && state.network.hasService();
  return ok(headed(command, attached ? "1" : "0"));
}

Reply setAttachment(ModemState& state, const Command& command) {
  const auto wanted = command.arguments.number(0);
  if (command.arguments.size() != 1 || !wanted) return error();
  if (!kSwitch.holds(*wanted)) return error(EquipmentError::kNotSupported);
  state.network.packetsWanted = *wanted != 0;
  return ok();
}

Reply listAttachments(ModemState&, const Command& command) {
  return ok(headed(command, kSwitch.listing()));
}

// The card's own number in the network, in its home country.
constexpr const char* kSubscriber = "208201234567890";

Reply subscriber(ModemState& state, const Command&) {
  if (const auto trouble = simTrouble(state.sim.status())) return error(*trouble);
  return ok(kSubscriber);
}

constexpr CommandRow kOperatorCommands[] = {
    fromStandard({.name = "+COPS", .query = queryOperator, .set = setOperator}),
    fromStandard({.name = "+CGREG",
                  .query = queryPacketRegistration,
                  .set = setPacketRegistration,
                  .test = listPacketRegistration}),
    fromStandard({.name = "+CGATT",
                  .query = queryAttachment,
                  .set = setAttachment,
                  .test = listAttachments}),
    fromStandard({.name = "+CIMI", .execute = subscriber, .test = isSupported}),
};

}  // namespace

CommandRows operatorCommands() { return kOperatorCommands; }

}  // namespace gsm::simulator
