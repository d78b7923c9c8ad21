#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace gsm::simulator {

// What stands around the modem: the host at the other end of the line, and the desk. Each may be
// left empty. They are called from actions of the timeline and from the modem's own operations,
// and may call back into the modem.
struct Surroundings {
  // A piece of what arrives at the host, at the instant of its last byte.
  std::function<void(std::string_view chunk)> toHost;

  // The modem listens and sends at `speed` from now on, or at any speed for kAutobaud.
  std::function<void(int speed)> speedChanged;

  // The console pulls the plug of the port, or puts it back.
  std::function<void(bool plugged)> plugChanged;

  // The console wants the program to end.
  std::function<void()> quit;

  // The phone book has changed to `text`, which readPhoneBook reads. Returns whether it could be
  // kept; when it couldn't, the change doesn't happen.
  std::function<bool(std::string_view text)> keepPhoneBook = {};

  // The same for the card's messages, which readMessages reads.
  std::function<bool(std::string_view text)> keepMessages = {};

  // The time by the network, as "26/01/31,18:22:11+04" with the time zone in quarters of an hour.
  // Left empty, it is the same for ever.
  std::function<std::string()> clock = {};
};

}  // namespace gsm::simulator
