#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>

#include "platform/event_loop.h"
#include "platform/posix/end_signals.h"

namespace gsm {

/// What asks the program to end from outside: signals, the end of the session, and a display that
/// has gone. One at a time.
class EndRequests : public QObject {
 public:
  /// `end` is to end the program. It runs as an event of `loop`; only when the display has gone,
  /// which Qt doesn't survive, at once, after `screenHasGone`.
  EndRequests(EventLoop& loop, std::function<void()> end, std::function<void()> screenHasGone);
  ~EndRequests() override;
  EndRequests(const EndRequests&) = delete;
  EndRequests& operator=(const EndRequests&) = delete;

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  static void hear(QtMsgType type, const QMessageLogContext& context, const QString& message);
  void request();

  EventLoop& loop_;
  const std::function<void()> end_;
  const std::function<void()> screenHasGone_;
  EndSignals signals_;
  QSocketNotifier signalled_{signals_.descriptor(), QSocketNotifier::Read};
  bool requested_ = false;
};

}  // namespace gsm
