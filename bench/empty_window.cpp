// The least that a program on the same toolkit can be: one empty window. What the desktop figures
// are held against.

#include <QApplication>
#include <QWidget>

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  QWidget window;
  window.setWindowTitle("EMPTY-WINDOW");
  window.resize(1000, 640);
  window.show();
  return QApplication::exec();
}
