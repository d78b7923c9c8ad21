#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <memory>
#include <utility>

#include "controls/control.h"
#include "controls/view.h"
#include "ui/views/user_actions.h"

namespace gsm {

/// Shows a control on a widget, and hands on what the user does there. The control is the
/// authority: a widget never changes a property but by an action of its user.
class ControlView : public QObject, public View {
 public:
  ~ControlView() override { base_.attach(nullptr); }
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  void changed(PropertyId property) override;

  /// Shows every property as it stands.
  void showAll();

  /// Does what the user's click does.
  virtual void press() {}

  const Control& control() const { return base_; }

 protected:
  /// All of them must outlive the view.
  ControlView(Control& control, QWidget& widget, const UserActions& actions);

  /// Shows a property that not every control has.
  virtual void show(PropertyId property) = 0;

  const UserActions& actions() const { return actions_; }

  /// Queues what the user did, as `UserActions::post`; while it goes on, the widget shows that.
  void post(std::function<bool()> action) const { actions_.post(baseWidget_, std::move(action)); }

 private:
  Control& base_;
  QWidget& baseWidget_;
  const UserActions& actions_;
};

/// A view of one kind of control on one kind of widget.
template <class Kind, class Widget>
class ViewOf : public ControlView {
 protected:
  ViewOf(Kind& control, Widget& widget, const UserActions& actions)
      : ControlView(control, widget, actions), control_(control), widget_(widget) {}

  Kind& control_;
  Widget& widget_;
};

/// A view of `control` on `widget`, which shows the control already; null when a widget of that
/// kind can't show it.
std::unique_ptr<ControlView> makeControlView(Control& control, QWidget& widget,
                                             const UserActions& actions);

}  // namespace gsm
