#include "ui/views/focus_on_view.h"

#include <QFocusEvent>
#include <QScrollArea>

namespace gsm {
namespace {

// The whole of it, and a little around. Qt's own way asks the widget for a part to show, and of a
// box that takes typing that is its cursor alone.
void bringOnView(QScrollArea& area, const QWidget& widget) {
  constexpr int kAround = 8;
  const QRect place(widget.mapTo(area.widget(), QPoint()), widget.size());
  area.ensureVisible(place.center().x(), place.center().y(), place.width() / 2 + kAround,
                     place.height() / 2 + kAround);
}

}  // namespace

FocusOnView::FocusOnView(QWidget& form) : QObject(&form) {
  for (QWidget* widget : form.findChildren<QWidget*>()) {
    if (widget->focusPolicy() != Qt::NoFocus) widget->installEventFilter(this);
  }
}

// Not for the mouse, which must find below it what it was pressed on; nor where the user has
// scrolled away and comes back to the window.
bool FocusOnView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::FocusIn) return false;
  const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
  const bool isMove = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                      reason == Qt::ShortcutFocusReason || reason == Qt::OtherFocusReason;
  const auto* widget = qobject_cast<const QWidget*>(watched);
  if (!isMove || widget == nullptr) return false;
  for (QWidget* part = widget->parentWidget(); part != nullptr; part = part->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(part)) bringOnView(*area, *widget);
  }
  return false;
}

}  // namespace gsm
