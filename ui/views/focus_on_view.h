#pragma once

#include <QObject>
#include <QWidget>

namespace gsm {

/// Brings what gets the focus on view, where pages of a form scroll or the whole of it: Qt does so
/// only for the Tab key within what scrolls, and not when it comes in from beside it, nor for the
/// arrows or when the panel gives the focus.
class FocusOnView : public QObject {
 public:
  /// `form` owns it.
  explicit FocusOnView(QWidget& form);

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace gsm
