#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "simulator/card/phone_book.h"
#include "simulator/card/sim_card.h"
#include "simulator/line/cutter.h"
#include "simulator/line/fault.h"
#include "simulator/messages/message.h"

namespace gsm::simulator {

// How a modem starts.
struct ModemOptions {
  // Bits per second or kAutobaud; without one, the speed of the stored profile.
  std::optional<int> speed;

  // With a ready card the modem is registered at once, as one that has been on for a while.
  SimStatus sim = SimStatus::kReady;

  std::uint64_t seed = 1;  // of all chance in the faults
  Cutter cutter = Cutter::real();
  std::vector<FaultPointer> faults;

  // From the end of a command line to the first byte of its reply.
  std::chrono::milliseconds latency{50};

  bool silent = false;  // hears nothing and says nothing

  PhoneBookEntries phoneBook = factoryPhoneBook();
  std::size_t nameRoom = kLongestNameRoom;  // of the phone book, in bytes

  MessageEntries messages = factoryMessages();  // on the card
};

}  // namespace gsm::simulator
