#pragma once

#include <QImage>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "app/windows.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {

/// The forms of all windows with nothing out of reach, a page at a time: frames that have one place
/// take turns in it. No handler runs.
class FormPagesTest : public DesktopTest {
 protected:
  FormPagesTest();

  /// Shows each page of each form, with the keyboard in it, and calls `look` with the form and the
  /// usable widgets on it. Each usable widget is on one page of its form at least.
  void forEachPage(
      const std::function<void(QWidget& form, const std::vector<QWidget*>& usable)>& look);

  /// Lays out what asks for it.
  static void layOut();

  /// `place` of a form, or one of its widgets, as it looks there, so many times as large as life.
  static QImage pictureOf(QWidget& form, const QRect& place, int scale = 1);
  static QImage pictureOf(const QWidget& widget, int scale = 1);

  /// A name for messages, as "Form3.List1".
  static std::string nameOf(const QWidget& widget);

  Windows windows_{platform()};
  Panel& panel_ = windows_.panel;
  Binder screen_{loop()};

 private:
  std::vector<QWidget*> usableOn(const Window& window) const;
  std::vector<QWidget*> framesOn(const Window& window) const;
  void showPageOf(const Window& window, const QWidget& widget);
};

}  // namespace gsm
