#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/headless/modem_replay.h"

namespace gsm::driver {

/// What a record of a line tells of the modem at its other end, and of the ports that were tried.
struct RecordFile {
  /// What the modem said before anything was written to it, counted from the record's beginning.
  std::vector<ModemReplay::Chunk> greeting;
  std::vector<ModemReplay::Exchange> exchanges;
  std::vector<HeadlessPorts::Port> ports;  // in the order in which they were tried first
  std::optional<int> port;                 // where the modem spoke first
  bool full = false;                       // whether the record ends before the line did
};

/// Reads the record in the file of that name, which `LineRecord` has written. `BadRequest`, with
/// the number of the line, when it isn't one.
RecordFile readRecord(const std::string& fileName);

}  // namespace gsm::driver
