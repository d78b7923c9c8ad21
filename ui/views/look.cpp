#include "ui/views/look.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QStyleFactory>

#include "ui/forms.h"

namespace gsm {

void dressApplication() {
  ui::initResources();
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setWindowIcon(QIcon(":/icons/gsm-application.svg"));
  if (QFile style(":/style.qss"); style.open(QIODevice::ReadOnly)) {
    qApp->setStyleSheet(QString::fromUtf8(style.readAll()));
  }
}

}  // namespace gsm
