#include "ui/views/list_views.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>

#include "controls/text_box.h"
#include "platform/qt/text_codec.h"
#include "ui/views/screen_text.h"

namespace gsm {
namespace {

void append(QComboBox& widget, const QString& item, const QString& tip) {
  widget.addItem(item);
  widget.setItemData(widget.count() - 1, tip, Qt::ToolTipRole);
}

void append(QListWidget& widget, const QString& item, const QString& tip) {
  widget.addItem(item);
  widget.item(widget.count() - 1)->setToolTip(tip);
}

QString tipOf(const ListControl& control, int item) {
  const auto& tips = control.ItemTips.peek();
  const bool known = item >= 0 && item < static_cast<int>(tips.size());
  return known ? asTip(toQt(tips[static_cast<std::size_t>(item)])) : QString();
}

// Makes `shown`, the items that `widget` shows, equal to those of `control`. Lists grow item by
// item, so what is added is only appended, and what was there isn't even looked at.
template <class Widget>
void showList(Widget& widget, std::vector<std::string>& shown, const ListControl& control) {
  const auto& items = control.List.peek();
  const bool hasGrown =
      control.itemsKept() == shown.size() ||
      (items.size() >= shown.size() && std::equal(shown.begin(), shown.end(), items.begin()));
  if (!hasGrown) {
    widget.clear();
    shown.clear();
  }
  for (std::size_t item = shown.size(); item < items.size(); ++item) {
    append(widget, toQt(items[item]), tipOf(control, static_cast<int>(item)));
    shown.push_back(items[item]);
  }
}

}  // namespace

ComboView::ComboView(ComboBox& control, QComboBox& widget, const UserActions& actions)
    : ViewOf(control, widget, actions) {
  widget.setEditable(control.isEditable());
  widget.setInsertPolicy(QComboBox::NoInsert);
  // The one by which the style sheet says how entries look.
  widget.setItemDelegate(new QStyledItemDelegate(&widget));
  connect(&widget, &QComboBox::activated, this,
          [this](int index) { post([this, index] { return control_.userSelect(index); }); });
  widget.view()->installEventFilter(this);
  if (!control.isEditable()) return;
  // Typing selects no item, and no item finishes what is typed.
  widget.setCompleter(nullptr);
  widget.lineEdit()->disconnect(SIGNAL(editingFinished()), &widget);
  // Not only what keys do: assistive technology puts texts in. An item that is picked shows its
  // own.
  connect(widget.lineEdit(), &QLineEdit::textChanged, this, [this](const QString& text) {
    const int item = widget_.currentIndex();
    if (item < 0 || widget_.itemText(item) != text) takeTyping();
  });
}

// Only the list itself tells that it is being opened, by whatever way.
bool ComboView::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Show) {
    actions().post([this] {
      const auto before = shown_;
      const bool done = control_.userDropDown();
      if (shown_ != before) fitOpenList();
      return done;
    });
  }
  return false;
}

// Qt gives the list its size when it is opened.
void ComboView::fitOpenList() {
  if (!widget_.view()->isVisible()) return;
  const QSignalBlocker quiet(widget_.view());
  widget_.hidePopup();
  widget_.view()->removeEventFilter(this);
  widget_.showPopup();
  widget_.view()->installEventFilter(this);
}

// What the box holds by then, as with a text box.
void ComboView::takeTyping() {
  actions().post([this] {
    const QString typed = widget_.currentText();
    const bool done = control_.userEdit(fromQt(typed));
    if (widget_.currentText() == typed) showText();  // the control may have taken less
    return done;
  });
}

void ComboView::show(PropertyId property) {
  const QSignalBlocker quiet(widget_);
  const QSignalBlocker quietEdit(widget_.lineEdit());
  if (property == PropertyId::List) showItems();
  if (property == PropertyId::ListIndex) showSelection();
  if (property == PropertyId::Text) showText();
}

// Qt selects an item of its own accord when a list gets its first one.
void ComboView::showItems() {
  showList(widget_, shown_, control_);
  showSelection();
  showText();
}

void ComboView::showSelection() {
  const int index = control_.ListIndex.peek();
  widget_.setToolTip(tipOf(control_, index));
  if (widget_.currentIndex() == index) return;
  if (index >= 0 || !control_.isEditable()) {
    widget_.setCurrentIndex(index);
    return;
  }
  // Qt empties the box with the selection, but to lose the selection is what typing does.
  const QString text = widget_.lineEdit()->text();
  const int caret = widget_.lineEdit()->cursorPosition();
  widget_.setCurrentIndex(index);
  widget_.lineEdit()->setText(text);
  widget_.lineEdit()->setCursorPosition(caret);
}

void ComboView::showText() {
  if (!control_.isEditable()) return;
  const std::string& text = control_.Text.peek();
  if (fromQt(widget_.lineEdit()->text()) != text) widget_.setEditText(toQt(text));
}

ListView::ListView(ListBox& control, QListWidget& widget, const UserActions& actions)
    : ViewOf(control, widget, actions) {
  // Not the current item: Qt moves that to the first one when the list gets the focus.
  connect(&widget, &QListWidget::itemSelectionChanged, this, [this] { pick(selected()); });
  // A press on the item that is selected already changes nothing in Qt, and is a pick all the same.
  connect(&widget, &QListWidget::itemPressed, this, [this](const QListWidgetItem* item) {
    if (widget_.row(item) == control_.ListIndex.peek()) pick(widget_.row(item));
  });
}

int ListView::selected() const {
  const auto items = widget_.selectedItems();
  return items.isEmpty() ? -1 : widget_.row(items.front());
}

void ListView::pick(int index) {
  post([this, index] { return control_.userSelect(index); });
}

void ListView::show(PropertyId property) {
  const QSignalBlocker quiet(widget_);
  if (property == PropertyId::List) showItems();
  if (property == PropertyId::ListIndex) showSelection();
}

void ListView::showItems() {
  showList(widget_, shown_, control_);
  showSelection();
}

void ListView::showSelection() {
  if (selected() == control_.ListIndex.peek()) return;
  widget_.clearSelection();
  widget_.setCurrentRow(control_.ListIndex.peek());
}

}  // namespace gsm
