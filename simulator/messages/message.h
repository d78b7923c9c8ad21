#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/messages/pdu.h"

namespace gsm::simulator {

enum class MessageStatus { kReceivedUnread, kReceivedRead, kStoredUnsent, kStoredSent };

// The status as commands write it: "REC UNREAD", "REC READ", "STO UNSENT", "STO SENT".
std::string_view nameOf(MessageStatus status);

// The status that a text names; nothing for any other text.
std::optional<MessageStatus> parseMessageStatus(std::string_view name);

constexpr bool isReceived(MessageStatus status) {
  return status == MessageStatus::kReceivedUnread || status == MessageStatus::kReceivedRead;
}

struct Message {
  MessageStatus status;
  std::string number;  // who sent it, or is to get it; may be empty in one that is stored
  std::string time;    // when it came, as "26/01/31,18:22:11+04"; empty in one that is stored
  std::string text;    // byte for byte as it was written

  // What a read tells in place of number and time: a status report and a page of a broadcast have
  // fields of their own.
  std::string fields = {};
  Pdu pdu = {};  // the same for a host in PDU mode

  friend bool operator==(const Message&, const Message&) = default;
};

// What a read reports of a message after its status: "\"0146290800\",,\"26/01/31,18:22:11+04\"".
std::string headerOf(const Message& message);

// `header` with the message's text on the line after it. A status report has none.
std::string withText(const std::string& header, const Message& message);

// The message as a host in PDU mode gets it, by way of the service centre.
Pdu pduOf(const Message& message, std::string_view centre);

// The messages by their locations, with holes where there is none.
using MessageEntries = std::map<int, Message>;

inline constexpr std::size_t kLongestMessage = 160;  // a byte is a character

// The card's locations; the first is 1.
inline constexpr int kMessageLocations = 20;

constexpr bool isMessageLocation(int location) {
  return location >= 1 && location <= kMessageLocations;
}

// What keeps a message out of a card.
enum class MessageFlaw { kNumberMalformed, kTimeMalformed, kTextTooLong };

// The first flaw of a message; nothing for a good one.
std::optional<MessageFlaw> flawOf(const Message& message);

// What a card has that nobody wrote to: one message of each status, and holes.
MessageEntries factoryMessages();

}  // namespace gsm::simulator
