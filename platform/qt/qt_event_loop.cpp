#include "platform/qt/qt_event_loop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

namespace gsm {
namespace {

using std::chrono::milliseconds;

const auto kLookAtQueue = static_cast<QEvent::Type>(QEvent::registerEventType());

// What Qt's timers can be set to, never early: an alarm that rings early only makes for another.
milliseconds forTimer(Duration realTime) {
  constexpr milliseconds kLongest{std::numeric_limits<int>::max()};
  return std::clamp(std::chrono::ceil<milliseconds>(realTime), milliseconds{0}, kLongest);
}

// An event that comes due again and again. It is queued when it is due, and its next time is set
// when its turn has come, so that at most one of it waits in the queue.
class Recurrence : public std::enable_shared_from_this<Recurrence> {
 public:
  Recurrence(const MachineClock& clock, EventLoop& loop, Duration interval, EventLoop::Event event)
      : clock_(clock), loop_(loop), interval_(interval), event_(std::move(event)) {
    alarm_.setTimerType(Qt::PreciseTimer);
    alarm_.setSingleShot(true);
    QObject::connect(&alarm_, &QTimer::timeout, [this] {
      loop_.post([self = weak_from_this()] {
        if (const auto recurrence = self.lock()) recurrence->takeTurn();
      });
    });
  }

  void setAlarm() {
    const Instant now = clock_.now();
    const auto passed = (now - start_) / interval_;
    alarm_.start(forTimer(clock_.realTime(start_ + (passed + 1) * interval_ - now)));
  }

  // The event no longer comes, although it may just be running.
  void end() {
    ended_ = true;
    alarm_.stop();
  }

 private:
  void takeTurn() {
    if (ended_) return;
    setAlarm();
    event_();  // may end the recurrence, which lives until it returns
  }

  const MachineClock& clock_;
  EventLoop& loop_;
  const Duration interval_;
  const EventLoop::Event event_;
  const Instant start_ = clock_.now();
  QTimer alarm_;
  bool ended_ = false;
};

class QtRepetition : public Repetition {
 public:
  explicit QtRepetition(std::shared_ptr<Recurrence> recurrence)
      : recurrence_(std::move(recurrence)) {
    recurrence_->setAlarm();
  }
  ~QtRepetition() override { recurrence_->end(); }
  QtRepetition(const QtRepetition&) = delete;
  QtRepetition& operator=(const QtRepetition&) = delete;

 private:
  const std::shared_ptr<Recurrence> recurrence_;
};

}  // namespace

QtEventLoop::QtEventLoop(const MachineClock& clock) : clock_(clock) {
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
          [this] {
            if (!queue_.empty()) QCoreApplication::postEvent(this, new QEvent(kLookAtQueue));
          });
}

void QtEventLoop::post(Event event) { queue_.push_back({++posted_, std::move(event)}); }

bool QtEventLoop::event(QEvent* event) {
  if (event->type() != kLookAtQueue) return QObject::event(event);
  runWaiting();
  return true;
}

void QtEventLoop::pass(std::optional<Instant> until) {
  if (serve_) {
    passWithoutScreen(until);
  } else if (queue_.empty()) {
    sleep(until);
  } else {
    QCoreApplication::processEvents();
    runWaiting();
  }
}

void QtEventLoop::passWithoutScreen(std::optional<Instant> until) {
  constexpr Duration kLongest = milliseconds(20);  // what comes meanwhile isn't noticed
  if (queue_.empty()) {
    const Duration left = until ? clock_.realTime(*until - clock_.now()) : kLongest;
    serve_(std::clamp(left, Duration::zero(), kLongest));
  }
  runWaiting();
}

// Events that run may let the queue run themselves, so what is left of it is asked for each time.
void QtEventLoop::runWaiting() {
  const std::uint64_t last = posted_;
  while (!queue_.empty() && queue_.front().number <= last) {
    const Event event = std::move(queue_.front().event);
    queue_.pop_front();
    event();
  }
}

void QtEventLoop::sleep(std::optional<Instant> until) {
  QTimer alarm;
  if (until) {
    const Duration left = *until - clock_.now();
    if (left <= Duration::zero()) {
      QCoreApplication::processEvents();
      return;
    }
    alarm.setTimerType(Qt::PreciseTimer);
    alarm.start(forTimer(clock_.realTime(left)));
  }
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

std::unique_ptr<Repetition> QtEventLoop::every(Duration interval, Event event) {
  return std::make_unique<QtRepetition>(
      std::make_shared<Recurrence>(clock_, *this, interval, std::move(event)));
}

}  // namespace gsm
