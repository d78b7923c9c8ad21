#pragma once

#include <optional>
#include <string>

#include "simulator/dialogue/notices.h"
#include "simulator/line/timeline.h"
#include "simulator/network/network.h"

namespace gsm::simulator {

// What a dump of the cells may hold, as bits.
enum CellDump { kMainCell = 1, kNeighbours = 2, kTimingAdvance = 4, kSignal = 8 };
inline constexpr int kWholeDump = 15;

// The cell environment as AT+CCED dumps it.
class CellDumps {
 public:
  CellDumps(Timeline& timeline, const Network& network, Notices& notices)
      : timeline_(timeline), network_(network), notices_(notices) {}

  // The bits asked for last, which a command without any means.
  int lastDump() const { return dump_; }
  void setLastDump(int dump) { dump_ = dump; }

  // The cells of a dump with these bits, as a line; empty when it has none but the signal.
  std::string cellLine(int dump) const;
  std::string signalLine() const;

  // Sends a dump with the last bits every five seconds from now on: the cells each time, the signal
  // when it has changed.
  void start();
  void stop() { timeline_.cancelAll(); }

 private:
  void repeat();

  GuardedTimeline timeline_;  // of the next dump
  const Network& network_;
  Notices& notices_;
  int dump_ = kWholeDump;
  std::optional<int> toldSignal_;
};

}  // namespace gsm::simulator
