#include <QApplication>
#include <QFile>

#include "app/windows.h"
#include "platform/qt/desktop.h"
#include "ui/views/binder.h"
#include "ui/views/look.h"

// The panel on the desktop. It reads no command line; Qt takes its own options off it.
int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  gsm::dressApplication();
  const QByteArray folder = QFile::encodeName(QCoreApplication::applicationDirPath());
  gsm::Desktop desktop({.programFolder = folder.toStdString()});
  gsm::Windows windows(desktop.platform());
  gsm::Binder screen(desktop.platform().loop);
  screen.bind(desktop.platform().windows);
  gsm::start(windows.panel);
  desktop.run();
}
