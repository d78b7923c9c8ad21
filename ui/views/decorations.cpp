#include "ui/views/decorations.h"

#include <QAbstractEventDispatcher>
#include <QEvent>
#include <QVariant>
#include <algorithm>

#include "platform/handler_stack.h"
#include "platform/serial_device.h"
#include "ui/views/screen_text.h"

namespace gsm {
namespace {

constexpr const char* kDeviceIsGone =
    "The device is gone: it was unplugged or switched off. Plug it in, then click REFRESH.";

constexpr const char* kPageIsUp = "This page is on view";

std::vector<QLabel*> labelsNamed(const QWidget& form, const QString& names) {
  std::vector<QLabel*> labels;
  for (const QString& name : names.split(' ', Qt::SkipEmptyParts)) {
    if (auto* label = form.findChild<QLabel*>(name)) labels.push_back(label);
  }
  return labels;
}

QWidget* named(const QWidget& form, const QVariant& name) {
  return name.isValid() ? form.findChild<QWidget*>(name.toString()) : nullptr;
}

// The window stays as it is when this one goes.
void keepRoom(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

void tellOfPage(QWidget& button, bool isCurrent) {
  button.setProperty("current", isCurrent);
  button.setAccessibleDescription(isCurrent ? kPageIsUp : QString());
  polishAnew(button);
}

}  // namespace

Decorations::Decorations(QWidget& form, const Platform& platform)
    : QObject(&form), platform_(platform) {
  for (QWidget* widget : form.findChildren<QWidget*>()) {
    if (QWidget* place = named(form, widget->property("insteadOf"))) addPlace(*widget, *place);
    if (QWidget* page = named(form, widget->property("opens"))) addOpener(*widget, *page);
    if (widget->property("keepsRoom").toBool()) keepRoom(*widget);
    if (const QVariant names = widget->property("whileEmpty"); names.isValid()) {
      hints_.push_back({widget, labelsNamed(form, names.toString())});
      widget->hide();
    }
    if (widget->property("tellsOfDevice").toBool()) badges_.push_back(widget);
  }
  if (hints_.empty() && badges_.empty()) return;
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
          [this] { look(); });
}

void Decorations::addPlace(QWidget& standIn, QWidget& place) {
  places_.push_back({&place, &standIn});
  place.installEventFilter(this);
  standIn.installEventFilter(this);
  keepRoom(place);
  keepRoom(standIn);
  standIn.setVisible(place.isHidden());
}

void Decorations::addOpener(QWidget& button, QWidget& page) {
  openers_.push_back({&page, &button});
  page.installEventFilter(this);
  tellOfPage(button, !page.isHidden());
}

bool Decorations::eventFilter(QObject* watched, QEvent* event) {
  const bool isShown = event->type() == QEvent::ShowToParent;
  if (isShown || event->type() == QEvent::HideToParent) {
    for (const Place& place : places_) {
      if (place.widget == watched) place.standIn->setVisible(place.widget->isHidden());
      // One that is a control's may be shown by itself.
      if (place.standIn == watched && isShown && !place.widget->isHidden()) place.standIn->hide();
    }
    for (const Opener& each : openers_) {
      if (each.page == watched) tellOfPage(*each.button, isShown);
    }
  }
  return false;
}

// Runs each time that the program is about to sleep.
void Decorations::look() {
  for (const Hint& hint : hints_) {
    const bool empty = std::all_of(hint.labels.begin(), hint.labels.end(),
                                   [](const QLabel* label) { return label->text().isEmpty(); });
    const bool shown = !hint.widget->isHidden();
    if (shown && !empty) hint.widget->hide();
    if (!shown && empty && platform_.handlers.depth() == 0) hint.widget->show();
  }
  if (platform_.serialDevice.isGone() != deviceIsGone_) {
    deviceIsGone_ = !deviceIsGone_;
    showDevice();
  }
}

void Decorations::showDevice() {
  for (QWidget* badge : badges_) {
    badge->setProperty("gone", deviceIsGone_);
    badge->setToolTip(deviceIsGone_ ? kDeviceIsGone : QString());
    polishAnew(*badge);
  }
}

}  // namespace gsm
