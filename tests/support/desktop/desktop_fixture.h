#pragma once

#include <gtest/gtest.h>

#include <QPoint>
#include <QString>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "controls/window.h"
#include "platform/qt/desktop.h"
#include "tests/support/temporary_folder.h"
#include "ui/views/binder.h"

namespace gsm {

/// Lets events of `loop` run until `condition` holds, `limit` of real time at most. Whether it came
/// to hold.
bool runUntil(EventLoop& loop, const std::function<bool()>& condition,
              std::chrono::milliseconds limit = std::chrono::seconds(10));

/// Lets all run that waits, and what it makes wait in turn.
void settle(EventLoop& loop);

/// What a user's hand does to a widget, by way of Qt's own events.
void click(QWidget& widget, const QPoint& at);
void click(QWidget& widget);
void press(QWidget& widget, Qt::Key key, const QString& text = {},
           Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void type(QWidget& widget, const QString& text);

/// A desktop of the test's own, with a folder for the program's files.
class DesktopTest : public ::testing::Test {
 protected:
  Platform& platform() { return desktop_.platform(); }
  EventLoop& loop() { return platform().loop; }
  const TemporaryFolder& folder() const { return folder_; }
  void settle() { gsm::settle(loop()); }

 private:
  TemporaryFolder folder_;
  Desktop desktop_{{.programFolder = folder_.path()}};
};

/// A window of the test's own on a form of the test's own.
class FormTest : public DesktopTest {
 protected:
  /// Puts a new widget of that kind and name on the form, before `bind`.
  template <class Widget>
  Widget& put(const char* name, QWidget* parent = nullptr) {
    auto* widget = new Widget(parent != nullptr ? parent : form_.get());
    widget->setObjectName(name);
    return *widget;
  }

  /// Binds `window` to the form and shows it.
  void bind(Window& window);

  QWidget& form() { return *formView_; }

 private:
  std::unique_ptr<QWidget> form_ = std::make_unique<QWidget>();
  QWidget* formView_ = form_.get();
  std::unique_ptr<Binder> binder_;

  void TearDown() override { binder_.reset(); }
};

}  // namespace gsm
