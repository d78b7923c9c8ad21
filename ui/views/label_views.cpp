#include "ui/views/label_views.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <algorithm>

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

}  // namespace

LabelView::LabelView(Label& control, QLabel& widget, const UserActions& actions)
    : ViewOf(control, widget, actions), formStyle_(widget.styleSheet()) {
  widget.setTextFormat(Qt::PlainText);
  widget.installEventFilter(this);
  if (widget.wordWrap()) return;
  // A label keeps the room that its design needs. What the modem makes of it may be as long as it
  // likes: that is cut off at the edge, and doesn't push the window wider than the screen.
  showCaption();
  widget.ensurePolished();
  widget.setMinimumWidth(std::max({widget.minimumWidth(), widget.minimumSizeHint().width(), 1}));
}

void LabelView::show(PropertyId property) {
  if (property == PropertyId::Caption) showCaption();
  if (property == PropertyId::ForeColor) {
    showColour(widget_, formStyle_, "color", control_.ForeColor.peek(), kBlack);
  }
}

void LabelView::showCaption() {
  widget_.setText(toQt(control_.Caption.peek()));
  // The style sheet may look at the text, and looks only when asked to.
  widget_.style()->unpolish(&widget_);
  widget_.style()->polish(&widget_);
}

bool LabelView::eventFilter(QObject*, QEvent* event) {
  if (!isClick(widget_, *event)) return false;
  actions().post([this] { return control_.userClick(); });
  return true;
}

PictureView::PictureView(Picture& control, QWidget& widget, const UserActions& actions)
    : ViewOf(control, widget, actions) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
  widget.installEventFilter(this);
}

bool PictureView::eventFilter(QObject*, QEvent* event) {
  if (!isClick(widget_, *event)) return false;
  actions().post([this] { return control_.userClick(); });
  return true;
}

void FrameView::show(PropertyId property) {
  auto* box = qobject_cast<QGroupBox*>(&widget_);
  if (box != nullptr && property == PropertyId::Caption) {
    box->setTitle(withoutMnemonics(toQt(control_.Caption.peek())));
  }
}

}  // namespace gsm
