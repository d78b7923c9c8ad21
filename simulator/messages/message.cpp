#include "simulator/messages/message.h"

#include <algorithm>
#include <utility>

#include "simulator/card/phone_book.h"
#include "simulator/text/phone_number.h"
#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

constexpr std::pair<std::string_view, MessageStatus> kNames[] = {
    {"REC UNREAD", MessageStatus::kReceivedUnread},
    {"REC READ", MessageStatus::kReceivedRead},
    {"STO UNSENT", MessageStatus::kStoredUnsent},
    {"STO SENT", MessageStatus::kStoredSent},
};

// A time has to stand between quotes.
bool isTime(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return c == '"' || isControl(c); });
}

}  // namespace

std::string_view nameOf(MessageStatus status) {
  for (const auto& [name, named] : kNames) {
    if (named == status) return name;
  }
  return {};
}

std::optional<MessageStatus> parseMessageStatus(std::string_view name) {
  for (const auto& [known, status] : kNames) {
    if (known == name) return status;
  }
  return std::nullopt;
}

std::string headerOf(const Message& message) {
  if (!message.fields.empty()) return message.fields;
  const std::string header = quoted(message.number) + ",";
  return isReceived(message.status) ? header + "," + quoted(message.time) : header;
}

std::string withText(const std::string& header, const Message& message) {
  const bool isReport = !message.fields.empty() && message.text.empty();
  return isReport ? header : header + "\r\n" + message.text;
}

Pdu pduOf(const Message& message, std::string_view centre) {
  const auto& [status, number, time, text, fields, pdu] = message;
  if (!fields.empty()) return pdu;
  return isReceived(status) ? deliveryPdu(centre, number, time, text)
                            : submissionPdu(centre, number, text);
}

std::optional<MessageFlaw> flawOf(const Message& message) {
  const bool received = isReceived(message.status);
  const bool numbered = !message.number.empty() || received;
  if (numbered && !isPhoneNumber(message.number)) return MessageFlaw::kNumberMalformed;
  if (lengthOfNumber(message.number) > kLongestNumber) return MessageFlaw::kNumberMalformed;
  if (received == message.time.empty() || !isTime(message.time)) return MessageFlaw::kTimeMalformed;
  if (message.text.size() > kLongestMessage) return MessageFlaw::kTextTooLong;
  return std::nullopt;
}

// The people are those of the phone book that such a card has.
MessageEntries factoryMessages() {
  using enum MessageStatus;
  return {
      {1, {kReceivedRead, "+33639981201", "26/01/12,09:41:07+04", "Dinner at eight?"}},
      {2, {kReceivedUnread, "+33639984477", "26/01/12,18:22:11+04", "The train is late again."}},
      {4, {kStoredSent, "+33639981201", "", "I'll bring the wine."}},
      {5, {kStoredUnsent, "0199001234", "", "Happy birthday, Carla!"}},
      {9, {kReceivedRead, "+33639980106", "26/01/13,07:05:30+04", "See you on Monday"}},
  };
}

}  // namespace gsm::simulator
