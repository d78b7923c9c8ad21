#include "ui/views/quiet_windows.h"

#include <QGuiApplication>
#include <QWindow>

namespace gsm {

bool givesKeyboardToWhatComesUp() { return QGuiApplication::platformName().startsWith("wayland"); }

// A tip is the one kind of window that comes up under Wayland without the keyboard.
void makeNotice(QWidget& form) {
  const auto kind = givesKeyboardToWhatComesUp() ? Qt::ToolTip : form.windowFlags();
  form.setWindowFlags(kind | Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
                      Qt::WindowDoesNotAcceptFocus);
}

void tieNotice(QWidget& form, const QWidget* below) {
  if (!givesKeyboardToWhatComesUp()) return;
  form.winId();  // makes its window
  form.windowHandle()->setTransientParent(below == nullptr ? nullptr : below->windowHandle());
}

void takeKeysUnused(QWidget& form) {
  if (givesKeyboardToWhatComesUp()) form.setFocus();
}

}  // namespace gsm
