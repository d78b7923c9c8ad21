#include "tour/deeds.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QWidget>
#include <fstream>
#include <stdexcept>

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

}  // namespace

Deed click(const Control& control) {
  return [&control](const Binder& screen) {
    QWidget& widget = onView(screen, control);
    clickAt(widget, widget.rect().center());
  };
}

Deed type(const Control& control, const char* keys) {
  return [&control, keys](const Binder& screen) {
    for (const QChar key : QString(keys)) {
      QKeyEvent event(QEvent::KeyPress, key.toUpper().unicode(), Qt::NoModifier, key);
      QApplication::sendEvent(&onView(screen, control), &event);
    }
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

Deed close(const Window& window) {
  return [&window](const Binder& screen) { screen.widget(window)->close(); };
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
