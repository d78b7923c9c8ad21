#include "simulator/network/calls.h"

#include <chrono>

#include "simulator/text/phone_number.h"

namespace gsm::simulator {

namespace {

using std::chrono::seconds;

constexpr seconds kBetweenRings(5);

// From the ring that S0 counts to until the call is taken: the host hears the ring first.
constexpr seconds kUntilTaken(1);

}  // namespace

bool Calls::take() {
  Call* const ringing = calls_.find(CallState::kIncoming);
  Call* const taken = ringing != nullptr ? ringing : calls_.find(CallState::kWaiting);
  if (taken == nullptr) return false;
  timeline_.cancelAll();
  if (Call* const active = calls_.find(CallState::kActive)) active->state = CallState::kHeld;
  taken->state = CallState::kActive;
  notices_.indicate(Indication::kAudioOn, "9");
  return true;
}

std::vector<int> Calls::hangUp() {
  timeline_.cancelAll();
  endDialing(Reply::Result::kNoCarrier);
  std::vector<int> ended;
  while (!all().empty()) ended.push_back(calls_.remove(all().front()));
  return ended;
}

void Calls::announceEnds(const std::vector<int>& ids) {
  for (const int id : ids) calls_.announceEnd(id);
}

bool Calls::ring(const std::string& number) {
  if (!all().empty()) return false;
  calls_.add(CallState::kIncoming, false, number);
  rings_ = 0;
  announceRing();
  return true;
}

bool Calls::wait(const std::string& number) {
  if (!waitingEnabled() || !has(CallState::kActive) || all().size() > 1) return false;
  calls_.add(CallState::kWaiting, false, number);
  announceWaiting(number);
  return true;
}

bool Calls::giveUp(bool silently) {
  if (const Call* const ringing = calls_.find(CallState::kIncoming)) {
    end(*ringing, silently ? Telling::kNothing : Telling::kResultAndRelease);
    return true;
  }
  const Call* const waiting = calls_.find(CallState::kWaiting);
  if (waiting == nullptr) return false;
  // The result would be taken for the end of the call that is talked on.
  end(*waiting, silently ? Telling::kNothing : Telling::kRelease);
  return true;
}

bool Calls::endDialing(Reply::Result result) {
  if (!isDialing()) return false;
  dialer_.end(result);
  return true;
}

bool Calls::endRemotely(bool silently) {
  const Call* ended = calls_.find(CallState::kActive);
  if (ended == nullptr && endDialing(Reply::Result::kNoCarrier)) return true;
  if (ended == nullptr) ended = calls_.find(CallState::kHeld);
  if (ended == nullptr) return false;
  end(*ended, silently ? Telling::kNothing : Telling::kResultAndRelease);
  ringWaiting();
  return true;
}

void Calls::lose() {
  endDialing(Reply::Result::kNoCarrier);
  while (!all().empty()) {
    const bool waits = all().front().state == CallState::kWaiting;
    end(all().front(), waits ? Telling::kRelease : Telling::kResultAndRelease);
  }
}

void Calls::end(const Call& call, Telling telling) {
  if (call.state == CallState::kIncoming) timeline_.cancelAll();
  const int id = calls_.remove(call);
  if (telling == Telling::kResultAndRelease) notices_.result(kNoCarrierCode);
  if (telling != Telling::kNothing) calls_.announceEnd(id);
}

void Calls::announceRing() {
  const Call* const ringing = calls_.find(CallState::kIncoming);
  if (ringing == nullptr) return;
  const Profile& profile = settings_.profile;
  if (profile.callTypes != 0) {
    notices_.line("+CRING: VOICE");
  } else {
    notices_.result(kRingCode);
  }
  if (profile.callerId != 0) notices_.line("+CLIP: " + numberFields(ringing->number));
  ++rings_;
  if (profile.autoAnswer != 0 && rings_ >= profile.autoAnswer) {
    timeline_.after(kUntilTaken, [this] { take(); });
  } else {
    timeline_.after(kBetweenRings, [this] { announceRing(); });
  }
}

// A hidden number leaves both of its fields empty here, unlike in +CLIP. The class is voice.
void Calls::announceWaiting(const std::string& number) {
  if (settings_.profile.callWaiting == 0) return;
  notices_.line("+CCWA: " + (number.empty() ? "," : numberFields(number)) + ",1");
}

// The call that a caller waited for is over, so the network lets him ring.
void Calls::ringWaiting() {
  Call* const waiting = calls_.find(CallState::kWaiting);
  if (waiting == nullptr) return;
  waiting->state = CallState::kIncoming;
  rings_ = 0;
  announceRing();
}

}  // namespace gsm::simulator
