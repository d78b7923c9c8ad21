#include <optional>

#include "simulator/card/phone_book.h"
#include "simulator/console/console_table.h"
#include "simulator/network/service_classes.h"
#include "simulator/text/phone_number.h"
#include "simulator/text/text.h"

// The console as the other side of the calls.
namespace gsm::simulator {

namespace {

// A number, or nothing of one for "hidden"; no value when it is neither.
std::optional<std::string> callerIn(std::string_view operand) {
  if (operand == "hidden") return std::string();
  if (!isPhoneNumber(operand) || lengthOfNumber(operand) > kLongestNumber) return std::nullopt;
  return std::string(operand);
}

std::string doneOr(bool done, std::string_view complaint) {
  return done ? std::string() : consoleError(complaint);
}

// Why the network doesn't let a caller through; empty when it does.
std::string keptAway(const ModemState& state) {
  if (!state.network.hasService()) return consoleError("the modem has no network");
  if (state.barring.stopsIncoming(kVoiceClass, state.network.isHome())) {
    return consoleError("incoming calls are barred");
  }
  const auto target = state.forwarding.target(Forwarding::kUnconditional, kVoiceClass);
  return target ? consoleError("calls are forwarded to " + *target) : "";
}

std::string ring(ModemState& state, std::string_view operand) {
  const auto caller = callerIn(operand);
  if (!caller) return wrongUse();
  if (std::string complaint = keptAway(state); !complaint.empty()) return complaint;
  return doneOr(state.calls.ring(*caller), "there is a call already; 'wait' adds one to it");
}

std::string wait(ModemState& state, std::string_view operand) {
  const auto caller = callerIn(operand);
  if (!caller) return wrongUse();
  if (std::string complaint = keptAway(state); !complaint.empty()) return complaint;
  if (!state.calls.waitingEnabled()) return consoleError("call waiting is switched off");
  return doneOr(state.calls.wait(*caller), "a caller waits only while there is one call, answered");
}

// Does `action` with whether the operand asks for silence.
template <typename Action>
std::string perhapsSilently(std::string_view operand, std::string_view complaint, Action action) {
  const bool silently = operand == "silent";
  if (!silently && !operand.empty()) return wrongUse();
  return doneOr(action(silently), complaint);
}

std::string giveUp(ModemState& state, std::string_view operand) {
  return perhapsSilently(operand, "nobody is calling",
                         [&](bool silently) { return state.calls.giveUp(silently); });
}

std::string hangUp(ModemState& state, std::string_view operand) {
  return perhapsSilently(operand, "there is no call to end",
                         [&](bool silently) { return state.calls.endRemotely(silently); });
}

template <Reply::Result result>
std::string endDialing(ModemState& state, std::string_view) {
  return doneOr(state.calls.endDialing(result), "the modem isn't calling anybody");
}

constexpr ConsoleRow kCallConsole[] = {
    {"ring", "NUMBER|hidden", "somebody calls; it rings until answered or given up", ring},
    {"wait", "NUMBER|hidden", "somebody else calls during a call", wait},
    {"giveup", "[silent]", "who rings or waits gives up; silent: the host isn't told", giveUp},
    {"answer", "", "who is being called answers now", endDialing<Reply::Result::kOk>},
    {"busy", "", "who is being called is busy", endDialing<Reply::Result::kBusy>},
    {"hangup", "[silent]", "the other side ends the call; silent: the host isn't told", hangUp},
};

}  // namespace

ConsoleRows callConsole() { return kCallConsole; }

}  // namespace gsm::simulator
