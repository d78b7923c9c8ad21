#include "ui/views/going_on.h"

#include <QApplication>
#include <QVariant>

#include "ui/views/screen_text.h"

namespace gsm {
namespace {

// Handlers nest, so one widget may have begun several things.
void count(QWidget& widget, int more) {
  const int begun = widget.property(GoingOn::kProperty).toInt() + more;
  widget.setProperty(GoingOn::kProperty, begun > 0 ? QVariant(begun) : QVariant());
  if (begun == 0 || begun == more) polishAnew(widget);
}

}  // namespace

GoingOn::GoingOn(QWidget& begun) : begun_(&begun) {
  QApplication::setOverrideCursor(Qt::BusyCursor);
  count(begun, 1);
}

GoingOn::~GoingOn() {
  QApplication::restoreOverrideCursor();
  if (begun_) count(*begun_, -1);
}

WaitingForUser::WaitingForUser() : wasBusy_(QApplication::overrideCursor() != nullptr) {
  if (wasBusy_) QApplication::setOverrideCursor(Qt::ArrowCursor);
}

WaitingForUser::~WaitingForUser() {
  if (wasBusy_) QApplication::restoreOverrideCursor();
}

Closing::Closing(QWidget& form) : goingOn_(form), veil_(new QWidget(&form)) {
  veil_->setObjectName("decoVeil");
  veil_->setAttribute(Qt::WA_StyledBackground);
  // What the user does goes on to what lies below: only the panel says what is in reach.
  veil_->setAttribute(Qt::WA_TransparentForMouseEvents);
  veil_->resize(form.size());
  veil_->show();
}

Closing::~Closing() {
  if (veil_) veil_->deleteLater();
}

}  // namespace gsm
