#pragma once

#include <QObject>
#include <QWidget>
#include <vector>

namespace gsm {

/// The forms of the program's windows, in the order in which they last had the keyboard.
class FormOrder : public QObject {
 public:
  /// Watches `form` from now on, until it is destroyed.
  void add(QWidget& form);

  /// The form on view that has the keyboard or had it last, and isn't `form`; null when no other
  /// window that ever had it is on view.
  QWidget* lastOnView(const QWidget& form) const;

  /// Whether the keyboard is the user's to give: another program has it, and a window of this one
  /// is on view for the user to come back to.
  bool isElsewhere(const QWidget& form) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::vector<QWidget*> forms_;  // the one with the keyboard last
};

}  // namespace gsm
