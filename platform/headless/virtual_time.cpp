#include "platform/headless/virtual_time.h"

#include <algorithm>
#include <utility>

#include "platform/headless/program_end.h"
#include "platform/scoped_value.h"

namespace gsm {
namespace {

constexpr std::chrono::hours kDay{24};

Duration timeOfDay(const LocalTime& time) {
  return std::chrono::hours(time.hour) + std::chrono::minutes(time.minute) +
         std::chrono::seconds(time.second);
}

std::chrono::year_month_day dateOf(const LocalTime& time) {
  return {std::chrono::year(time.year), std::chrono::month(static_cast<unsigned>(time.month)),
          std::chrono::day(static_cast<unsigned>(time.day))};
}

}  // namespace

// A repetition and its queue entries share the state, since an entry may outlive the repetition and
// the repetition may be destroyed by its own event.
class VirtualTime::Ticking : public Repetition {
 public:
  struct State {
    VirtualTime& time;
    Duration interval;
    Event event;
    bool alive = true;
  };

  Ticking(VirtualTime& time, Duration interval, Event event)
      : state_(std::make_shared<State>(State{time, interval, std::move(event)})) {
    queueNext(state_, time.now_ + interval);
  }
  ~Ticking() override { state_->alive = false; }

 private:
  static void queueNext(const std::shared_ptr<State>& state, Instant due) {
    state->time.queue(due, Source::timer, [state, due] {
      if (!state->alive) return;
      queueNext(state, due + state->interval);
      state->event();
    });
  }

  std::shared_ptr<State> state_;
};

VirtualTime::VirtualTime(LocalTime start, std::function<bool()> isIdle)
    : start_(start), isIdle_(std::move(isIdle)), stack_([this] { live(); }) {}

void VirtualTime::abandon() {
  abandoned_ = true;
  if (stack_.hasBegun()) stack_.resume();
}

void VirtualTime::live() {
  try {
    for (;;) pass();
  } catch (const ProgramEnd&) {}
}

LocalTime VirtualTime::localTime() const {
  const auto sinceMidnight = std::chrono::floor<std::chrono::seconds>(timeOfDay(start_) + now_);
  const auto days = std::chrono::floor<std::chrono::days>(sinceMidnight);
  const std::chrono::year_month_day date{std::chrono::sys_days(dateOf(start_)) + days};
  const std::chrono::hh_mm_ss time{sinceMidnight - days};
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(time.hours().count()),
          static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count())};
}

float VirtualTime::secondsSinceMidnight() const {
  return static_cast<float>(toSeconds((timeOfDay(start_) + now_) % kDay));
}

void VirtualTime::queue(Instant due, Source source, Event event) {
  if (source == Source::world) ++worldEvents_;
  queue_.push({due, nextOrder_++, source, std::move(event)});
}

void VirtualTime::after(Duration delay, Event event) {
  queue(now_ + std::max(delay, Duration::zero()), Source::world, std::move(event));
}

std::unique_ptr<Repetition> VirtualTime::every(Duration interval, Event event) {
  return std::make_unique<Ticking>(*this, interval, std::move(event));
}

void VirtualTime::pass(std::optional<Instant> until) {
  sleep(until);
  runWaiting();
}

// Moves the clock to the next event or to `until`. Where the run's time is up before, the owner has
// its turn, and may queue what comes earlier.
void VirtualTime::sleep(std::optional<Instant> until) {
  for (;;) {
    std::optional<Instant> wake = until;
    if (!queue_.empty() && (!wake || queue_.top().due < *wake)) wake = queue_.top().due;
    const bool withinRun = wake && *wake <= limit_;
    if (withinRun && (*wake <= now_ || !isSettled())) {
      now_ = std::max(now_, *wake);
      return;
    }
    if (!isSettled()) now_ = limit_;
    yield();
  }
}

void VirtualTime::runWaiting() {
  const Instant now = now_;
  const std::uint64_t end = nextOrder_;
  while (!queue_.empty() && queue_.top().due <= now && queue_.top().order < end) {
    // The queue gives only constant access to its top, which is removed the next moment.
    Entry entry = std::move(const_cast<Entry&>(queue_.top()));
    queue_.pop();
    if (entry.source == Source::world) --worldEvents_;
    entry.event();
  }
}

void VirtualTime::yield() {
  stack_.yield();
  if (abandoned_) throw ProgramEnd{};
}

void VirtualTime::run(Duration span) {
  limit_ = now_ + span;
  stack_.resume();
}

void VirtualTime::settle(Duration limit) {
  const ScopedValue guard(settling_, true);
  run(limit);
}

}  // namespace gsm
