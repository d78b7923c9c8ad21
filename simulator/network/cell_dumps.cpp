#include "simulator/network/cell_dumps.h"

#include <algorithm>
#include <chrono>

namespace gsm::simulator {

namespace {

constexpr std::chrono::seconds kBetweenDumps(5);
constexpr int kUnknownSignal = 99;
constexpr int kNeighbourLevel = 20;

// +CSQ counts in steps of 2 dB from -113 dBm, a cell's level in steps of 1 dB from -110 dBm.
std::string levelText(const Network& network) {
  if (network.signal == kUnknownSignal) return {};
  return std::to_string(std::max(0, 2 * network.signal - 3));
}

// The country and the network, the place, the cell's colour and channel, and how strong it is.
std::string fieldsOf(const Cell& cell, const std::string& level) {
  std::string text = "208,20,";
  text.append(cell.area).append(",").append(cell.number);
  return text + "," + std::to_string(cell.colour) + "," + std::to_string(cell.channel) + "," +
         level;
}

// Idle mode knows one level and one quality only, and leaves the fields of a call empty.
std::string mainCell(const Network& network) {
  if (!network.hasService()) return "0,0,,,,,,,,,,,0";
  return fieldsOf(network.cell(), levelText(network)) + ",,,0,,,0";
}

}  // namespace

std::string CellDumps::cellLine(int dump) const {
  if ((dump & ~kSignal) == 0) return {};
  std::string fields;
  const auto add = [&fields](const std::string& part) {
    fields += (fields.empty() ? "" : ",") + part;
  };
  const bool service = network_.hasService();
  if ((dump & kMainCell) != 0) add(mainCell(network_));
  if ((dump & kNeighbours) != 0 && service) {
    add(fieldsOf(network_.neighbour(), std::to_string(kNeighbourLevel)));
  }
  if ((dump & kTimingAdvance) != 0) add(service ? "1" : "");
  return "+CCED:" + fields;
}

std::string CellDumps::signalLine() const {
  return "+CSQ: " + std::to_string(network_.signal) + ",99";
}

void CellDumps::start() {
  stop();
  toldSignal_.reset();
  timeline_.after(kBetweenDumps, [this] { repeat(); });
}

void CellDumps::repeat() {
  timeline_.after(kBetweenDumps, [this] { repeat(); });
  const std::string cells = cellLine(dump_);
  if (!cells.empty()) notices_.line(cells);
  if ((dump_ & kSignal) == 0 || toldSignal_ == network_.signal) return;
  toldSignal_ = network_.signal;
  notices_.line(signalLine());
}

}  // namespace gsm::simulator
