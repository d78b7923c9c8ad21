#include "ui/views/screen_room.h"

#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
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
  form.setMinimumSize(0, 0);
  form.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  // What scrolls one way takes a bar's room the other way.
  const int bar = scroller->verticalScrollBar()->sizeHint().width();
  form.resize((usual + QSize(bar, bar)).boundedTo(room));
}

}  // namespace gsm
