#pragma once

#include <QObject>
#include <QPoint>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "controls/window.h"
#include "ui/views/control_view.h"
#include "ui/views/form_order.h"
#include "ui/views/going_on.h"
#include "ui/views/user_actions.h"

namespace gsm {

/// Shows a window and those of its controls for which its form has a widget. A control without one
/// is a place for data: it works unseen.
///
/// The form is made when it is first wanted: most windows never come up in most runs.
class WindowView : public QObject, public View {
 public:
  /// Makes the window's widget with all that is on it.
  using MakeForm = std::function<std::unique_ptr<QWidget>()>;

  /// All of them must outlive the view.
  WindowView(Window& window, MakeForm makeForm, EventLoop& loop, FormOrder& order,
             BusyPointer& pointer);
  ~WindowView() override;
  WindowView(const WindowView&) = delete;
  WindowView& operator=(const WindowView&) = delete;

  /// The form, made now if it has not been wanted before.
  QWidget& form();

  void changed(PropertyId property) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makeForm();
  void bindControls();
  void bindKeys();
  ControlView* viewOf(const Control& control) const;
  bool pressFor(int key);

  void show(PropertyId property);
  void showAll();
  void showCaption();
  void showVisible();
  void showState();
  void showTopMost();
  void comeUp();
  void bringToFront(bool isElsewhere);
  void goAway();
  void place();
  void centreOver(const QRect& ground);
  void centreIfAsked();
  void takeState();

  Window& window_;
  const MakeForm makeForm_;
  FormOrder& order_;
  BusyPointer& pointer_;
  const UserActions actions_;
  std::unique_ptr<QWidget> form_;
  std::vector<std::unique_ptr<ControlView>> controls_;
  std::optional<QPoint> lastPlace_;  // where the user has left it
};

/// The name of the widget that shows `control`: its own, with "_" and the index in an array.
QString widgetName(const Control& control);

}  // namespace gsm
