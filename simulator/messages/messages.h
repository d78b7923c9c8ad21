#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/dialogue/notices.h"
#include "simulator/line/timeline.h"
#include "simulator/messages/message_store.h"
#include "simulator/profile/settings.h"

namespace gsm::simulator {

// The modem's messages: its memories, and what the network sends. AT+CNMI decides whether a message
// goes to a memory or to the host; as with all modems of this family its first value is taken and
// doesn't matter, and the host is told at once.
class Messages {
 public:
  // `clock` tells the time; empty, it is the same for ever.
  Messages(Timeline& timeline, const Settings& settings, Notices& notices,
           std::function<std::string()> clock, MessageEntries entries, MessageStore::Keep keep);

  MessageStore card;
  MessageStore broadcasts{"BM", 5};
  MessageStore reports{"SR", 5};

  // The memory of a name; null when there is none.
  MessageStore* memory(std::string_view name);

  // The memory that is read, listed and deleted from. The card takes what is written and received.
  MessageStore& reading() { return *reading_; }
  void read(MessageStore& memory) { reading_ = &memory; }

  std::string serviceCentre = "+33639980000";

  // Whether pages of the cell broadcast are taken, and of which kinds, as AT+CSCB shows them. Every
  // page here is of a kind that is taken.
  struct Broadcast {
    int mode = 0;  // 1 takes none
    std::string kinds;
    std::string languages;
  };
  Broadcast broadcast;

  // Counts a message to `number` and returns its reference, 0 to 255 and then 0 again.
  int takeReference() { return reference_++ % 256; }

  // The message has been sent. Its report, when it asked for one, comes some seconds later. In text
  // mode AT+CSMP asks for all of them.
  void noteSent(int reference, const std::string& number, bool wantsReport);

  // The network's report on the message that was sent last comes now, instead of later when it was
  // still to come. `status` is 0 for one that arrived. False when none was sent.
  bool report(int status);

  // A message comes in. False when the memory is full or can't keep it.
  bool receive(const std::string& number, const std::string& text);

  // A page of the cell broadcast comes in. False when the modem takes none.
  bool page(const std::string& text);

 private:
  struct Sent {
    int reference;
    std::string number;
    std::string time;
  };

  // What becomes of what comes in.
  enum class Way { kDrop, kKeep, kKeepAndTell, kHandOver };

  std::string now() const;
  std::string told(std::string_view notice, const Message& message) const;
  bool deliver(Way way, MessageStore& memory, std::string_view notice, Message message);
  void tellReport(const Sent& sent, int status);

  GuardedTimeline timeline_;  // of the reports
  const Settings& settings_;
  Notices& notices_;
  std::function<std::string()> clock_;
  MessageStore* reading_ = &card;
  int reference_ = 0;
  int pages_ = 0;
  std::optional<Sent> sent_;
};

}  // namespace gsm::simulator
