#include "ui/views/label_views.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <cstdlib>

#include "platform/qt/text_codec.h"
#include "ui/views/screen_text.h"

namespace gsm {
namespace {

// Whether `event` ends a click on a widget that knows no clicks of its own.
bool isClick(const QWidget& widget, const QEvent& event) {
  if (event.type() == QEvent::MouseButtonRelease) {
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    return mouse.button() == Qt::LeftButton && widget.rect().contains(mouse.position().toPoint());
  }
  if (event.type() == QEvent::KeyPress) {
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
  }
  return false;
}

// The key of the dial pad next to `key` in the direction of an arrow key; null at the edge.
QWidget* nextKey(const QWidget& key, int arrow) {
  const auto centre = [](const QWidget& each) {
    return each.mapTo(each.window(), each.rect().center());
  };
  QWidget* next = nullptr;
  int least = 0;
  for (auto* each : key.window()->findChildren<QWidget*>()) {
    const bool isKey = each->property("role") == "key" && (each->focusPolicy() & Qt::TabFocus) != 0;
    if (!isKey || each == &key || !each->isVisible() || !each->isEnabled()) continue;
    const QPoint way = centre(*each) - centre(key);
    const bool across = arrow == Qt::Key_Left || arrow == Qt::Key_Right;
    const int sign = arrow == Qt::Key_Left || arrow == Qt::Key_Up ? -1 : 1;
    const int along = sign * (across ? way.x() : way.y());
    const int aside = std::abs(across ? way.y() : way.x());
    if (along <= aside) continue;
    if (next == nullptr || along + aside < least) {
      next = each;
      least = along + aside;
    }
  }
  return next;
}

// Clicks by `press`; arrow keys move the focus within the pad. Whether the event was either.
template <class Press>
bool actOnPad(const QWidget& widget, const QEvent& event, const Press& press) {
  if (isClick(widget, event)) {
    press();
    return true;
  }
  if (event.type() != QEvent::KeyPress || widget.property("role") != "key") return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  if (key != Qt::Key_Left && key != Qt::Key_Right && key != Qt::Key_Up && key != Qt::Key_Down) {
    return false;
  }
  if (QWidget* next = nextKey(widget, key)) next->setFocus(Qt::TabFocusReason);
  return true;
}

}  // namespace

LabelView::LabelView(Label& control, QLabel& widget, const UserActions& actions)
    : ViewOf(control, widget, actions), formStyle_(widget.styleSheet()) {
  widget.setTextFormat(Qt::PlainText);
  widget.installEventFilter(this);
  if (widget.wordWrap()) return;
  // A label keeps the room that its design needs, which is the form's own text. What the modem
  // makes of it may be as long as it likes: that is cut off at the edge, and doesn't push the
  // window wider than the screen.
  widget.ensurePolished();
  widget.setMinimumWidth(std::max({widget.minimumWidth(), widget.minimumSizeHint().width(), 1}));
  showCaption();
}

void LabelView::show(PropertyId property) {
  if (property == PropertyId::Caption) showCaption();
  if (property == PropertyId::ForeColor) {
    showColour(widget_, formStyle_, "color", control_.ForeColor.peek(), kBlack);
  }
}

void LabelView::showCaption() {
  widget_.setText(withoutLineEnd(toQt(control_.Caption.peek())));
  // The style sheet looks at the text of a badge, and looks only when asked to.
  if (widget_.property("role") == "badge") polishAnew(widget_);
}

bool LabelView::eventFilter(QObject*, QEvent* event) {
  return actOnPad(widget_, *event, [this] { press(); });
}

void LabelView::press() {
  post([this] { return control_.userClick(); });
}

PictureView::PictureView(Picture& control, QWidget& widget, const UserActions& actions)
    : ViewOf(control, widget, actions) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
  widget.installEventFilter(this);
}

bool PictureView::eventFilter(QObject*, QEvent* event) {
  return actOnPad(widget_, *event, [this] { press(); });
}

void PictureView::press() {
  post([this] { return control_.userClick(); });
}

void FrameView::show(PropertyId property) {
  auto* box = qobject_cast<QGroupBox*>(&widget_);
  if (box != nullptr && property == PropertyId::Caption) {
    const QString caption = toQt(control_.Caption.peek());
    box->setTitle(withoutMnemonics(caption));
    box->setAccessibleName(caption);  // Qt gives out that of the box around it
  }
}

}  // namespace gsm
