#include "simulator/host/real_timeline.h"

#include <algorithm>

namespace gsm::pty {

using std::chrono::nanoseconds;

void RealTimeline::after(nanoseconds delay, std::function<void()> action) {
  const double real = static_cast<double>(std::max(delay, nanoseconds::zero()).count()) / factor_;
  const nanoseconds wait(static_cast<nanoseconds::rep>(real));
  pending_.emplace(std::pair(Clock::now() + wait, given_++), std::move(action));
}

std::optional<nanoseconds> RealTimeline::untilNext() const {
  if (pending_.empty()) return std::nullopt;
  const nanoseconds left = pending_.begin()->first.first - Clock::now();
  return std::max(left, nanoseconds::zero());
}

void RealTimeline::runDue() {
  const auto now = Clock::now();
  const std::uint64_t last = given_;
  while (!pending_.empty()) {
    const auto first = pending_.begin();
    if (first->first.first > now || first->first.second >= last) return;
    const auto action = std::move(first->second);
    pending_.erase(first);
    action();
  }
}

}  // namespace gsm::pty
