#include "tests/app/form_pages.h"

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

// Whether the two are neither one within the other nor apart.
bool collide(const QWidget& one, const QWidget& other) {
  if (one.isAncestorOf(&other) || other.isAncestorOf(&one)) return false;
  const auto place = [](const QWidget& widget) {
    return QRect(widget.mapTo(widget.window(), QPoint()), widget.size());
  };
  return place(one).intersects(place(other));
}

}  // namespace

FormPagesTest::FormPagesTest() { screen_.bind(platform().windows); }

std::string FormPagesTest::nameOf(const QWidget& widget) {
  return (widget.window()->objectName() + "." + widget.objectName()).toStdString();
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
    settle();
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
    const std::vector<QWidget*> all = usableOn(window);
    std::vector<QWidget*> left = all;
    bool isFirst = true;
    while (isFirst || !left.empty()) {
      showPageOf(window, left.empty() ? form : *left.front());
      settle();
      std::vector<QWidget*> usable;
      std::copy_if(all.begin(), all.end(), std::back_inserter(usable),
                   [](const QWidget* each) { return each->isVisible(); });
      ASSERT_TRUE(left.empty() || left.front()->isVisible()) << nameOf(*left.front());
      look(form, usable);
      std::erase_if(left, [](const QWidget* each) { return each->isVisible(); });
      isFirst = false;
    }
    form.hide();
    settle();
  }
}

}  // namespace gsm
