#include <algorithm>
#include <array>
#include <string>

#include "simulator/commands/profile_number.h"
#include "simulator/text/text.h"

// Packet contexts.
namespace gsm::simulator {

namespace {

constexpr Range kContextNumbers = {1, 4};
constexpr Range kSwitch = {0, 1};
constexpr std::array<std::string_view, 2> kTypes = {"IP", "PPP"};

// An address that the network gives is left out, quotes and all.
std::string contextLine(const Command& command, int number, const PacketContext& context) {
  const std::string address = context.address.empty() ? "" : quoted(context.address);
  return headed(command, std::to_string(number) + "," + quoted(context.type) + "," +
                             quoted(context.accessPoint) + "," + address + "," +
                             std::to_string(context.dataCompression) + "," +
                             std::to_string(context.headerCompression));
}

Reply queryContexts(ModemState& state, const Command& command) {
  std::string lines;
  for (const auto& [number, context] : state.module.contexts) {
    lines += (lines.empty() ? "" : "\r\n") + contextLine(command, number, context);
  }
  return lines.empty() ? ok() : ok(lines);
}

// "=NUMBER" forgets a context; "=NUMBER,TYPE[,ACCESSPOINT[,ADDRESS[,DATA[,HEADER]]]]" defines it.
Reply defineContext(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const auto number = given.number(0);
  const auto data = given.has(4) ? given.number(4) : 0;
  const auto header = given.has(5) ? given.number(5) : 0;
  if (given.size() > 6 || !number || !data || !header) return error();
  if (!kContextNumbers.holds(*number) || !kSwitch.holds(*data) || !kSwitch.holds(*header)) {
    return error(EquipmentError::kNotSupported);
  }
  if (given.size() == 1) {
    state.module.contexts.erase(*number);
    return ok();
  }
  if (std::find(kTypes.begin(), kTypes.end(), given.text(1)) == kTypes.end()) {
    return error(EquipmentError::kNotSupported);
  }
  state.module.contexts[*number] = {.type = std::string(given.text(1)),
                                    .accessPoint = std::string(given.text(2)),
                                    .address = std::string(given.text(3)),
                                    .dataCompression = *data,
                                    .headerCompression = *header};
  return ok();
}

Reply listContexts(ModemState&, const Command& command) {
  std::string lines;
  for (const std::string_view type : kTypes) {
    lines += (lines.empty() ? "" : "\r\n") +
             headed(command, kContextNumbers.listing() + "," + quoted(type) + ",,,(0,1),(0,1)");
  }
  return ok(lines);
}

constexpr CommandRow kPacketCommands[] = {fromStandard(
    {.name = "+CGDCONT", .query = queryContexts, .set = defineContext, .test = listContexts})};

}  // namespace

CommandRows packetCommands() { return kPacketCommands; }

}  // namespace gsm::simulator
