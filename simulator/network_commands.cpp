#include <algorithm>
#include <string>

#include "simulator/profile_number.h"

// The network as the modem sees it: signal, registration, cells, indications.
namespace gsm::simulator {

namespace {

constexpr int kUnknownSignal = 99;

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

// What a cell dump may hold, as bits.
enum CellDump { kMainCell = 1, kNeighbours = 2, kTimingAdvance = 4, kSignal = 8, kEverything = 15 };

// +CSQ counts in steps of 2 dB from -113 dBm, a cell's level in steps of 1 dB from -110 dBm.
std::string levelText(const Network& network) {
  if (network.signal == kUnknownSignal) return {};
  return std::to_string(std::max(0, 2 * network.signal - 3));
}

// Idle mode knows one level and one quality only, and leaves the fields of a call empty.
std::string mainCell(const Network& network) {
  if (!network.hasService()) return "0,0,,,,,,,,,,,0";
  return "208,20," + std::string(Network::kLocationArea) + "," + std::string(Network::kCell) +
         ",37,706," + levelText(network) + ",,,0,,,0";
}

std::string cellLine(const Network& network, int dump) {
  std::string fields;
  const auto add = [&fields](const std::string& part) {
    fields += (fields.empty() ? "" : ",") + part;
  };
  if ((dump & kMainCell) != 0) add(mainCell(network));
  if ((dump & kNeighbours) != 0 && network.hasService()) add("208,20,00C3,989B,37,835,20");
  if ((dump & kTimingAdvance) != 0) add(network.hasService() ? "1" : "");
  return "+CCED:" + fields;
}

// "=0[,DUMP]" dumps once; "=2" ends a dump that repeats, which is fine when none does.
Reply dumpCells(ModemState& state, const Command& command) {
  const auto mode = command.arguments.number(0);
  const int dump = command.arguments.has(1) ? command.arguments.number(1).value_or(0) : kEverything;
  if (!mode || command.arguments.size() > 2) return error();
  if (mode == 2) return ok();
  if (mode != 0 || dump < 1 || dump > kEverything) return error(EquipmentError::kNotSupported);
  Reply reply;
  if ((dump & ~kSignal) != 0) reply.information.push_back(cellLine(state.network, dump));
  if ((dump & kSignal) != 0) {
    reply.information.push_back("+CSQ: " + std::to_string(state.network.signal) + ",99");
  }
  return reply;
}

Reply queryFunctionality(ModemState&, const Command& command) { return ok(headed(command, "1")); }

Reply listFunctionalities(ModemState&, const Command& command) {
  return ok(headed(command, "(0,1),(0,1)"));
}

constexpr CommandRow kRows[] = {
    {.name = "+CSQ", .execute = querySignal, .test = listSignals},
    {.name = "+CREG",
     .query = queryRegistration,
     .set = setNumbers<&Profile::registrationNotices>,
     .test = listNumbers<&Profile::registrationNotices>},
    {.name = "+WIND", .query = queryIndications, .set = setIndications, .test = listIndications},
    {.name = "+CCED", .set = dumpCells},
    {.name = "+CFUN", .query = queryFunctionality, .test = listFunctionalities},
};

}  // namespace

CommandRows networkCommands() { return kRows; }

}  // namespace gsm::simulator
