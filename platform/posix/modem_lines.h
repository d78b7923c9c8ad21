#pragma once

#include <optional>
#include <vector>

#include "platform/serial_device.h"

namespace gsm {

/// The modem lines of a serial port and its count of line errors, as the driver reports them at one
/// moment. Counts only rise, so a pulse shorter than the time between two looks shows too.
struct LineState {
  bool cts = false;
  bool dsr = false;
  bool cd = false;
  bool ring = false;
  // How often each line has changed.
  int ctsCount = 0;
  int dsrCount = 0;
  int cdCount = 0;
  int ringCount = 0;
  // How often each of these has happened.
  int breaks = 0;
  int framingErrors = 0;
  int overruns = 0;
  int parityErrors = 0;
};

/// What has happened on the line from one look to a later one: each event once.
std::vector<CommEvent> eventsBetween(const LineState& before, const LineState& after);

/// Reads the state of the open line; nothing when it has no modem lines, as a pseudo-terminal. The
/// counts stay 0 where the driver keeps none.
std::optional<LineState> readLineState(int descriptor);

/// Raises DTR and RTS (`rts` false: DTR alone, the driver having RTS for its flow control).
void raiseReadyLines(int descriptor, bool rts);

}  // namespace gsm
