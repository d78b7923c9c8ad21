// empty-window [WORD]: the least that a program on the same toolkit can be, one empty window, or
// one with a word in it, which is what makes the toolkit look for fonts. What the desktop figures
// are held against.

#include <QApplication>
#include <QLabel>
#include <QWidget>
#include <optional>

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  QWidget window;
  window.setWindowTitle("EMPTY-WINDOW");
  window.resize(1000, 640);
  std::optional<QLabel> word;
  if (count > 1) word.emplace(QString::fromLocal8Bit(arguments[1]), &window);
  window.show();
  return QApplication::exec();
}
