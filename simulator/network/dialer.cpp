#include "simulator/network/dialer.h"

#include <chrono>
#include <utility>

namespace gsm::simulator {

namespace {

using std::chrono::milliseconds;

// What becomes of a call, and how long it takes.
struct Outcome {
  Reply::Result result;
  bool rings;
  milliseconds delay;
};

// A network takes longer to give up a call that nobody answers. This one doesn't, for it is to
// happen while a host still watches.
constexpr Outcome kNobodyAnswers = {Reply::Result::kNoAnswer, true, milliseconds(12000)};
constexpr Outcome kAnswered = {Reply::Result::kOk, true, milliseconds(3000)};
constexpr Outcome kBusyThere = {Reply::Result::kBusy, false, milliseconds(2000)};
constexpr Outcome kUnreachable = {Reply::Result::kNoCarrier, false, milliseconds(2000)};

constexpr milliseconds kUntilRinging(1000);

const Outcome& outcomeOf(std::string_view number) {
  if (number.ends_with('7')) return kBusyThere;
  if (number.ends_with('8')) return kNobodyAnswers;
  if (number.ends_with('9')) return kUnreachable;
  return kAnswered;
}

}  // namespace

void Dialer::dial(const std::string& number, FinishCommand finish) {
  lastNumber_ = number;
  finish_ = std::move(finish);
  calls_.add(CallState::kDialing, true, number);
  const Outcome& outcome = outcomeOf(number);
  if (outcome.rings) timeline_.after(kUntilRinging, [this] { ringThere(); });
  timeline_.after(outcome.delay, [this, result = outcome.result] { end(result); });
}

void Dialer::ringThere() {
  if (Call* const dialed = call()) dialed->state = CallState::kAlerting;
  notices_.indicate(Indication::kRemoteRings, "2");
}

void Dialer::end(Reply::Result result) {
  timeline_.cancelAll();
  Call* const ended = call();
  Reply reply{.result = result};
  if (ended != nullptr && result == Reply::Result::kOk) {
    ended->state = CallState::kActive;
    notices_.indicate(Indication::kAudioOn, "9");
  } else if (ended != nullptr) {
    reply.afterwards.push_back([this, id = calls_.remove(*ended)] { calls_.announceEnd(id); });
  }
  if (const auto finish = std::exchange(finish_, nullptr)) finish(std::move(reply));
}

Call* Dialer::call() {
  Call* const dialing = calls_.find(CallState::kDialing);
  return dialing != nullptr ? dialing : calls_.find(CallState::kAlerting);
}

}  // namespace gsm::simulator
