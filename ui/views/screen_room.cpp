#include "ui/views/screen_room.h"

#include <QApplication>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

namespace gsm {
namespace {

constexpr const char* kScroller = "decoScroller";

QSize leastOf(const QWidget& form) { return form.minimumSizeHint().expandedTo(form.minimumSize()); }

// Moves all that is on the form, hidden or not and in its order for the Tab key.
QWidget* takeContent(QWidget& form) {
  auto* content = new QWidget(&form);
  content->setObjectName("decoScrolled");
  content->setLayout(form.layout());
  content->setMinimumSize(form.minimumSize());
  return content;
}

// The whole of it, where Qt by itself shows no more than the cursor in a field.
void bringIntoSight(QScrollArea& scroller) {
  const QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr || !scroller.isAncestorOf(focus)) return;
  constexpr int kAround = 8;
  const QPoint middle = focus->mapTo(scroller.widget(), focus->rect().center());
  scroller.ensureVisible(middle.x(), middle.y(), focus->width() / 2 + kAround,
                         focus->height() / 2 + kAround);
}

// Wherever the focus goes by keys or by the panel's will. By a click it goes to what is in sight,
// and that must not move under the mouse. Pages within the window that scroll too do so first.
void followFocus(QScrollArea& scroller) {
  auto* const later = new QTimer(&scroller);
  later->setSingleShot(true);
  QObject::connect(later, &QTimer::timeout, [&scroller] { bringIntoSight(scroller); });
  QObject::connect(qApp, &QApplication::focusChanged, later, [later] {
    if (QGuiApplication::mouseButtons() == Qt::NoButton) later->start(0);
  });
}

}  // namespace

void fitInto(QWidget& form, const QSize& room) {
  const QSize least = leastOf(form);
  const bool fits = least.width() <= room.width() && least.height() <= room.height();
  if (fits || form.layout() == nullptr || form.findChild<QWidget*>(kScroller) != nullptr) return;

  const QSize usual = form.size().expandedTo(least);
  auto* scroller = new QScrollArea(&form);
  scroller->setObjectName(kScroller);
  scroller->setFrameShape(QFrame::NoFrame);
  scroller->setFocusPolicy(Qt::NoFocus);
  scroller->setWidgetResizable(true);
  scroller->setWidget(takeContent(form));
  auto* layout = new QVBoxLayout(&form);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(scroller);
  followFocus(*scroller);
  form.setMinimumSize(0, 0);
  form.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  // What scrolls one way takes a bar's room the other way.
  const int bar = scroller->verticalScrollBar()->sizeHint().width();
  form.resize((usual + QSize(bar, bar)).boundedTo(room));
}

}  // namespace gsm
