#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulator/dialogue/notices.h"

namespace gsm::simulator {

// The values are those of AT+CLCC.
enum class CallState { kActive, kHeld, kDialing, kAlerting, kIncoming, kWaiting };

// The state in one word: active, held, dialing, alerting, incoming, waiting.
std::string_view nameOf(CallState state);

struct Call {
  int id;  // from 1
  CallState state;
  bool fromHost;
  std::string number;  // empty when hidden
};

// The calls that there are, and the indications of their coming and going.
class CallList {
 public:
  explicit CallList(Notices& notices) : notices_(notices) {}

  const std::vector<Call>& all() const { return calls_; }

  // The first call in `state`; null without one. Good until a call is added or removed.
  Call* find(CallState state);
  const Call* find(CallState state) const;

  // Announces the new call, and gives it the lowest free id.
  Call& add(CallState state, bool fromHost, std::string number);

  // Removes a call of the list and returns its id, for `announceEnd` to say when its time has
  // come: the host hears of the result first.
  int remove(const Call& call);
  void announceEnd(int id);

 private:
  Notices& notices_;
  std::vector<Call> calls_;
};

}  // namespace gsm::simulator
