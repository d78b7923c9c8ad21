#include <optional>
#include <string>

#include "simulator/profile_number.h"
#include "simulator/sim_trouble.h"
#include "simulator/text.h"

// The messages in the modem's memories, in text mode.
namespace gsm::simulator {

namespace {

Reply kept(bool done) { return done ? ok() : error(MessageError::kMemoryFailure); }

// A command that needs the card: refused while the card can't be used.
template <CommandHandler handler>
Reply withCard(ModemState& state, const Command& command) {
  const auto trouble = messageTrouble(state.sim.status());
  return trouble ? error(*trouble) : handler(state, command);
}

// A command whose answer is for people to read. There is no other mode here.
template <CommandHandler handler>
Reply inTextMode(ModemState& state, const Command& command) {
  if (state.settings.profile.textMode == 0) return error(MessageError::kNotSupported);
  return withCard<handler>(state, command);
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
  return ok(
      withText(headed(command, quoted(nameOf(message.status)) + "," + headerOf(message)), message));
}

constexpr std::string_view kAll = "ALL";

// A list has a field for the time of what never had one, too.
std::string listed(const Command& command, int location, const Message& message) {
  const bool timeless = message.fields.empty() && !isReceived(message.status);
  return withText(headed(command, std::to_string(location) + "," + quoted(nameOf(message.status)) +
                                      "," + headerOf(message) + (timeless ? "," : "")),
                  message);
}

// "=STATUS"; without one, what is new.
Reply listMessages(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const bool all = given.text(0) == kAll;
  const auto status =
      given.size() == 0 ? MessageStatus::kReceivedUnread : parseMessageStatus(given.text(0));
  if (given.size() > 1 || (!all && !status)) return error(MessageError::kTextModeParameter);
  MessageStore& memory = state.messages.reading();
  std::string lines;
  for (const auto& [location, message] : MessageEntries(memory.entries())) {
    if (!all && message.status != status) continue;
    lines.append(lines.empty() ? "" : "\r\n").append(listed(command, location, message));
    memory.markRead(location);
  }
  return lines.empty() ? ok() : ok(lines);
}

Reply listStatuses(ModemState&, const Command& command) {
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
    {.name = "+CMGR", .set = inTextMode<readMessage>, .test = isSupported},
    fromStandard({.name = "+CMGL",
                  .execute = inTextMode<listMessages>,
                  .set = inTextMode<listMessages>,
                  .test = listStatuses}),
    {.name = "+CMGD", .set = withCard<deleteMessages>, .test = listDeletions},
};

}  // namespace

CommandRows messageStoreCommands() { return kMessageStoreCommands; }

}  // namespace gsm::simulator
