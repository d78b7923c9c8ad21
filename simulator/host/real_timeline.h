#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <utility>

#include "simulator/line/timeline.h"

namespace gsm::pty {

// Real time, run by whoever asks it what is due.
class RealTimeline final : public simulator::Timeline {
 public:
  // Delays pass `factor` times faster than real; above zero.
  explicit RealTimeline(double factor) : factor_(factor) {}

  void after(std::chrono::nanoseconds delay, std::function<void()> action) override;

  // The real time until the next action is due, zero when it is; nothing when none is pending.
  std::optional<std::chrono::nanoseconds> untilNext() const;

  // Runs the actions due by now, in order; those that they give in turn wait for the next call.
  void runDue();

 private:
  using Clock = std::chrono::steady_clock;

  double factor_;
  std::uint64_t given_ = 0;  // keeps actions of the same instant in order
  std::map<std::pair<Clock::time_point, std::uint64_t>, std::function<void()>> pending_;
};

}  // namespace gsm::pty
