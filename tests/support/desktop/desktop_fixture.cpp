#include "tests/support/desktop/desktop_fixture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

namespace gsm {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

void mouse(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButtons held) {
  QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

}  // namespace

bool runUntil(EventLoop& loop, const std::function<bool()>& condition, milliseconds limit) {
  // Keeps the passes from sleeping past the limit.
  const auto alarm = loop.every(milliseconds(5), [] {});
  for (const auto end = steady_clock::now() + limit; steady_clock::now() < end;) {
    if (condition()) return true;
    loop.pass();
  }
  return condition();
}

void settle(EventLoop& loop) {
  bool rested = false;
  const auto alarm = loop.every(milliseconds(15), [&] { rested = true; });
  while (!rested) loop.pass();
  // The alarm may have rung under a handler that waited; what that one left goes first.
  bool reached = false;
  loop.post([&] { reached = true; });
  while (!reached) loop.pass();
}

void click(QWidget& widget, const QPoint& at) {
  mouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton);
  mouse(widget, QEvent::MouseButtonRelease, at, Qt::NoButton);
}

void click(QWidget& widget) { click(widget, widget.rect().center()); }

void press(QWidget& widget, Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers) {
  QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
  QApplication::sendEvent(&widget, &down);
  QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
  QApplication::sendEvent(&widget, &up);
}

void type(QWidget& widget, const QString& text) {
  for (const QChar character : text) {
    press(widget, static_cast<Qt::Key>(character.toUpper().unicode()), character);
  }
}

void FormTest::bind(Window& window) {
  binder_ = std::make_unique<Binder>(loop());
  binder_->bind(window, std::move(form_));
  window.Show();
  settle();
}

}  // namespace gsm
