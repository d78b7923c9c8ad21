#include "simulator/commands/profile_number.h"

// The cell environment.
namespace gsm::simulator {

namespace {

// The codes of AT+CCED; 1 dumps by itself.
constexpr int kOnce = 0;
constexpr int kStop = 2;
constexpr Range kModes = {kOnce, kStop};
constexpr Range kDumps = {kMainCell, kWholeDump};

Reply dumpOnce(const CellDumps& dumps) {
  Reply reply;
  const std::string cells = dumps.cellLine(dumps.lastDump());
  if (!cells.empty()) reply.information.push_back(cells);
  if ((dumps.lastDump() & kSignal) != 0) reply.information.push_back(dumps.signalLine());
  return reply;
}

// "=MODE[,DUMP]": once, by itself from now on, or no more, which is fine when none comes.
Reply dumpCells(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  CellDumps& dumps = state.cellDumps;
  const auto mode = given.number(0);
  const auto dump = given.has(1) ? given.number(1) : dumps.lastDump();
  if (!mode || !dump || given.size() > 2) return error();
  if (!kModes.holds(*mode) || !kDumps.holds(*dump)) return error(EquipmentError::kNotSupported);
  if (*mode == kStop) {
    dumps.stop();
    return ok();
  }
  dumps.setLastDump(*dump);
  if (*mode == kOnce) return dumpOnce(dumps);
  Reply reply;
  reply.afterwards.push_back([&dumps] { dumps.start(); });
  return reply;
}

Reply listDumps(ModemState&, const Command& command) {
  return ok(headed(command, kModes.listing() + "," + kDumps.listing()));
}

constexpr CommandRow kCellCommands[] = {{.name = "+CCED", .set = dumpCells, .test = listDumps}};

}  // namespace

CommandRows cellCommands() { return kCellCommands; }

}  // namespace gsm::simulator
