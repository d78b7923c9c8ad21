#include "ui/views/window_view.h"

#include <QEvent>
#include <QScreen>
#include <QWindow>
#include <QtDebug>
#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "platform/qt/text_codec.h"
#include "ui/views/picture_painter.h"

namespace gsm {
namespace {

// Windows that come up by themselves while the user types somewhere else.
// Form5 among them: a key meant for another window must not answer a call.
constexpr std::string_view kQuietWindows[] = {"Form5", "Form7", "Form11", "Form20"};

bool isQuiet(const Window& window) {
  return std::find(std::begin(kQuietWindows), std::end(kQuietWindows), window.name()) !=
         std::end(kQuietWindows);
}

Qt::WindowStates qtState(int state) {
  switch (state) {
    case WindowState::minimised: return Qt::WindowMinimized;
    case WindowState::maximised: return Qt::WindowMaximized;
    default: return Qt::WindowNoState;
  }
}

int panelState(Qt::WindowStates states) {
  if (states.testFlag(Qt::WindowMinimized)) return WindowState::minimised;
  return states.testFlag(Qt::WindowMaximized) ? WindowState::maximised : WindowState::normal;
}

}  // namespace

QString widgetName(const Control& control) {
  QString name = QString::fromStdString(control.name());
  if (control.index() != Control::kNoIndex) name += "_" + QString::number(control.index());
  return name;
}

WindowView::WindowView(Window& window, std::unique_ptr<QWidget> form, EventLoop& loop)
    : window_(window), form_(std::move(form)), actions_(loop, [this] { showAll(); }) {
  form_->setAttribute(Qt::WA_ShowWithoutActivating, isQuiet(window));
  form_->installEventFilter(this);
  bindControls();
  window.attach(this);
  for (const PropertyBase* property : window.properties()) show(property->id());
}

WindowView::~WindowView() { window_.attach(nullptr); }

void WindowView::bindControls() {
  for (QWidget* widget : form_->findChildren<QWidget*>()) {
    if (widget->property(PicturePainter::kProperty).isValid()) new PicturePainter(*widget);
  }
  for (Control* control : window_.controls()) {
    auto* widget = form_->findChild<QWidget*>(widgetName(*control));
    if (widget == nullptr) continue;
    if (auto view = makeControlView(*control, *widget, actions_)) {
      controls_.push_back(std::move(view));
    } else {
      qWarning() << "no view of" << control->fullName().c_str() << "on a"
                 << widget->metaObject()->className();
    }
  }
}

void WindowView::showAll() {
  showState();
  for (const auto& control : controls_) control->showAll();
}

void WindowView::changed(PropertyId property) { show(property); }

void WindowView::show(PropertyId property) {
  switch (property) {
    case PropertyId::Caption:
      // Qt keeps a place for a mark in "[*]"; twice, it stands for itself.
      form_->setWindowTitle(toQt(window_.Caption.peek()).replace("[*]", "[*][*]"));
      break;
    case PropertyId::Visible: showVisible(); break;
    case PropertyId::WindowState: showState(); break;
    case PropertyId::TopMost: showTopMost(); break;
    case PropertyId::Centred: centreIfAsked(); break;
    case PropertyId::MousePointer:
      if (window_.MousePointer.peek() == MousePointer::hourglass) {
        form_->setCursor(Qt::WaitCursor);
      } else {
        form_->unsetCursor();
      }
      break;
    default: break;
  }
}

void WindowView::showVisible() {
  if (!window_.Visible.peek()) {
    form_->hide();
    return;
  }
  if (form_->isHidden()) centreIfAsked();
  form_->show();
  form_->raise();
  if (!isQuiet(window_) && !form_->isMinimized()) form_->activateWindow();
}

void WindowView::centreIfAsked() {
  if (!window_.Centred.peek()) return;
  form_->ensurePolished();
  QRect place = form_->frameGeometry();
  place.moveCenter(form_->screen()->availableGeometry().center());
  form_->move(place.topLeft());
}

void WindowView::showState() {
  const Qt::WindowStates others = form_->windowState() & Qt::WindowActive;
  form_->setWindowState(others | qtState(window_.WindowState.peek()));
}

// On a window that is up, by way of the window below the widget: Qt takes the widget itself off the
// screen for a new flag.
void WindowView::showTopMost() {
  const bool onTop = window_.TopMost.peek();
  if (QWindow* native = form_->windowHandle()) {
    native->setFlag(Qt::WindowStaysOnTopHint, onTop);
    form_->overrideWindowFlags(native->flags());
  } else {
    form_->setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
  }
}

// The desktop has changed the state by the time it is told, closing waits for the panel's word.
bool WindowView::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Close) {
    event->ignore();
    actions_.post([this] { return window_.userClose(); });
    return true;
  }
  if (event->type() == QEvent::WindowStateChange) {
    actions_.post([this] { return takeState(); });
  }
  return false;
}

// The state as it is by now: it may have changed more than once since the desktop told of it.
bool WindowView::takeState() {
  const int state = panelState(form_->windowState());
  return state == window_.WindowState.peek() || window_.userState(state);
}

}  // namespace gsm
