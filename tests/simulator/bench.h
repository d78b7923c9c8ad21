#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "simulator/modem.h"
#include "tests/simulator/virtual_timeline.h"

namespace gsm::simulator {

using std::chrono::milliseconds;
using std::chrono::seconds;

// A modem on the test's bench: virtual time, a store in memory, and a host that notes everything.
class Bench {
 public:
  static constexpr int kSpeed = 9600;

  // A modem at 9600 bits per second, unless the options give another speed.
  explicit Bench(ModemOptions options = {})
      : modem(timeline, store, surroundings(), withSpeed(std::move(options))) {}

  // What arrives from now on until `time` has passed.
  std::string listen(std::chrono::nanoseconds time = seconds(1)) {
    received.clear();
    timeline.advance(time);
    return received;
  }

  // Writes `bytes` as they are and returns what arrives within `time`.
  std::string write(std::string_view bytes, std::chrono::nanoseconds time = seconds(1)) {
    modem.hostWrites(bytes, hostSpeed);
    return listen(time);
  }

  // Writes a command with its carriage return and returns what arrives after its echo; all that
  // arrives when there is no echo.
  std::string ask(const std::string& command, std::chrono::nanoseconds time = seconds(1)) {
    const std::string reply = write(command + "\r", time);
    const std::string echo = command + "\r";
    return reply.starts_with(echo) ? reply.substr(echo.size()) : reply;
  }

  // The same for a command that the network has to think about.
  std::string askNetwork(const std::string& command) { return ask(command, seconds(3)); }

  VirtualTimeline timeline;
  MemoryProfileStore store;
  int hostSpeed = kSpeed;
  std::string received;
  std::vector<std::string> chunks;  // of all that ever arrived
  std::vector<std::chrono::nanoseconds> arrivals;
  std::vector<int> speeds;    // that the modem announced
  std::vector<bool> plugged;  // likewise
  int quits = 0;
  std::vector<std::string> phoneBooks;  // that were to be kept, as text
  bool phoneBookFits = true;            // whether they can be
  std::vector<std::string> messages;    // the same for the card's messages
  bool messagesFit = true;
  Modem modem;

 private:
  static ModemOptions withSpeed(ModemOptions options) {
    if (!options.speed) options.speed = kSpeed;
    return options;
  }

  Surroundings surroundings() {
    return {.toHost =
                [this](std::string_view chunk) {
                  received += chunk;
                  chunks.emplace_back(chunk);
                  arrivals.push_back(timeline.now());
                },
            .speedChanged = [this](int speed) { speeds.push_back(speed); },
            .plugChanged = [this](bool in) { plugged.push_back(in); },
            .quit = [this] { ++quits; },
            .keepPhoneBook =
                [this](std::string_view text) {
                  phoneBooks.emplace_back(text);
                  return phoneBookFits;
                },
            .keepMessages =
                [this](std::string_view text) {
                  messages.emplace_back(text);
                  return messagesFit;
                }};
  }
};

inline constexpr const char* kOk = "\r\nOK\r\n";
inline constexpr const char* kError = "\r\nERROR\r\n";
inline constexpr const char* kNoCarrier = "\r\nNO CARRIER\r\n";

// The errors with a number, where the host has asked for them.
inline std::string cmeError(int number) {
  return "\r\n+CME ERROR: " + std::to_string(number) + "\r\n";
}
inline std::string cmsError(int number) {
  return "\r\n+CMS ERROR: " + std::to_string(number) + "\r\n";
}

// An information response with its OK, as the host receives it.
inline std::string withOk(const std::string& text) { return "\r\n" + text + "\r\n\r\nOK\r\n"; }

}  // namespace gsm::simulator
