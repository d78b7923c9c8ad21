#pragma once

#include <cstdint>
#include <functional>
#include <queue>
#include <vector>

#include "platform/event_loop.h"
#include "platform/headless/side_stack.h"

namespace gsm {

/// A clock that stands still but for `run`, and the event loop that moves it: between two events
/// the time jumps, so an hour costs none.
///
/// The program under it has a native stack of its own. A run ends when its time is up even if
/// handlers wait; the next run goes on from there. Events due at the same instant run in the order
/// in which they were queued.
class VirtualTime : public Clock, public EventLoop {
 public:
  /// `start` is the wall clock's time at instant 0. `isIdle` says whether no handler is on the
  /// stack.
  VirtualTime(LocalTime start, std::function<bool()> isIdle);
  ~VirtualTime() override { abandon(); }

  // The program's side.
  Instant now() const override { return now_; }
  LocalTime localTime() const override;
  float secondsSinceMidnight() const override;
  void post(Event event) override { after(Duration::zero(), std::move(event)); }
  void pass(std::optional<Instant> until = std::nullopt) override;
  std::unique_ptr<Repetition> every(Duration interval, Event event) override;

  /// Queues `event` for the time `delay` from now.
  void after(Duration delay, Event event);

  // The owner's side.
  /// Lets `span` pass.
  void run(Duration span);
  /// Lets time pass until nothing is queued but the next ticks of timers, and no handler is on the
  /// stack; `limit` at most.
  void settle(Duration limit);
  /// Unwinds the handlers that still wait and ends the program, before what they use is gone.
  void abandon();
  /// Whether the program has ended. Its time stands still from then on.
  bool hasEnded() const { return stack_.hasEnded(); }

 private:
  class Ticking;
  enum class Source { world, timer };
  struct Entry {
    Instant due;
    std::uint64_t order;
    Source source;
    Event event;
  };
  struct Later {
    bool operator()(const Entry& a, const Entry& b) const {
      return a.due != b.due ? a.due > b.due : a.order > b.order;
    }
  };

  void queue(Instant due, Source source, Event event);
  void live();
  void sleep(std::optional<Instant> until);
  void runWaiting();
  void yield();
  bool isSettled() const { return settling_ && worldEvents_ == 0 && isIdle_(); }

  const LocalTime start_;
  const std::function<bool()> isIdle_;
  // Invariant: no entry is due before now_.
  std::priority_queue<Entry, std::vector<Entry>, Later> queue_;
  std::uint64_t nextOrder_ = 0;
  std::size_t worldEvents_ = 0;  // entries of queue_ that no timer made
  Instant now_{0};
  Instant limit_{0};  // how far the current run may take now_
  bool settling_ = false;
  bool abandoned_ = false;
  SideStack stack_;
};

}  // namespace gsm
