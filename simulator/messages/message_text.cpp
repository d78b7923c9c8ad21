#include "simulator/messages/message_text.h"

#include <utility>

#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

std::string describe(MessageFlaw flaw) {
  switch (flaw) {
    case MessageFlaw::kNumberMalformed: return "the number isn't one";
    case MessageFlaw::kTimeMalformed:
      return "a received message has a time and a stored one has none";
    case MessageFlaw::kTextTooLong: break;
  }
  return "the text is longer than " + std::to_string(kLongestMessage) + " characters";
}

// Adds the message of a line; otherwise says why there is none.
std::string readLine(std::string_view line, MessageEntries& entries) {
  const auto location = parseNumber<int>(takeUpTo('\t', line));
  if (!location || !isMessageLocation(*location)) {
    return "the location isn't a number from 1 to " + std::to_string(kMessageLocations);
  }
  const auto status = parseMessageStatus(takeUpTo('\t', line));
  if (!status) return "the status isn't REC UNREAD, REC READ, STO UNSENT or STO SENT";
  Message message{.status = *status, .number = {}, .time = {}, .text = {}};
  message.number = takeUpTo('\t', line);
  message.time = takeUpTo('\t', line);
  const auto text = unescaped(line);
  if (!text) return "the text isn't escaped rightly";
  message.text = *text;
  if (const auto flaw = flawOf(message)) return describe(*flaw);
  if (entries.try_emplace(*location, std::move(message)).second) return {};
  return "location " + std::to_string(*location) + " has a message already";
}

}  // namespace

std::string toText(const MessageEntries& entries) {
  std::string text;
  for (const auto& [location, message] : entries) {
    text.append(std::to_string(location)).append("\t").append(nameOf(message.status));
    text.append("\t").append(message.number).append("\t").append(message.time);
    text.append("\t").append(escaped(message.text)).append("\n");
  }
  return text;
}

MessagesReading readMessages(std::string_view text) {
  MessagesReading reading;
  reading.complaints =
      eachLine(text, [&reading](std::string_view line) { return readLine(line, reading.entries); });
  return reading;
}

}  // namespace gsm::simulator
