#include "platform/qt/end_requests.h"

#include <QCoreApplication>
#include <QEvent>
#include <cstdio>
#include <utility>

namespace gsm {
namespace {

EndRequests* listening = nullptr;
QtMessageHandler before = nullptr;

}  // namespace

EndRequests::EndRequests(EventLoop& loop, std::function<void()> end,
                         std::function<void()> screenHasGone)
    : loop_(loop), end_(std::move(end)), screenHasGone_(std::move(screenHasGone)) {
  QObject::connect(&signalled_, &QSocketNotifier::activated, this, [this] {
    signalled_.setEnabled(false);
    request();
  });
  QCoreApplication::instance()->installEventFilter(this);
  listening = this;
  before = qInstallMessageHandler(hear);
}

EndRequests::~EndRequests() {
  qInstallMessageHandler(before);
  listening = nullptr;
}

// Qt would close the windows, and end by itself when they let it.
bool EndRequests::eventFilter(QObject* object, QEvent* event) {
  if (object != QCoreApplication::instance() || event->type() != QEvent::Quit) return false;
  request();
  return true;
}

void EndRequests::request() {
  if (!std::exchange(requested_, true)) loop_.post(end_);
}

// When the display has gone Qt says "The X11 connection broke" or "The Wayland connection broke",
// and leaves the process the next moment. There is no other sign of it, and this is the last chance
// to do anything: handlers wait on the stack, and none of them goes on.
void EndRequests::hear(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (before != nullptr) {
    before(type, context, message);
  } else {
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
  }
  const bool gone = type == QtWarningMsg && message.contains(QLatin1String(" connection broke"));
  if (!gone || listening == nullptr) return;
  const EndRequests& requests = *std::exchange(listening, nullptr);
  requests.screenHasGone_();
  requests.end_();
}

}  // namespace gsm
