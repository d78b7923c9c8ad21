#include <QApplication>
#include <QFile>

#include "app/panel.h"
#include "platform/qt/binder.h"
#include "platform/qt/desktop.h"

// The panel on the desktop. It reads no command line; Qt takes its own options off it.
int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  const QByteArray folder = QFile::encodeName(QCoreApplication::applicationDirPath());
  gsm::Desktop desktop({.programFolder = folder.toStdString()});
  gsm::Panel panel(desktop.platform());
  gsm::Binder screen(desktop.platform().loop);
  screen.bind(panel.windows());
  panel.start();
  desktop.run();
}
