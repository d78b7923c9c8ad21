#include "tour/deeds.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QRadioButton>
#include <QTabBar>
#include <QWidget>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace gsm {
namespace {

QWidget& onView(const Binder& screen, const Control& control) {
  QWidget* widget = screen.widget(control);
  if (widget == nullptr || !widget->isVisible()) {
    throw std::runtime_error(control.fullName() + " is not on view");
  }
  return *widget;
}

void clickAt(QWidget& widget, const QPoint& at) {
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const bool isPress = type == QEvent::MouseButtonPress;
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton,
                      isPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }
}

// An option hears the mouse on its mark and its words, which may end ahead of its middle.
QPoint toClick(const QWidget& widget) {
  constexpr int kIntoMark = 6;
  const QPoint middle = widget.rect().center();
  return qobject_cast<const QRadioButton*>(&widget) ? QPoint(kIntoMark, middle.y()) : middle;
}

}  // namespace

Deed click(const Control& control) {
  return [&control](const Binder& screen) {
    QWidget& widget = onView(screen, control);
    if (!widget.isEnabled()) throw std::runtime_error(control.fullName() + " is disabled");
    clickAt(widget, toClick(widget));
  };
}

Deed turn(const TabStrip& strip, int tab) {
  return [&strip, tab](const Binder& screen) {
    auto& bar = dynamic_cast<QTabBar&>(onView(screen, strip));
    clickAt(bar, bar.tabRect(tab - 1).center());
  };
}

Deed type(const Control& control, const char* keys) {
  return [&control, keys](const Binder& screen) {
    QWidget& widget = onView(screen, control);
    widget.setFocus(Qt::MouseFocusReason);
    for (const QChar key : QString(keys)) {
      QKeyEvent event(QEvent::KeyPress, key.toUpper().unicode(), Qt::NoModifier, key);
      QApplication::sendEvent(&widget, &event);
    }
  };
}

Deed press(const Control& control, Qt::Key key) {
  return [&control, key](const Binder& screen) {
    QWidget& widget = onView(screen, control);
    widget.setFocus(Qt::MouseFocusReason);
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  };
}

Deed pick(const Control& list, int index) {
  return [&list, index](const Binder& screen) {
    auto& widget = dynamic_cast<QListWidget&>(onView(screen, list));
    const QListWidgetItem* item = widget.item(index);
    if (item == nullptr) throw std::runtime_error(list.fullName() + " has too few items");
    clickAt(*widget.viewport(), widget.visualItemRect(item).center());
  };
}

Deed choose(const ComboBox& combo, int index) {
  return [&combo, index](const Binder& screen) {
    auto& widget = dynamic_cast<QComboBox&>(onView(screen, combo));
    if (index >= widget.count()) throw std::runtime_error(combo.fullName() + " has too few items");
    widget.showPopup();
    widget.view()->setCurrentIndex(widget.model()->index(index, widget.modelColumn()));
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(widget.view(), &event);
  };
}

Deed close(const Window& window) {
  return [&window](const Binder& screen) { screen.widget(window)->close(); };
}

Deed inTurn(std::vector<Deed> deeds) {
  return [deeds = std::move(deeds)](const Binder& screen) {
    for (const Deed& deed : deeds) deed(screen);
  };
}

Deed say(const QString& path, const std::string& line) {
  return [path, line](const Binder&) {
    std::ofstream console(QFile::encodeName(path).toStdString());
    if (!(console << line << '\n' << std::flush)) {
      throw std::runtime_error("the modem's console can't be written to");
    }
  };
}

}  // namespace gsm
