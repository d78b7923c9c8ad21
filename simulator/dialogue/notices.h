#pragma once

#include <string>
#include <string_view>

#include "simulator/dialogue/reply.h"
#include "simulator/line/transmitter.h"
#include "simulator/profile/settings.h"

namespace gsm::simulator {

// The indications of +WIND, as the bits of its mask.
enum class Indication {
  kSimPresence = 1,
  kRemoteRings = 2,
  kReadyForBasics = 4,
  kReadyForAll = 8,
  kCallCreated = 16,
  kCallReleased = 32,
  kServiceAvailable = 64,
  kNetworkLost = 128,
  kAudioOn = 256,
  kPhoneBookLoaded = 512,
};

// The lines that the modem sends unasked. They wait for the reply that is going out, so that none
// ever breaks into one.
class Notices {
 public:
  Notices(const Settings& settings, Transmitter& transmitter, const bool& silent)
      : settings_(settings), transmitter_(transmitter), silent_(silent) {}

  // Sends `text` as a line.
  void line(std::string_view text) {
    if (silent_) return;
    transmitter_.send(Source::kUnsolicited, framedLine(text, settings_.profile));
  }

  // Sends a result code that no command waits for, unless ATQ keeps it back.
  void result(const ResultCode& code) {
    if (silent_ || settings_.profile.quiet != 0) return;
    transmitter_.send(Source::kUnsolicited, framedCode(code, settings_.profile));
  }

  // Sends "+WIND: `rest`" when the mask asks for it.
  void indicate(Indication indication, std::string_view rest) {
    if ((settings_.windMask() & static_cast<int>(indication)) == 0) return;
    line("+WIND: " + std::string(rest));
  }

  // Sends the "+CME ERROR" of a SIM that went away by itself, when AT+CMEE asks for codes.
  void simFailure() {
    if (settings_.profile.errorCodes != 0) line("+CME ERROR: 13");
  }

 private:
  const Settings& settings_;
  Transmitter& transmitter_;
  const bool& silent_;
};

}  // namespace gsm::simulator
