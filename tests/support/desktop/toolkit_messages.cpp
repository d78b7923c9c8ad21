#include "tests/support/desktop/toolkit_messages.h"

#include <QMessageLogContext>
#include <QString>
#include <QtGlobal>

namespace gsm {
namespace {

// The offscreen platform can't do what desktops can, and says so each time.
bool isOfOffscreen(const QString& message) {
  return message.startsWith("This plugin does not support");
}

void report(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtDebugMsg || type == QtInfoMsg || isOfOffscreen(message)) return;
  ADD_FAILURE() << "Qt says: " << message.toStdString();
}

}  // namespace

void failOnToolkitMessages() { qInstallMessageHandler(report); }

}  // namespace gsm
