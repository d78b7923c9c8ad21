#include "platform/qt/qt_message_boxes.h"

#include <QApplication>
#include <QMessageBox>

#include "platform/qt/text_codec.h"

namespace gsm {

// A box that is on the screen, until the user has pressed OK.
class QtMessageBoxes::OnView {
 public:
  OnView(int& up, QMessageBox& box) : up_(up), isWaitedFor_(QApplication::overrideCursor()) {
    ++up_;
    // The program may show that it is busy, but now it waits for its user.
    if (isWaitedFor_) QApplication::setOverrideCursor(Qt::ArrowCursor);
    QObject::connect(&box, &QDialog::finished, [this] { end(); });
  }
  ~OnView() { end(); }
  OnView(const OnView&) = delete;
  OnView& operator=(const OnView&) = delete;

 private:
  void end() {
    if (ended_) return;
    ended_ = true;
    --up_;
    if (isWaitedFor_) QApplication::restoreOverrideCursor();
  }

  int& up_;
  const bool isWaitedFor_;
  bool ended_ = false;
};

void QtMessageBoxes::show(const std::string& text, const std::string& title, BoxIcon icon) {
  QMessageBox box(icon == BoxIcon::critical ? QMessageBox::Critical : QMessageBox::NoIcon,
                  toQt(title), QString(), QMessageBox::Ok, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);  // what the modem says is never markup
  box.setText(toQt(text));
  // A box that comes while the user is in another program must not hide behind a window that stays
  // on top: it holds the whole panel.
  if (box.parentWidget() == nullptr) box.setWindowFlag(Qt::WindowStaysOnTopHint);
  const OnView onView(up_, box);
  box.exec();
}

}  // namespace gsm
