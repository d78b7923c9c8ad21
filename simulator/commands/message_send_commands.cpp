#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "simulator/card/phone_book.h"
#include "simulator/commands/delayed.h"
#include "simulator/commands/profile_number.h"
#include "simulator/messages/pdu_format.h"
#include "simulator/network/service_classes.h"
#include "simulator/text/phone_number.h"

// Sending and storing messages, whose text the modem asks for.
namespace gsm::simulator {

namespace {

using std::chrono::milliseconds;

// What the network makes of a message, and how long it takes.
struct Outcome {
  std::optional<MessageError> refusal;
  milliseconds delay;
};

// As with calls it is up to the number's last digit: 7 meets a network that is busy, 8 one that
// doesn't answer, 9 can't be reached, and any other one is fine.
constexpr Outcome kAccepted = {std::nullopt, milliseconds(3000)};
constexpr Outcome kBusyThere = {MessageError::kCongestion, milliseconds(2000)};
constexpr Outcome kNoAnswer = {MessageError::kNetworkTimeout, milliseconds(12000)};
constexpr Outcome kUnreachable = {MessageError::kRejected, milliseconds(2000)};
constexpr Outcome kBarred = {MessageError::kCallBarred, milliseconds(1500)};

Outcome outcomeOf(const ModemState& state, const std::string& number) {
  if (state.barring.stops(number, kMessageClass)) return kBarred;
  if (number.ends_with('7')) return kBusyThere;
  if (number.ends_with('8')) return kNoAnswer;
  if (number.ends_with('9')) return kUnreachable;
  return kAccepted;
}

// The number in "NUMBER[,TYPE]", with or without quotes. As in the phone book the type only adds
// the plus that is missing. Nothing when it isn't one.
std::optional<std::string> numberIn(const Arguments& given) {
  std::string number(given.text(0));
  const int type = given.has(1) ? given.number(1).value_or(0) : typeOfNumber(number);
  if (type == kInternationalNumber && !number.starts_with('+')) number.insert(0, "+");
  const bool typed = type == kInternationalNumber || type == kPlainNumber;
  const bool good = typed && isPhoneNumber(number) && lengthOfNumber(number) <= kLongestNumber;
  return good ? std::optional(number) : std::nullopt;
}

// What AT+CSMP has made the first octet of what is sent in text mode asks for.
bool wantsReport(const ModemState& state) {
  return (state.settings.profile.messageKind & kReportWanted) != 0;
}

// A message that fails costs a reference, too.
Reply sent(ModemState& state, const Command& command, const Submission& message,
           const Outcome& outcome) {
  const int reference = state.messages.takeReference();
  if (!state.network.hasService()) return error(MessageError::kNoService);
  if (outcome.refusal) return error(*outcome.refusal);
  state.messages.noteSent(reference, message.number, message.wantsReport);
  return ok(headed(command, std::to_string(reference)));
}

Reply send(ModemState& state, const Command& command, const Submission& message) {
  if (message.text.size() > kLongestMessage) return error(MessageError::kTextModeParameter);
  if (!message.namesCentre && state.messages.serviceCentre.empty()) {
    return error(MessageError::kNoServiceCentre);
  }
  if (!state.network.hasService()) return error(MessageError::kNoService);
  const Outcome outcome = outcomeOf(state, message.number);
  return delayed(state, outcome.delay, [&state, command, message, outcome] {
    return sent(state, command, message, outcome);
  });
}

// Asks for a message in PDU mode, of `length` octets, and does `work` with it.
Reply askForMessage(ModemState& state, std::optional<int> length,
                    std::function<Reply(const Submission&)> work) {
  if (!length) return error(MessageError::kPduModeParameter);
  return askForText(state, [length = *length, work = std::move(work)](const std::string& digits) {
    const auto message = readSubmission(digits, length);
    return message ? work(*message) : error(MessageError::kPduModeParameter);
  });
}

// "=LENGTH". A message to nobody can only be kept.
Reply sendInPduMode(ModemState& state, const Command& command) {
  if (command.arguments.size() > 1) return error(MessageError::kPduModeParameter);
  return askForMessage(state, command.arguments.number(0),
                       [&state, command](const Submission& message) {
                         if (message.number.empty()) return error(MessageError::kPduModeParameter);
                         return send(state, command, message);
                       });
}

// "=NUMBER[,TYPE]"
Reply sendMessage(ModemState& state, const Command& command) {
  if (command.arguments.size() == 0 || command.arguments.size() > 2) return error();
  if (const auto trouble = messageTrouble(state.sim.status())) return error(*trouble);
  if (state.settings.profile.textMode == 0) return sendInPduMode(state, command);
  const auto number = numberIn(command.arguments);
  if (!number) return error(MessageError::kTextModeParameter);
  return askForText(state, [&state, command, number = *number](const std::string& text) {
    return send(
        state, command,
        {.number = number, .text = text, .wantsReport = wantsReport(state), .namesCentre = false});
  });
}

Reply store(ModemState& state, const Command& command, const Message& message) {
  if (message.text.size() > kLongestMessage) return error(MessageError::kTextModeParameter);
  MessageStore& card = state.messages.card;
  const auto location = card.firstFree();
  if (!location) return error(MessageError::kMemoryFull);
  if (!card.store(*location, message)) return error(MessageError::kMemoryFailure);
  return ok(headed(command, std::to_string(*location)));
}

// "=LENGTH[,STATUS]", the status as a number. Only what goes out is written.
Reply writeInPduMode(ModemState& state, const Command& command) {
  constexpr Range kStored = {static_cast<int>(MessageStatus::kStoredUnsent),
                             static_cast<int>(MessageStatus::kStoredSent)};
  const Arguments& given = command.arguments;
  const auto number = given.has(1) ? given.number(1) : kStored.least;
  if (given.size() > 2 || !number || !kStored.holds(*number)) {
    return error(MessageError::kPduModeParameter);
  }
  return askForMessage(
      state, given.number(0),
      [&state, command, status = static_cast<MessageStatus>(*number)](const Submission& message) {
        return store(state, command, {status, message.number, {}, message.text});
      });
}

// "[=NUMBER[,TYPE[,STATUS]]]"; without a status it is still to be sent.
Reply writeMessage(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  if (given.size() > 3) return error();
  if (const auto trouble = messageTrouble(state.sim.status())) return error(*trouble);
  if (state.settings.profile.textMode == 0) return writeInPduMode(state, command);
  const auto number = given.has(0) ? numberIn(given) : std::string();
  const auto status =
      given.has(2) ? parseMessageStatus(given.text(2)) : MessageStatus::kStoredUnsent;
  if (!number || !status || isReceived(*status)) return error(MessageError::kTextModeParameter);
  return askForText(state,
                    [&state, command, number = *number, status = *status](const std::string& text) {
                      return store(state, command, {status, number, {}, text});
                    });
}

constexpr CommandRow kMessageSendCommands[] = {
    {.name = "+CMGS", .set = sendMessage, .test = isSupported},
    {.name = "+CMGW", .execute = writeMessage, .set = writeMessage, .test = isSupported},
};

}  // namespace

CommandRows messageSendCommands() { return kMessageSendCommands; }

}  // namespace gsm::simulator
