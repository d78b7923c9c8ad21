#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "simulator/messages/message.h"

namespace gsm::simulator {

// A memory for messages.
class MessageStore {
 public:
  // Takes all the messages as text after a change, and says whether they could be kept.
  using Keep = std::function<bool(std::string_view text)>;

  // `name` is the one that commands and notices use, "SM" for the card's own.
  MessageStore(std::string_view name, int locations, MessageEntries entries = {}, Keep keep = {})
      : name_(name), locations_(locations), entries_(std::move(entries)), keep_(std::move(keep)) {}

  std::string_view name() const { return name_; }
  int locations() const { return locations_; }
  bool holds(int location) const { return location >= 1 && location <= locations_; }
  const MessageEntries& entries() const { return entries_; }

  // Nothing when the memory is full.
  std::optional<int> firstFree() const;

  // Writes a message to a location of the memory. False, with nothing changed, when the change
  // can't be kept; so are the others.
  bool store(int location, Message message);

  // Empties a location, which may be empty already.
  bool erase(int location);

  // Marks what has been received at `location` as read.
  bool markRead(int location);

 private:
  bool change(MessageEntries entries);

  std::string_view name_;
  int locations_;
  MessageEntries entries_;
  Keep keep_;
};

}  // namespace gsm::simulator
