#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

#include "simulator/dialogue/reply.h"
#include "simulator/line/line_input.h"
#include "simulator/line/timeline.h"
#include "simulator/state/modem_state.h"

namespace gsm::simulator {

// A GSM modem at the end of a serial line, without the line and without the time: it is told what
// the host writes, reports what reaches the host and when, and obeys a console at its side.
class Modem {
 public:
  // `timeline` and `store` must outlive the modem; what is pending on the timeline when the modem
  // goes is dropped.
  Modem(Timeline& timeline, ProfileStore& store, Surroundings surroundings,
        const ModemOptions& options = {});

  // Bytes from the host, sent at `speed` bits per second. At another speed than the modem's they
  // are noise and do nothing. Nothing comes back from inside this call. What comes while a command
  // is being done waits for its result, without an echo. Dialing takes long, so it alone is ended,
  // with NO CARRIER, by an ATH among what waits; any other byte leaves the call alone. A command
  // that wants a text takes all that comes for it, up to Ctrl-Z or Escape.
  void hostWrites(std::string_view bytes, int speed);

  // The speed at which the modem listens and sends; kAutobaud when at any.
  int speed() const { return state_.speed(); }

  // Does one line of the console and returns what to print, without a line end after it. A line
  // that can't be done changes nothing and returns a sentence that starts with "error:".
  std::string console(std::string_view line);

 private:
  bool hears(int speed) const;
  void work();
  void answer(const LineInput::Line& line);
  void finish(Reply reply);
  void forgetHeard();
  void heedHangUp();

  ModemState state_;
  GuardedTimeline timeline_;
  std::chrono::nanoseconds latency_;
  LineInput input_;
  std::string waiting_;  // heard while a command was being done
  bool busy_ = false;
};

}  // namespace gsm::simulator
