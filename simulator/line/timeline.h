#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

namespace gsm::simulator {

// All that the modem knows of time. The host of the modem implements it, in virtual time or in real
// time, so the same modem serves a test that takes no time and a desk that takes all day.
class Timeline {
 public:
  virtual ~Timeline() = default;

  // Runs `action` once, `delay` from now and never from inside this call; a delay of zero or less
  // means the next occasion. Actions due at the same instant run in the order they were given.
  virtual void after(std::chrono::nanoseconds delay, std::function<void()> action) = 0;
};

// A view of a timeline whose pending actions die with the view: an object that keeps one as a
// member may capture itself in an action without outliving worries.
class GuardedTimeline {
 public:
  explicit GuardedTimeline(Timeline& timeline) : timeline_(timeline) {}
  GuardedTimeline(const GuardedTimeline&) = delete;
  GuardedTimeline& operator=(const GuardedTimeline&) = delete;

  // As Timeline::after, except that `action` is dropped once this view, or cancelAll, is past.
  void after(std::chrono::nanoseconds delay, std::function<void()> action) {
    timeline_.after(delay, [guard = std::weak_ptr(token_), action = std::move(action)] {
      if (const auto alive = guard.lock()) action();
    });
  }

  // Drops every action still pending through this view.
  void cancelAll() { token_ = std::make_shared<char>(); }

 private:
  Timeline& timeline_;
  std::shared_ptr<char> token_ = std::make_shared<char>();
};

}  // namespace gsm::simulator
