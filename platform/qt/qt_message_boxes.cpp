#include "platform/qt/qt_message_boxes.h"

#include <QApplication>
#include <QMessageBox>

#include "platform/qt/text_codec.h"
#include "platform/scoped_value.h"

namespace gsm {

void QtMessageBoxes::show(const std::string& text, const std::string& title, BoxIcon icon) {
  const ScopedValue counted(up_, up_ + 1);
  QMessageBox box(icon == BoxIcon::critical ? QMessageBox::Critical : QMessageBox::NoIcon,
                  toQt(title), QString(), QMessageBox::Ok, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);  // what the modem says is never markup
  box.setText(toQt(text));
  // A box that comes while the user is in another program must not hide behind a window that stays
  // on top: it holds the whole panel.
  if (box.parentWidget() == nullptr) box.setWindowFlag(Qt::WindowStaysOnTopHint);
  box.exec();
}

}  // namespace gsm
