#include "platform/posix/modem_lines.h"

#include <linux/serial.h>
#include <sys/ioctl.h>

namespace gsm {

std::vector<CommEvent> eventsBetween(const LineState& before, const LineState& after) {
  std::vector<CommEvent> events;
  const auto note = [&events](CommEvent event, bool happened) {
    if (happened) events.push_back(event);
  };
  note(CommEvent::cts, before.cts != after.cts || before.ctsCount != after.ctsCount);
  note(CommEvent::dsr, before.dsr != after.dsr || before.dsrCount != after.dsrCount);
  note(CommEvent::cd, before.cd != after.cd || before.cdCount != after.cdCount);
  // A ring is one event, not two: its rise, or the whole of one that passed between the looks.
  note(CommEvent::ring, !before.ring && (after.ring || before.ringCount != after.ringCount));
  note(CommEvent::breakReceived, before.breaks != after.breaks);
  note(CommEvent::framing, before.framingErrors != after.framingErrors);
  note(CommEvent::overrun, before.overruns != after.overruns);
  note(CommEvent::parity, before.parityErrors != after.parityErrors);
  return events;
}

std::optional<LineState> readLineState(int descriptor) {
  int lines = 0;
  if (::ioctl(descriptor, TIOCMGET, &lines) != 0) return std::nullopt;
  LineState state{.cts = (lines & TIOCM_CTS) != 0,
                  .dsr = (lines & TIOCM_DSR) != 0,
                  .cd = (lines & TIOCM_CD) != 0,
                  .ring = (lines & TIOCM_RNG) != 0};
  serial_icounter_struct counts{};
  if (::ioctl(descriptor, TIOCGICOUNT, &counts) == 0) {
    state.ctsCount = counts.cts;
    state.dsrCount = counts.dsr;
    state.cdCount = counts.dcd;
    state.ringCount = counts.rng;
    state.breaks = counts.brk;
    state.framingErrors = counts.frame;
    state.overruns = counts.overrun + counts.buf_overrun;
    state.parityErrors = counts.parity;
  }
  return state;
}

void raiseReadyLines(int descriptor, bool rts) {
  const int lines = rts ? TIOCM_DTR | TIOCM_RTS : TIOCM_DTR;
  ::ioctl(descriptor, TIOCMBIS, &lines);
}

}  // namespace gsm
