#include "ui/views/text_views.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTextCursor>
#include <algorithm>

#include "platform/qt/text_codec.h"

namespace gsm {
namespace {

constexpr int kNoLimit = 32767;  // Qt's own

// Keys that act on the widget and are no characters to the panel, although Qt gives them one.
bool isCommand(const QKeyEvent& key) {
  constexpr Qt::KeyboardModifiers kOfCommands =
      Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return (key.modifiers() & kOfCommands) != Qt::NoModifier || key.key() == Qt::Key_Tab ||
         key.key() == Qt::Key_Backtab || key.key() == Qt::Key_Delete;
}

// What `event` is about to type; empty when it types nothing. The key that deletes backward types
// its character too.
QString typedBy(const QEvent& event) {
  if (event.type() == QEvent::InputMethod) {
    return static_cast<const QInputMethodEvent&>(event).commitString();
  }
  if (event.type() != QEvent::KeyPress) return {};
  const auto& key = static_cast<const QKeyEvent&>(event);
  return isCommand(key) ? QString() : key.text();
}

}  // namespace

TextView::TextView(TextBox& control, QWidget& widget, const UserActions& actions)
    : ControlView(control, widget, actions), control_(control) {
  widget.installEventFilter(this);
}

void TextView::show(PropertyId property) {
  if (property == PropertyId::MaxLength) setLimit(control_.MaxLength.peek());
  if (property == PropertyId::Text) showText(control_.Text.peek());
}

void TextView::showText(const std::string& text) {
  const QString shown = forWidget(text);
  if (shown != shownText()) setShownText(shown);
}

void TextView::take() {
  actions().post([this] { return takeNow(); });
}

// What the panel won't have of the text (characters that it lacks, more than the limit) goes from
// the widget first: once handlers run, there may be newer text in it.
bool TextView::takeNow() {
  const std::string held = forPanel(shownText());
  const std::string text = control_.admitted(held);
  const int refused = static_cast<int>(held.size() - text.size());
  const auto kept = static_cast<std::size_t>(std::max(caret() - refused, 0));
  showText(text);
  // The caret goes back over what was refused.
  if (refused > 0) setCaret(static_cast<int>(forWidget(text.substr(0, kept)).size()));
  const bool done = control_.userEdit(text, caret());
  // What the control took may be less; what has been typed meanwhile takes a turn of its own.
  if (shownText() == forWidget(text)) showText(control_.Text.peek());
  return done;
}

bool TextView::eventFilter(QObject*, QEvent* event) {
  return control_.KeyPress && filter(typedBy(*event));
}

// Lets the control's filter see what is typed. Whether the event ends here, since the filter
// discarded a character or put another one in its place.
bool TextView::filter(const QString& typed) {
  std::string passed;
  const std::string keys = fromQt(typed);
  for (const char key : keys) {
    const int code = control_.KeyPress(static_cast<unsigned char>(key));
    if (code != 0) passed += static_cast<char>(code);
  }
  if (passed == keys) return false;
  insert(toQt(passed));
  return true;
}

LineView::LineView(TextBox& control, QLineEdit& widget, const UserActions& actions)
    : TextView(control, widget, actions), widget_(widget) {
  if (control.isMasked()) widget.setEchoMode(QLineEdit::Password);
  // Not only what keys do: assistive technology puts texts in.
  connect(&widget, &QLineEdit::textChanged, this, [this] { take(); });
}

QString LineView::shownText() const { return widget_.text(); }

QString LineView::forWidget(const std::string& text) const { return toQt(text); }

std::string LineView::forPanel(const QString& text) const { return singleLine(fromQt(text)); }

void LineView::setShownText(const QString& text) {
  const QSignalBlocker quiet(widget_);
  const int position = widget_.cursorPosition();
  widget_.setText(
      text);  // which leaves the cursor at the end, where keys go in a box not typed into
  if (widget_.isEnabled()) widget_.setCursorPosition(position);
}

void LineView::insert(const QString& text) {
  if (!text.isEmpty()) widget_.insert(text);
}

int LineView::caret() const { return widget_.cursorPosition(); }

void LineView::setCaret(int position) { widget_.setCursorPosition(position); }

// Qt cuts off what is beyond the limit, which is no edit by the user.
void LineView::setLimit(int length) {
  const QSignalBlocker quiet(widget_);
  widget_.setMaxLength(length > 0 ? length : kNoLimit);
}

LinesView::LinesView(TextBox& control, QPlainTextEdit& widget, const UserActions& actions)
    : TextView(control, widget, actions), widget_(widget) {
  widget.setTabChangesFocus(true);
  connect(&widget, &QPlainTextEdit::textChanged, this, [this] { take(); });
}

QString LinesView::shownText() const { return widget_.toPlainText(); }

QString LinesView::forWidget(const std::string& text) const {
  return toQt(text).replace("\r\n", "\n").replace('\r', '\n');
}

std::string LinesView::forPanel(const QString& text) const {
  return fromQt(QString(text).replace('\n', "\r\n"));
}

void LinesView::setShownText(const QString& text) {
  const QSignalBlocker quiet(widget_);
  const int position = widget_.textCursor().position();
  widget_.setPlainText(text);
  setCaret(std::min(position, static_cast<int>(text.size())));
}

void LinesView::insert(const QString& text) { widget_.insertPlainText(text); }

int LinesView::caret() const {
  const QString before = shownText().left(widget_.textCursor().position());
  return static_cast<int>(forPanel(before).size());
}

void LinesView::setCaret(int position) {
  QTextCursor cursor = widget_.textCursor();
  cursor.setPosition(position);
  widget_.setTextCursor(cursor);
}

}  // namespace gsm
