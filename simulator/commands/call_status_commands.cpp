#include <algorithm>
#include <string>

#include "simulator/commands/profile_number.h"
#include "simulator/text/phone_number.h"

// What a host asks to learn how the modem and its calls stand.
namespace gsm::simulator {

namespace {

constexpr int kUnknownSignal = 99;
constexpr int kStrongestSignal = 31;
constexpr int kFullBars = 5;

int bars(int signal) {
  return signal >= kUnknownSignal ? 0 : std::min(kFullBars, signal * kFullBars / kStrongestSignal);
}

// Battery, signal, service, message, call, roaming, message store full.
bool holdsUnread(const MessageStore& store) {
  return std::any_of(store.entries().begin(), store.entries().end(), [](const auto& entry) {
    return entry.second.status == MessageStatus::kReceivedUnread;
  });
}

Reply queryIndicators(ModemState& state, const Command& command) {
  const Network& network = state.network;
  const MessageStore& card = state.messages.card;
  const bool hasCard = state.sim.status() == SimStatus::kReady;
  const int values[] = {state.module.battery,
                        bars(network.signal),
                        network.hasService() ? 1 : 0,
                        hasCard && holdsUnread(card) ? 1 : 0,
                        state.calls.all().empty() ? 0 : 1,
                        network.registration() == kRoaming ? 1 : 0,
                        hasCard && !card.firstFree() ? 1 : 0};
  std::string text;
  for (const int value : values) text += (text.empty() ? "" : ",") + std::to_string(value);
  return ok(headed(command, text));
}

Reply listIndicators(ModemState&, const Command& command) {
  return ok(headed(command,
                   "(\"battchg\",(0-5)),(\"signal\",(0-5)),(\"service\",(0,1)),(\"message\",(0,1)),"
                   "(\"call\",(0,1)),(\"roam\",(0,1)),(\"smsfull\",(0-2))"));
}

// Number, direction, state, voice, no conference, and who it is.
Reply listCalls(ModemState& state, const Command& command) {
  std::string lines;
  for (const Call& call : state.calls.all()) {
    if (!lines.empty()) lines += "\r\n";
    lines += headed(command, std::to_string(call.id) + (call.fromHost ? ",0," : ",1,") +
                                 std::to_string(static_cast<int>(call.state)) + ",0,0," +
                                 numberFields(call.number));
  }
  return lines.empty() ? ok() : ok(lines);
}

constexpr int kReady = 0;
constexpr int kRinging = 3;
constexpr int kInCall = 4;

Reply queryActivity(ModemState& state, const Command& command) {
  const int inCall = state.calls.has(CallState::kIncoming) ? kRinging : kInCall;
  return ok(headed(command, std::to_string(state.calls.all().empty() ? kReady : inCall)));
}

constexpr CommandRow kCallStatusCommands[] = {
    {.name = "+CIND", .query = queryIndicators, .test = listIndicators},
    fromStandard({.name = "+CLCC", .execute = listCalls, .test = isSupported}),
    fromStandard({.name = "+CPAS", .execute = queryActivity, .test = isSupported}),
};

}  // namespace

CommandRows callStatusCommands() { return kCallStatusCommands; }

}  // namespace gsm::simulator
