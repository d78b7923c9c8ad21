#include <chrono>
#include <optional>
#include <string>

#include "simulator/delayed.h"
#include "simulator/phone_book.h"
#include "simulator/phone_number.h"
#include "simulator/profile_number.h"
#include "simulator/service_classes.h"

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

// Why no text is asked for; nothing when one is.
std::optional<MessageError> trouble(const ModemState& state) {
  if (state.settings.profile.textMode == 0) return MessageError::kNotSupported;
  return messageTrouble(state.sim.status());
}

// A message that fails costs a reference, too.
Reply sent(ModemState& state, const Command& command, const std::string& number,
           const Outcome& outcome) {
  const int reference = state.messages.takeReference();
  if (!state.network.hasService()) return error(MessageError::kNoService);
  if (outcome.refusal) return error(*outcome.refusal);
  state.messages.noteSent(reference, number);
  return ok(headed(command, std::to_string(reference)));
}

Reply send(ModemState& state, const Command& command, const std::string& number,
           const std::string& text) {
  if (text.size() > kLongestMessage) return error(MessageError::kTextModeParameter);
  if (state.messages.serviceCentre.empty()) return error(MessageError::kNoServiceCentre);
  if (!state.network.hasService()) return error(MessageError::kNoService);
  const Outcome outcome = outcomeOf(state, number);
  return delayed(state, outcome.delay, [&state, command, number, outcome] {
    return sent(state, command, number, outcome);
  });
}

// "=NUMBER[,TYPE]"
Reply sendMessage(ModemState& state, const Command& command) {
  if (command.arguments.size() == 0 || command.arguments.size() > 2) return error();
  if (const auto reason = trouble(state)) return error(*reason);
  const auto number = numberIn(command.arguments);
  if (!number) return error(MessageError::kTextModeParameter);
  return askForText(state, [&state, command, number = *number](const std::string& text) {
    return send(state, command, number, text);
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

// "[=NUMBER[,TYPE[,STATUS]]]"; without a status it is still to be sent.
Reply writeMessage(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  if (given.size() > 3) return error();
  if (const auto reason = trouble(state)) return error(*reason);
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
