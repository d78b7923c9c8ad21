#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulator/messages/message.h"

namespace gsm::simulator {

// The card's messages as text: one on a line, as its location, status, number, time and text with a
// tab between them. Line ends, quotes and the like are escaped in the text as in C++.
std::string toText(const MessageEntries& entries);

// What a text holds, with a sentence on every line that can't be a message.
struct MessagesReading {
  MessageEntries entries;
  std::vector<std::string> complaints;
};

// Reads what `toText` writes. Empty lines are passed over. Of two messages for a location the first
// one stays.
MessagesReading readMessages(std::string_view text);

}  // namespace gsm::simulator
