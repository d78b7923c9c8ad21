#include "ui/views/range_views.h"

#include <QSignalBlocker>

#include "platform/qt/text_codec.h"
#include "ui/views/screen_text.h"

namespace gsm {

SliderView::SliderView(Slider& control, QSlider& widget, const UserActions& actions)
    : ViewOf(control, widget, actions) {
  widget.setSingleStep(control.smallChange());
  widget.setPageStep(control.largeChange());
  for (auto* label : widget.window()->findChildren<QLabel*>()) {
    if (label->property("valueOf") == widget.objectName()) valueLabels_.push_back(label);
  }
  widget.installEventFilter(this);
  connect(&widget, &QSlider::valueChanged, this, [this] {
    tellValue();
    post([this] { return take(); });
  });
}

// Takes over where the slider stands by now: while it is dragged, several moves may have been
// queued, and the first to run takes them all.
bool SliderView::take() {
  const int value = widget_.value();
  return value == control_.Value.peek() || control_.userMove(value);
}

void SliderView::show(PropertyId) {
  const QSignalBlocker quiet(widget_);
  widget_.setRange(control_.Min.peek(), control_.Max.peek());
  widget_.setValue(control_.Value.peek());
  tellValue();
}

void SliderView::tellValue() {
  for (QLabel* label : valueLabels_) label->setNum(widget_.value());
}

// Qt's own wheel moves a slider by several steps at a notch.
bool SliderView::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::Wheel) return false;
  if (widget_.isEnabled()) turnWheel(static_cast<const QWheelEvent&>(*event));
  event->accept();
  return true;
}

// Away from the user and to the right is more. A fine wheel turns by parts of a notch, which add
// up.
void SliderView::turnWheel(const QWheelEvent& event) {
  const QPoint delta = event.angleDelta();
  const int turn = delta.y() != 0 ? delta.y() : -delta.x();
  turned_ += event.inverted() ? -turn : turn;
  const int notches = turned_ / QWheelEvent::DefaultDeltasPerStep;
  turned_ %= QWheelEvent::DefaultDeltasPerStep;
  widget_.setValue(widget_.value() + notches * widget_.singleStep());
}

TabView::TabView(TabStrip& control, QTabBar& widget, const UserActions& actions)
    : ViewOf(control, widget, actions) {
  while (widget.count() > 0) widget.removeTab(0);
  for (const std::string& tab : control.tabs()) widget.addTab(withoutMnemonics(toQt(tab)));
  widget.updateGeometry();  // Qt leaves that to a strip that is on view, and a frame makes no room
  connect(&widget, &QTabBar::currentChanged, this, [this](int index) { choose(index); });
  // Comes before the tab is chosen, so a tab that is the chosen one now is clicked once more.
  connect(&widget, &QTabBar::tabBarClicked, this, [this](int index) {
    if (index >= 0 && index == widget_.currentIndex()) choose(index);
  });
}

void TabView::choose(int index) {
  post([this, index] { return control_.userTab(index + 1); });
}

void TabView::show(PropertyId) {
  const QSignalBlocker quiet(widget_);
  widget_.setCurrentIndex(control_.Value.peek() - 1);
}

}  // namespace gsm
