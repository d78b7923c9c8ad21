#include "simulator/host/simulated_modem.h"

namespace gsm {

SimulatedModem::SimulatedModem(VirtualTime& time, HeadlessLine& line,
                               const simulator::ModemOptions& options)
    : time_(time),
      line_(line),
      timeline_(time),
      modem_(timeline_, profile_, {.toHost = [this](std::string_view chunk) { reach(chunk); }},
             options) {
  line_.setModem(this);
}

SimulatedModem::~SimulatedModem() { line_.setModem(nullptr); }

void SimulatedModem::hear(std::string_view bytes, int baud) { modem_.hostWrites(bytes, baud); }

// At another speed than the host's the bytes would arrive as noise; here they don't arrive. They do
// so by an event of their own: what they set off may wait, and the modem must go on meanwhile.
void SimulatedModem::reach(std::string_view chunk) {
  const bool sameSpeed = modem_.speed() == simulator::kAutobaud || modem_.speed() == line_.baud();
  if (sameSpeed) time_.post([this, bytes = std::string(chunk)] { line_.arrive(bytes); });
}

}  // namespace gsm
