#pragma once

#include <QPushButton>
#include <QRadioButton>

#include "controls/option_button.h"
#include "controls/simple_controls.h"
#include "ui/views/control_view.h"

namespace gsm {

class ButtonView : public ViewOf<CommandButton, QPushButton> {
 public:
  ButtonView(CommandButton& control, QPushButton& widget, const UserActions& actions);

  void press() override { widget_.click(); }

 protected:
  void show(PropertyId property) override;

 private:
  const QString formStyle_;
};

/// An option button. Which one of a group is set is the controls' affair; the widgets' own grouping
/// only serves the arrow keys.
class OptionView : public ViewOf<OptionButton, QRadioButton> {
 public:
  OptionView(OptionButton& control, QRadioButton& widget, const UserActions& actions);

 protected:
  void show(PropertyId property) override;

 private:
  void showValue();
  void setTabStops();
};

}  // namespace gsm
