#include "simulator/network/call_list.h"

#include <algorithm>
#include <utility>

namespace gsm::simulator {

std::string_view nameOf(CallState state) {
  switch (state) {
    case CallState::kActive: return "active";
    case CallState::kHeld: return "held";
    case CallState::kDialing: return "dialing";
    case CallState::kAlerting: return "alerting";
    case CallState::kIncoming: return "incoming";
    case CallState::kWaiting: break;
  }
  return "waiting";
}

const Call* CallList::find(CallState state) const {
  const auto found = std::find_if(calls_.begin(), calls_.end(),
                                  [state](const Call& call) { return call.state == state; });
  return found == calls_.end() ? nullptr : &*found;
}

Call* CallList::find(CallState state) {
  return const_cast<Call*>(std::as_const(*this).find(state));
}

Call& CallList::add(CallState state, bool fromHost, std::string number) {
  int id = 1;
  const auto isTaken = [&id](const Call& call) { return call.id == id; };
  while (std::any_of(calls_.begin(), calls_.end(), isTaken)) ++id;
  notices_.indicate(Indication::kCallCreated, "5," + std::to_string(id));
  return calls_.emplace_back(Call{id, state, fromHost, std::move(number)});
}

int CallList::remove(const Call& call) {
  const int id = call.id;
  std::erase_if(calls_, [id](const Call& other) { return other.id == id; });
  return id;
}

void CallList::announceEnd(int id) {
  notices_.indicate(Indication::kCallReleased, "6," + std::to_string(id));
}

}  // namespace gsm::simulator
