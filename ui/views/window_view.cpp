#include "ui/views/window_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QWindow>
#include <QtDebug>
#include <algorithm>
#include <utility>

#include "controls/simple_controls.h"
#include "platform/qt/text_codec.h"
#include "ui/views/decorations.h"
#include "ui/views/focus_on_view.h"
#include "ui/views/letters.h"
#include "ui/views/look.h"
#include "ui/views/picture_painter.h"
#include "ui/views/quiet_windows.h"
#include "ui/views/screen_room.h"

namespace gsm {
namespace {

constexpr const char* kAsks = "asks";

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

// What a desktop draws around a window, by one that is up already.
QSize frameOf(const QWidget* up) {
  constexpr QSize kUsual{8, 40};
  return up == nullptr ? kUsual : up->frameGeometry().size() - up->size();
}

QRect within(const QRect& place, const QRect& ground) {
  const int left = std::max(ground.left(), std::min(place.left(), ground.right() - place.width()));
  const int top = std::max(ground.top(), std::min(place.top(), ground.bottom() - place.height()));
  return {QPoint(left, top), place.size()};
}

bool isOnAScreen(const QRect& place) {
  const auto screens = QGuiApplication::screens();
  return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
    return screen->availableGeometry().contains(place.center());
  });
}

}  // namespace

QString widgetName(const Control& control) {
  QString name = QString::fromStdString(control.name());
  if (control.index() != Control::kNoIndex) name += "_" + QString::number(control.index());
  return name;
}

WindowView::WindowView(Window& window, MakeForm makeForm, EventLoop& loop, FormOrder& order,
                       BusyPointer& pointer)
    : window_(window),
      makeForm_(std::move(makeForm)),
      order_(order),
      pointer_(pointer),
      actions_(loop, pointer, [this] { showAll(); }) {
  window.attach(this);
  if (window.Visible.peek()) form();
}

WindowView::~WindowView() { window_.attach(nullptr); }

QWidget& WindowView::form() {
  if (!form_) this->makeForm();
  return *form_;
}

void WindowView::makeForm() {
  form_ = makeForm_();
  growWithLetters(*form_, growthOfLetters());
  order_.add(*form_);
  if (window_.design().Notice) makeNotice(*form_);
  form_->setProperty(kAsks, window_.design().Asks);
  form_->setWindowIconText(kDisplayName);
  form_->installEventFilter(this);
  bindControls();
  bindKeys();
  new Decorations(*form_, window_.platform());
  new FocusOnView(*form_);
  for (const PropertyBase* property : window_.properties()) {
    if (property->id() != PropertyId::Visible) show(property->id());
  }
  showVisible();  // when all the rest is there to be seen
}

void WindowView::bindControls() {
  for (QWidget* widget : form_->findChildren<QWidget*>()) {
    if (widget->property(PicturePainter::kProperty).isValid()) new PicturePainter(*widget);
  }
  for (Control* control : window_.controls()) {
    auto* widget = form_->findChild<QWidget*>(widgetName(*control));
    if (control->isUnseen() || widget == nullptr) continue;
    if (auto view = makeControlView(*control, *widget, actions_)) {
      controls_.push_back(std::move(view));
    } else {
      qWarning() << "no view of" << control->fullName().c_str() << "on a"
                 << widget->metaObject()->className();
    }
  }
}

// As shortcuts, for a box that takes typing keeps those keys to itself.
void WindowView::bindKeys() {
  for (const auto& view : controls_) {
    const char key = view->control().key();
    if (key == 0) continue;
    const QKeySequence sequence = key == Control::kBackspaceKey ? QKeySequence(Qt::Key_Backspace)
                                                                : QKeySequence(QString(key));
    auto* shortcut = new QShortcut(sequence, form_.get());
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, [pressed = view.get()] { pressed->press(); });
  }
}

ControlView* WindowView::viewOf(const Control& control) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const auto& view) { return &view->control() == &control; });
  return found == controls_.end() ? nullptr : found->get();
}

// Enter and Escape, where nothing that has the focus takes them. Whether there is a button for it.
bool WindowView::pressFor(int key) {
  const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (!isEnter && key != Qt::Key_Escape) return false;
  for (const auto& view : controls_) {
    const auto* button = dynamic_cast<const CommandButton*>(&view->control());
    if (button == nullptr || !(isEnter ? button->isDefault() : button->isCancel())) continue;
    view->press();
    return true;
  }
  return false;
}

void WindowView::showAll() {
  showState();
  for (const auto& control : controls_) control->showAll();
}

void WindowView::changed(PropertyId property) {
  if (form_) {
    show(property);
  } else if (property == PropertyId::Visible && window_.Visible.peek()) {
    makeForm();
  }
}

void WindowView::show(PropertyId property) {
  switch (property) {
    case PropertyId::Caption: showCaption(); break;
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

// Qt keeps a place for a mark in "[*]"; twice, it stands for itself. A title that is empty gets the
// program's name from it, and one of a blank doesn't.
void WindowView::showCaption() {
  const std::string& caption = window_.Caption.peek();
  form_->setWindowTitle(caption.empty() ? QString(" ") : toQt(caption).replace("[*]", "[*][*]"));
}

void WindowView::showVisible() {
  if (window_.Visible.peek()) {
    comeUp();
  } else if (!form_->isHidden()) {
    goAway();
  }
}

// The keyboard is the user's: while another program has it, no window takes it, and only what is
// urgent comes up over the other's windows.
void WindowView::comeUp() {
  const bool isElsewhere = order_.isElsewhere(*form_);
  const bool takesKeyboard = !window_.design().Quiet && !isElsewhere;
  form_->setAttribute(Qt::WA_ShowWithoutActivating, !takesKeyboard);
  if (form_->isHidden()) place();
  // Asked for by the user, and not by what goes on underneath.
  if (form_->isMinimized() && !isElsewhere && pointer_.isGoingOn()) {
    form_->setWindowState(form_->windowState() & ~Qt::WindowMinimized);
  }
  if (window_.design().Asks && form_->isHidden()) pointer_.ask(this);
  if (window_.design().Notice) tieNotice(*form_, order_.lastOnView(*form_));
  if (window_.design().Quiet && form_->isHidden()) takeKeysUnused(*form_);
  form_->show();
  bringToFront(isElsewhere);
  if (takesKeyboard && !form_->isMinimized()) form_->activateWindow();
}

// What isn't urgent neither covers another program's windows nor one that asks the user.
void WindowView::bringToFront(bool isElsewhere) {
  const WindowDesign& design = window_.design();
  if (!isElsewhere || design.Urgent) {
    form_->raise();
  } else if (design.Notice) {
    form_->lower();
  }
  QWidget* last = order_.lastOnView(*form_);
  const bool isAsking = last != nullptr && last->property(kAsks).toBool();
  if (isAsking && design.Quiet && !design.Urgent && !isElsewhere) last->raise();
}

// The window that had the keyboard before gets it back.
void WindowView::goAway() {
  const bool hadKeyboard = form_->isActiveWindow();
  lastPlace_ = form_->pos();
  form_->hide();
  pointer_.answered(this);
  if (!hadKeyboard) return;
  if (QWidget* next = order_.lastOnView(*form_)) {
    next->raise();
    next->activateWindow();
  }
}

// Where the user left it; at first over the window that the user has before him, no larger than the
// screen, on which all of it can be reached.
void WindowView::place() {
  if (window_.Centred.peek()) return centreIfAsked();
  if (form_->isMaximized()) return;
  if (lastPlace_ && isOnAScreen({*lastPlace_, form_->size()})) {
    form_->move(*lastPlace_);
    // Qt takes that for nothing new, and a desktop finds a place of its own for a window without
    // one.
    if (QWindow* native = form_->windowHandle()) native->setFramePosition(*lastPlace_);
    return;
  }
  const QWidget* below = order_.lastOnView(*form_);
  form_->ensurePolished();
  const QSize room = form_->screen()->availableGeometry().size() - frameOf(below);
  fitInto(*form_, room);
  form_->resize(form_->size().boundedTo(room));
  if (below != nullptr) {
    centreOver(below->frameGeometry());
  } else if (lastPlace_) {
    centreOver(QGuiApplication::primaryScreen()->availableGeometry());
  }
}

void WindowView::centreOver(const QRect& ground) {
  const QWidget* below = order_.lastOnView(*form_);
  QRect place({}, form_->size().expandedTo(form_->minimumSizeHint()) + frameOf(below));
  place.moveCenter(ground.center());
  const QScreen* screen = below != nullptr ? below->screen() : QGuiApplication::primaryScreen();
  form_->move(within(place, screen->availableGeometry()).topLeft());
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

// The state by the time that the event runs: the user may have minimised and restored by then.
void WindowView::takeState() {
  actions_.post([this] {
    const int state = panelState(form_->windowState());
    return state == window_.WindowState.peek() || window_.userState(state);
  });
}

// The desktop has changed the state by the time it is told, closing waits for the panel's word.
bool WindowView::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::Close:
      event->ignore();
      // With the window that it belongs to, and not by its user.
      if (window_.design().Notice && givesKeyboardToWhatComesUp()) return true;
      actions_.post(*form_,
                    [this, veil = std::make_shared<Veil>(*form_)] { return window_.userClose(); });
      return true;
    case QEvent::WindowStateChange:
      if (panelState(form_->windowState()) != window_.WindowState.peek()) takeState();
      return false;
    case QEvent::KeyPress: return pressFor(static_cast<const QKeyEvent*>(event)->key());
    default: return false;
  }
}

}  // namespace gsm
