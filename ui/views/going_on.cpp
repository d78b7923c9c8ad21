#include "ui/views/going_on.h"

#include <QApplication>
#include <QVariant>
#include <algorithm>

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

BusyPointer::~BusyPointer() {
  if (shown_) QApplication::restoreOverrideCursor();
}

void BusyPointer::begin() {
  ++going_;
  show();
}

void BusyPointer::end() {
  --going_;
  for (Question& each : questions_) each.going = std::min(each.going, going_);
  show();
}

void BusyPointer::ask(const void* question) {
  questions_.push_back({question, going_});
  show();
}

void BusyPointer::answered(const void* question) {
  std::erase_if(questions_, [=](const Question& each) { return each.question == question; });
  show();
}

void BusyPointer::show() {
  int beneath = 0;
  for (const Question& each : questions_) beneath = std::max(beneath, each.going);
  const bool isBusy = going_ > beneath;
  if (isBusy == shown_) return;
  shown_ = isBusy;
  if (isBusy) {
    QApplication::setOverrideCursor(Qt::BusyCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

GoingOn::GoingOn(BusyPointer& pointer, QWidget& begun) : pointer_(pointer), begun_(&begun) {
  pointer_.begin();
  count(begun, 1);
}

GoingOn::~GoingOn() {
  pointer_.end();
  if (begun_) count(*begun_, -1);
}

Veil::Veil(QWidget& form) : veil_(new QWidget(&form)) {
  veil_->setObjectName("decoVeil");
  veil_->setAttribute(Qt::WA_StyledBackground);
  // What the user does goes on to what lies below: only the panel says what is in reach.
  veil_->setAttribute(Qt::WA_TransparentForMouseEvents);
  veil_->resize(form.size());
  veil_->show();
}

Veil::~Veil() {
  if (veil_) veil_->deleteLater();
}

}  // namespace gsm
