#include "ui/views/focus_on_view.h"

#include <QFocusEvent>
#include <QScrollArea>

namespace gsm {

FocusOnView::FocusOnView(QWidget& form) : QObject(&form) {
  for (const QScrollArea* area : form.findChildren<QScrollArea*>()) {
    for (QWidget* widget : area->widget()->findChildren<QWidget*>()) {
      if (widget->focusPolicy() != Qt::NoFocus) widget->installEventFilter(this);
    }
  }
}

// Not for the mouse, which must find below it what it was pressed on.
bool FocusOnView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::FocusIn) return false;
  const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
  const bool isByKey = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                       reason == Qt::ShortcutFocusReason;
  auto* widget = qobject_cast<QWidget*>(watched);
  if (!isByKey || widget == nullptr) return false;
  for (QWidget* part = widget->parentWidget(); part != nullptr; part = part->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(part)) area->ensureWidgetVisible(widget);
  }
  return false;
}

}  // namespace gsm
