#include "tests/app/form_pages.h"

#include <QApplication>
#include <QPainter>
#include <QVariant>
#include <algorithm>

#include "controls/controls.h"
#include "ui/forms.h"
#include "ui/views/window_view.h"

namespace gsm {
namespace {

bool isClickable(const QWidget& widget) {
  return widget.property("role") == "link" || widget.property("role") == "key";
}

// Boxes that show what others fill in, and are never typed in.
bool isForReading(const QWidget& widget) {
  return widget.property("role") == "cell" || widget.property("role") == "dial";
}

bool isUsable(const Control& control, const QWidget& widget) {
  if (dynamic_cast<const Label*>(&control) || dynamic_cast<const Picture*>(&control)) {
    return isClickable(widget);
  }
  const bool isDead = dynamic_cast<const Frame*>(&control) || dynamic_cast<const Shape*>(&control);
  return !isDead && !isForReading(widget);
}

QRect placeOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

// Whether the two are neither one within the other nor apart.
bool collide(const QWidget& one, const QWidget& other) {
  if (one.isAncestorOf(&other) || other.isAncestorOf(&one)) return false;
  return placeOf(one).intersects(placeOf(other));
}

}  // namespace

FormPagesTest::FormPagesTest() {
  QApplication::setCursorFlashTime(0);  // one that comes and goes would make pictures differ
  screen_.bind(platform().windows);
}

std::string FormPagesTest::nameOf(const QWidget& widget) {
  return (widget.window()->objectName() + "." + widget.objectName()).toStdString();
}

// The layouts of a form lie some within others, and each asks the one around it.
void FormPagesTest::layOut() {
  constexpr int kDepth = 16;
  for (int level = 0; level < kDepth; ++level) {
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  }
}

QImage FormPagesTest::pictureOf(QWidget& form, const QRect& place, int scale) {
  QImage picture(place.size() * scale, QImage::Format_RGB32);
  picture.setDevicePixelRatio(scale);
  QPainter painter(&picture);
  form.render(&painter, QPoint(), QRegion(place));
  return picture;
}

// Many let through what lies below them.
QImage FormPagesTest::pictureOf(const QWidget& widget, int scale) {
  return pictureOf(*widget.window(), placeOf(widget), scale);
}

std::vector<QWidget*> FormPagesTest::usableOn(const Window& window) const {
  std::vector<QWidget*> found;
  for (const Control* control : window.controls()) {
    QWidget* widget = control->isUnseen() ? nullptr : screen_.widget(*control);
    if (widget != nullptr && isUsable(*control, *widget)) found.push_back(widget);
  }
  return found;
}

std::vector<QWidget*> FormPagesTest::framesOn(const Window& window) const {
  std::vector<QWidget*> found;
  for (const Control* control : window.controls()) {
    if (dynamic_cast<const Frame*>(control)) found.push_back(screen_.widget(*control));
  }
  return found;
}

void FormPagesTest::showPageOf(const Window& window, const QWidget& widget) {
  for (const Control* control : window.controls()) {
    QWidget* each = control->isUnseen() ? nullptr : screen_.widget(*control);
    if (each == nullptr) continue;
    each->setEnabled(!isForReading(*each));
    each->show();
  }
  for (QWidget* part = widget.parentWidget(); part != nullptr; part = part->parentWidget()) {
    const QVariant place = part->property("insteadOf");
    if (!place.isValid()) continue;
    part->window()->findChild<QWidget*>(place.toString())->hide();
    part->show();
  }
  std::vector<QWidget*> frames = framesOn(window);
  std::stable_partition(frames.begin(), frames.end(),
                        [&](const QWidget* frame) { return frame->isAncestorOf(&widget); });
  for (std::size_t kept = 0; kept < frames.size(); ++kept) {
    layOut();
    for (std::size_t next = kept + 1; next < frames.size(); ++next) {
      const bool both = frames[kept]->isVisible() && frames[next]->isVisible();
      if (both && collide(*frames[kept], *frames[next])) frames[next]->hide();
    }
  }
}

void FormPagesTest::forEachPage(
    const std::function<void(QWidget&, const std::vector<QWidget*>&)>& look) {
  for (const std::string& name : ui::formNames()) {
    const Window& window = *windowNamed(platform(), name);
    QWidget& form = *screen_.widget(window);
    form.show();
    if (!window.design().Notice) form.activateWindow();
    settle();
    const std::vector<QWidget*> all = usableOn(window);
    std::vector<QWidget*> left = all;
    bool isFirst = true;
    while (isFirst || !left.empty()) {
      showPageOf(window, left.empty() ? form : *left.front());
      layOut();
      std::vector<QWidget*> usable;
      std::copy_if(all.begin(), all.end(), std::back_inserter(usable),
                   [](const QWidget* each) { return each->isVisible(); });
      ASSERT_TRUE(left.empty() || left.front()->isVisible()) << nameOf(*left.front());
      look(form, usable);
      std::erase_if(left, [](const QWidget* each) { return each->isVisible(); });
      isFirst = false;
    }
    form.hide();
  }
}

}  // namespace gsm
