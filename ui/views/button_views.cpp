#include "ui/views/button_views.h"

#include <QSignalBlocker>
#include <algorithm>

#include "platform/qt/text_codec.h"
#include "ui/views/screen_text.h"

namespace gsm {

ButtonView::ButtonView(CommandButton& control, QPushButton& widget, const UserActions& actions)
    : ViewOf(control, widget, actions), formStyle_(widget.styleSheet()) {
  widget.setAutoDefault(true);  // Enter presses the button that has the focus, as the space bar
  connect(&widget, &QPushButton::clicked, this,
          [this] { post([this] { return control_.userClick(); }); });
}

void ButtonView::show(PropertyId property) {
  if (property == PropertyId::Caption) widget_.setText(toQt(control_.Caption.peek()));
  if (property == PropertyId::BackColor) {
    showColour(widget_, formStyle_, "background-color", control_.BackColor.peek(), kButtonGrey);
  }
}

OptionView::OptionView(OptionButton& control, QRadioButton& widget, const UserActions& actions)
    : ViewOf(control, widget, actions) {
  connect(&widget, &QRadioButton::clicked, this,
          [this] { post([this] { return control_.userClick(); }); });
}

void OptionView::show(PropertyId property) {
  if (property == PropertyId::Caption) widget_.setText(toQt(control_.Caption.peek()));
  if (property == PropertyId::Value) showValue();
}

// A group of Qt's never lets its last set button go; the controls' groups may have none set.
void OptionView::showValue() {
  const QSignalBlocker quiet(widget_);
  widget_.setAutoExclusive(false);
  widget_.setChecked(control_.Value.peek());
  widget_.setAutoExclusive(true);
  setTabStops();
}

// The Tab key enters a group at the option that is set, and at any of one that has none set.
void OptionView::setTabStops() {
  const auto group =
      widget_.parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
  const bool anySet = std::any_of(group.begin(), group.end(), [](const QRadioButton* each) {
    return each->isChecked() && each->isEnabled();
  });
  for (QRadioButton* each : group) {
    each->setFocusPolicy(!anySet || each->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

}  // namespace gsm
