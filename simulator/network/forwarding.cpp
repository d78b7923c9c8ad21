#include "simulator/network/forwarding.h"

#include "simulator/network/service_classes.h"

namespace gsm::simulator {

namespace {

bool covers(int reason, int single) {
  if (reason == Forwarding::kAllReasons) return true;
  if (reason == Forwarding::kAllConditions) return single != 0;
  return reason == single;
}

// Does `action` with each single reason and class.
template <typename Action>
void forEach(int reason, int classes, Action action) {
  for (int single = 0; single < Forwarding::kReasons; ++single) {
    for (const int serviceClass : kServiceClasses) {
      if (covers(reason, single) && (classes & serviceClass) != 0) {
        action(std::pair(single, serviceClass));
      }
    }
  }
}

}  // namespace

void Forwarding::enter(int reason, int classes, const std::string& number) {
  forEach(reason, classes, [&](const auto& place) { entries_[place] = {number, true}; });
}

void Forwarding::erase(int reason, int classes) {
  forEach(reason, classes, [&](const auto& place) { entries_.erase(place); });
}

bool Forwarding::enable(int reason, int classes, bool on) {
  bool entered = true;
  forEach(reason, classes, [&](const auto& place) { entered &= entries_.contains(place); });
  if (on && !entered) return false;
  forEach(reason, classes, [&](const auto& place) {
    if (entries_.contains(place)) entries_[place].on = on;
  });
  return true;
}

std::optional<std::string> Forwarding::target(int reason, int serviceClass) const {
  std::optional<std::string> common;
  bool agreed = true;
  bool first = true;
  forEach(reason, serviceClass, [&](const auto& place) {
    const auto found = entries_.find(place);
    const bool on = found != entries_.end() && found->second.on;
    const auto number = on ? std::optional(found->second.number) : std::nullopt;
    if (!std::exchange(first, false) && number != common) agreed = false;
    common = number;
  });
  return agreed ? common : std::nullopt;
}

}  // namespace gsm::simulator
