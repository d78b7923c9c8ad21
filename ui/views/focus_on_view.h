#pragma once

#include <QObject>
#include <QWidget>

namespace gsm {

/// Brings what gets the focus by a key on view, on a form whose pages scroll: Qt does so only while
/// the keys move about within the pages, and not when they come in from beside them.
class FocusOnView : public QObject {
 public:
  /// `form` owns it.
  explicit FocusOnView(QWidget& form);

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace gsm
