#include "simulator/messages/message_store.h"

#include "simulator/messages/message_text.h"

namespace gsm::simulator {

std::optional<int> MessageStore::firstFree() const {
  for (int location = 1; holds(location); ++location) {
    if (!entries_.contains(location)) return location;
  }
  return std::nullopt;
}

bool MessageStore::store(int location, Message message) {
  MessageEntries changed = entries_;
  changed[location] = std::move(message);
  return change(std::move(changed));
}

bool MessageStore::erase(int location) {
  MessageEntries changed = entries_;
  return changed.erase(location) == 0 || change(std::move(changed));
}

bool MessageStore::markRead(int location) {
  const auto found = entries_.find(location);
  if (found == entries_.end() || found->second.status != MessageStatus::kReceivedUnread)
    return true;
  Message read = found->second;
  read.status = MessageStatus::kReceivedRead;
  return store(location, std::move(read));
}

bool MessageStore::change(MessageEntries entries) {
  if (keep_ && !keep_(toText(entries))) return false;
  entries_ = std::move(entries);
  return true;
}

}  // namespace gsm::simulator
