#include "ui/views/look.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPalette>
#include <QStyleFactory>
#include <QTimer>
#include <QToolTip>
#include <chrono>

#include "ui/forms.h"
#include "ui/views/accessibility.h"
#include "ui/views/letters.h"

namespace gsm {
namespace {

// The style sheet speaks for a light ground. What it leaves to the desktop's own colours would be
// unreadable on it where those are dark.
QPalette lightPalette() {
  QPalette palette(QColor(0xF3F6F7));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::ToolTipBase, Qt::white);
  palette.setColor(QPalette::Highlight, QColor(0x0B6E7F));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  const QColor ink(0x1F2A30);
  const QColor pale(0x7D8B92);
  for (const auto role :
       {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, ink);
    palette.setColor(QPalette::Disabled, role, pale);
  }
  return palette;
}

}  // namespace

void takeDesktopsLetters() {
  QFile style(":/style.qss");
  if (!style.open(QIODevice::ReadOnly)) return;
  const QString sheet = QString::fromUtf8(style.readAll());
  qApp->setStyleSheet(grownWithLetters(sheet, growthOfLetters()));
}

void dressApplication() {
  ui::initResources();
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(lightPalette());
  QToolTip::setPalette(lightPalette());
  describeForms();
  // The window first: desktops want the icon in several sizes, each drawn anew.
  constexpr std::chrono::milliseconds kLittleLater{200};
  auto* const later = new QTimer(qApp);
  later->setSingleShot(true);
  QObject::connect(later, &QTimer::timeout,
                   [] { QApplication::setWindowIcon(QIcon(":/icons/gsm-application.svg")); });
  later->start(kLittleLater);
  takeDesktopsLetters();
}

}  // namespace gsm
