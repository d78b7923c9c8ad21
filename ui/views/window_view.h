#pragma once

#include <QObject>
#include <QWidget>
#include <memory>
#include <vector>

#include "controls/window.h"
#include "ui/views/control_view.h"
#include "ui/views/user_actions.h"

namespace gsm {

/// Shows a window and those of its controls for which its form has a widget. A control without one
/// is a place for data: it works unseen.
class WindowView : public QObject, public View {
 public:
  /// `form` is the window's widget with all that is on it. `window` and `loop` must outlive the
  /// view.
  WindowView(Window& window, std::unique_ptr<QWidget> form, EventLoop& loop);
  ~WindowView() override;
  WindowView(const WindowView&) = delete;
  WindowView& operator=(const WindowView&) = delete;

  QWidget& widget() const { return *form_; }

  void changed(PropertyId property) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void bindControls();
  void show(PropertyId property);
  void showAll();
  void showVisible();
  void showState();
  void showTopMost();
  void centreIfAsked();
  bool takeState();

  Window& window_;
  const std::unique_ptr<QWidget> form_;
  const UserActions actions_;
  std::vector<std::unique_ptr<ControlView>> controls_;
};

/// The name of the widget that shows `control`: its own, in an array with "_" and the index behind.
QString widgetName(const Control& control);

}  // namespace gsm
