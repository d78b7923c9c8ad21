#include "ui/views/form_order.h"

#include <QEvent>
#include <QGuiApplication>
#include <algorithm>

namespace gsm {
namespace {

// A notice is over before anybody could work with it.
bool isOnView(const QWidget& form) {
  return form.isVisible() && !form.isMinimized() &&
         !form.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus);
}

}  // namespace

void FormOrder::add(QWidget& form) {
  forms_.insert(forms_.begin(), &form);
  form.installEventFilter(this);
  connect(&form, &QObject::destroyed, this, [this, &form] { std::erase(forms_, &form); });
}

QWidget* FormOrder::lastOnView(const QWidget& form) const {
  const auto found = std::find_if(forms_.rbegin(), forms_.rend(), [&](const QWidget* each) {
    return each != &form && isOnView(*each);
  });
  return found == forms_.rend() ? nullptr : *found;
}

bool FormOrder::isElsewhere(const QWidget& form) const {
  return QGuiApplication::applicationState() != Qt::ApplicationActive &&
         std::any_of(forms_.begin(), forms_.end(),
                     [&](const QWidget* each) { return each != &form && each->isVisible(); });
}

bool FormOrder::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowActivate) {
    const auto found = std::find(forms_.begin(), forms_.end(), watched);
    if (found != forms_.end()) std::rotate(found, found + 1, forms_.end());
  }
  return false;
}

}  // namespace gsm
