#pragma once

#include <QObject>
#include <QWidget>

namespace gsm {

/// Brings what gets the focus by a key on view, on a form whose pages scroll: Qt does so only for
/// the Tab key within the pages, and not when it comes in from beside them, nor for the arrows.
class FocusOnView : public QObject {
 public:
  /// `form` owns it.
  explicit FocusOnView(QWidget& form);

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace gsm
