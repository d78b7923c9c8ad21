#include "ui/views/accessibility.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

namespace gsm {
namespace {

// A key of the dial pad, or a label that acts like a button.
class ClickableInterface : public QAccessibleWidget {
 public:
  explicit ClickableInterface(QLabel& label)
      : QAccessibleWidget(&label, QAccessible::Button), label_(label) {}

  QString text(QAccessible::Text kind) const override {
    const QString own = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && own.isEmpty() ? label_.text() : own;
  }

  QStringList actionNames() const override {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
  }

  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    if (!label_.isEnabled()) return;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QApplication::sendEvent(&label_, &press);
  }

 private:
  QLabel& label_;
};

// Qt gives out what is chosen for a combo's name.
class ComboInterface : public QAccessibleWidget {
 public:
  explicit ComboInterface(QComboBox& combo)
      : QAccessibleWidget(&combo, QAccessible::ComboBox), combo_(combo) {}

  int childCount() const override { return combo_.isEditable() ? 2 : 1; }

  QAccessibleInterface* child(int index) const override {
    if (index == 0) return QAccessible::queryAccessibleInterface(combo_.view());
    const bool isEdit = index == 1 && combo_.isEditable();
    return isEdit ? QAccessible::queryAccessibleInterface(combo_.lineEdit()) : nullptr;
  }

  int indexOfChild(const QAccessibleInterface* each) const override {
    if (each->object() == combo_.view()) return 0;
    return combo_.isEditable() && each->object() == combo_.lineEdit() ? 1 : -1;
  }

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? combo_.currentText() : QAccessibleWidget::text(kind);
  }

  QStringList actionNames() const override {
    return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
  }

  void doAction(const QString& name) override {
    if (name != showMenuAction() && name != pressAction()) {
      return QAccessibleWidget::doAction(name);
    }
    if (combo_.view()->isVisible()) {
      combo_.hidePopup();
    } else {
      combo_.showPopup();
    }
  }

 private:
  QComboBox& combo_;
};

// To Qt a plain widget is nothing, on its own too.
bool isForm(const QObject& object) {
  return object.metaObject() == &QWidget::staticMetaObject &&
         static_cast<const QWidget&>(object).isWindow();
}

QAccessibleInterface* describe(const QString&, QObject* object) {
  if (auto* combo = qobject_cast<QComboBox*>(object)) return new ComboInterface(*combo);
  if (isForm(*object)) {
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Window);
  }
  auto* label = qobject_cast<QLabel*>(object);
  if (label == nullptr) return nullptr;
  const QVariant role = label->property("role");
  return role == "key" || role == "link" ? new ClickableInterface(*label) : nullptr;
}

}  // namespace

void describeForms() { QAccessible::installFactory(describe); }

}  // namespace gsm
