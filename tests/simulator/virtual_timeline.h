#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <utility>

#include "simulator/line/timeline.h"

namespace gsm::simulator {

// Time that passes when the test says so.
class VirtualTimeline final : public Timeline {
 public:
  void after(std::chrono::nanoseconds delay, std::function<void()> action) override {
    pending_.emplace(std::pair(now_ + delay, given_++), std::move(action));
  }

  // Lets `time` pass and runs what falls due in it.
  void advance(std::chrono::nanoseconds time) {
    const auto end = now_ + time;
    while (!pending_.empty() && pending_.begin()->first.first <= end) {
      const auto first = pending_.begin();
      now_ = std::max(now_, first->first.first);
      const auto action = std::move(first->second);
      pending_.erase(first);
      action();
    }
    now_ = end;
  }

  std::chrono::nanoseconds now() const { return now_; }

 private:
  std::chrono::nanoseconds now_{};
  std::uint64_t given_ = 0;
  std::map<std::pair<std::chrono::nanoseconds, std::uint64_t>, std::function<void()>> pending_;
};

}  // namespace gsm::simulator
