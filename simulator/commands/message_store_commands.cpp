#include <optional>
#include <string>

#include "simulator/commands/profile_number.h"
#include "simulator/commands/sim_trouble.h"
#include "simulator/text/text.h"

// The messages in the modem's memories.
namespace gsm::simulator {

namespace {

Reply kept(bool done) { return done ? ok() : error(MessageError::kMemoryFailure); }

// A command that needs the card: refused while the card can't be used.
template <CommandHandler handler>
Reply withCard(ModemState& state, const Command& command) {
  const auto trouble = messageTrouble(state.sim.status());
  return trouble ? error(*trouble) : handler(state, command);
}

// "USED,TOTAL" of a memory.
std::string filling(const MessageStore& memory) {
  return std::to_string(memory.entries().size()) + "," + std::to_string(memory.locations());
}

Reply queryMemories(ModemState& state, const Command& command) {
  const MessageStore& reading = state.messages.reading();
  const MessageStore& card = state.messages.card;
  return ok(headed(command, quoted(reading.name()) + "," + filling(reading) + "," +
                                quoted(card.name()) + "," + filling(card)));
}

// "=READING[,WRITING]". Messages are written to the card alone.
Reply selectMemories(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  if (given.size() < 1 || given.size() > 2) return error();
  MessageStore* const reading = state.messages.memory(given.text(0));
  const bool writes = given.size() == 1 || given.text(1) == state.messages.card.name();
  if (reading == nullptr || !writes) return error(MessageError::kNotSupported);
  state.messages.read(*reading);
  return ok(headed(command, filling(*reading) + "," + filling(state.messages.card)));
}

Reply listMemories(ModemState&, const Command& command) {
  return ok(headed(command, "((\"SM\",\"BM\",\"SR\"),(\"SM\"))"));
}

bool isTextMode(const ModemState& state) { return state.settings.profile.textMode != 0; }

// The number of a status in PDU mode: they count in the order of their kind.
constexpr int numberOf(MessageStatus status) { return static_cast<int>(status); }

// What is told of a message behind its location in PDU mode: its status, an empty field for a name,
// its length, and the message itself.
std::string inPduMode(const ModemState& state, const Message& message) {
  const auto [digits, length] = pduOf(message, state.messages.serviceCentre);
  return std::to_string(numberOf(message.status)) + ",," + std::to_string(length) + "\r\n" + digits;
}

// "=LOCATION". An empty one has nothing to tell, which is no error.
Reply readMessage(ModemState& state, const Command& command) {
  const auto location = command.arguments.number(0);
  if (command.arguments.size() != 1 || !location) return error();
  MessageStore& memory = state.messages.reading();
  if (!memory.holds(*location)) return error(MessageError::kInvalidIndex);
  const auto found = memory.entries().find(*location);
  if (found == memory.entries().end()) return ok();
  const Message message = found->second;
  memory.markRead(*location);
  if (!isTextMode(state)) return ok(headed(command, inPduMode(state, message)));
  return ok(
      withText(headed(command, quoted(nameOf(message.status)) + "," + headerOf(message)), message));
}

constexpr std::string_view kAll = "ALL";
constexpr int kAllInNumbers = 4;

// A list has a field for the time of what never had one, too.
std::string listed(const ModemState& state, const Command& command, int location,
                   const Message& message) {
  const std::string place = std::to_string(location) + ",";
  if (!isTextMode(state)) return headed(command, place + inPduMode(state, message));
  const bool timeless = message.fields.empty() && !isReceived(message.status);
  return withText(headed(command, place + quoted(nameOf(message.status)) + "," + headerOf(message) +
                                      (timeless ? "," : "")),
                  message);
}

// What a list is to tell: the messages of a status, or all of them.
struct Choice {
  bool all = false;
  std::optional<MessageStatus> status = {};
};

// Words choose in text mode and numbers in PDU mode. Nothing for what is neither.
std::optional<Choice> choiceIn(const ModemState& state, const Arguments& given) {
  if (given.size() > 1) return std::nullopt;
  if (given.size() == 0) return Choice{.status = MessageStatus::kReceivedUnread};
  if (isTextMode(state)) {
    const Choice choice{.all = given.text(0) == kAll, .status = parseMessageStatus(given.text(0))};
    return choice.all || choice.status ? std::optional(choice) : std::nullopt;
  }
  const auto number = given.number(0);
  if (!number || *number < 0 || *number > kAllInNumbers) return std::nullopt;
  if (*number == kAllInNumbers) return Choice{.all = true};
  return Choice{.status = static_cast<MessageStatus>(*number)};
}

// "=STATUS"; without one, what is new.
Reply listMessages(ModemState& state, const Command& command) {
  const auto choice = choiceIn(state, command.arguments);
  if (!choice)
    return error(isTextMode(state) ? MessageError::kTextModeParameter
                                   : MessageError::kPduModeParameter);
  MessageStore& memory = state.messages.reading();
  std::string lines;
  for (const auto& [location, message] : MessageEntries(memory.entries())) {
    if (!choice->all && message.status != choice->status) continue;
    lines.append(lines.empty() ? "" : "\r\n").append(listed(state, command, location, message));
    memory.markRead(location);
  }
  return lines.empty() ? ok() : ok(lines);
}

Reply listStatuses(ModemState& state, const Command& command) {
  if (!isTextMode(state)) return ok(headed(command, Range{0, kAllInNumbers}.listing()));
  return ok(headed(command, "(\"REC UNREAD\",\"REC READ\",\"STO UNSENT\",\"STO SENT\",\"ALL\")"));
}

constexpr Range kDeletions = {0, 4};
constexpr int kDeleteAll = 4;

// True for a message that goes when all of a kind are deleted: 1 means what has been read, 2 what
// has been sent as well, 3 what hasn't been sent as well.
bool goesWith(int deletion, MessageStatus status) {
  switch (status) {
    case MessageStatus::kReceivedRead: return deletion >= 1;
    case MessageStatus::kStoredSent: return deletion >= 2;
    case MessageStatus::kStoredUnsent: return deletion >= 3;
    case MessageStatus::kReceivedUnread: break;
  }
  return deletion == kDeleteAll;
}

// "=LOCATION[,DELETION]"; with a deletion other than 0 the location doesn't matter.
Reply deleteMessages(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const auto location = given.number(0);
  const auto deletion = given.size() > 1 ? given.number(1) : 0;
  if (given.size() > 2 || !location || !deletion) return error();
  MessageStore& memory = state.messages.reading();
  if (!kDeletions.holds(*deletion) || (deletion == 0 && !memory.holds(*location))) {
    return error(MessageError::kInvalidIndex);
  }
  if (deletion == 0) return kept(memory.erase(*location));
  bool done = true;
  for (const auto& [place, message] : MessageEntries(memory.entries())) {
    if (goesWith(*deletion, message.status)) done = memory.erase(place) && done;
  }
  return kept(done);
}

Reply listDeletions(ModemState& state, const Command& command) {
  return ok(headed(command, "(1-" + std::to_string(state.messages.reading().locations()) + ")," +
                                kDeletions.listing()));
}

constexpr CommandRow kMessageStoreCommands[] = {
    {.name = "+CPMS",
     .query = withCard<queryMemories>,
     .set = withCard<selectMemories>,
     .test = listMemories},
    {.name = "+CMGR", .set = withCard<readMessage>, .test = isSupported},
    fromStandard({.name = "+CMGL",
                  .execute = withCard<listMessages>,
                  .set = withCard<listMessages>,
                  .test = listStatuses}),
    {.name = "+CMGD", .set = withCard<deleteMessages>, .test = listDeletions},
};

}  // namespace

CommandRows messageStoreCommands() { return kMessageStoreCommands; }

}  // namespace gsm::simulator
