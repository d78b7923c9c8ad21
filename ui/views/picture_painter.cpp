#include "ui/views/picture_painter.h"

#include <QEvent>
#include <QPainter>
#include <QVariant>

namespace gsm {

PicturePainter::PicturePainter(QWidget& widget) : QObject(&widget), widget_(widget) {
  widget.installEventFilter(this);
}

bool PicturePainter::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::Paint) return false;
  if (!drawing_) {
    drawing_.emplace(widget_.property(kProperty).toString());
    drawing_->setAspectRatioMode(Qt::KeepAspectRatio);
  }
  QPainter painter(&widget_);
  drawing_->render(&painter, widget_.rect());
  return true;
}

}  // namespace gsm
