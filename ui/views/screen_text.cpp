#include "ui/views/screen_text.h"

#include <QColor>
#include <QStyle>
#include <QTextDocument>

namespace gsm {

QString withoutMnemonics(QString text) { return text.replace('&', "&&"); }

QString withoutLineEnd(QString text) {
  while (text.endsWith('\r') || text.endsWith('\n')) text.chop(1);
  return text;
}

// Tool tips guess whether a text is markup. A mark without width keeps its signs from being any.
QString asTip(const QString& text) {
  if (!Qt::mightBeRichText(text)) return text;
  constexpr QChar kZeroWidth(0x200B);
  return QString(text)
      .replace('&', QString('&') + kZeroWidth)
      .replace('<', QString('<') + kZeroWidth);
}

void polishAnew(QWidget& widget) {
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
}

void showColour(QWidget& widget, const QString& formStyle, const QString& property, int colour,
                int usual) {
  QString style = formStyle;
  if (colour != usual) {
    const QColor shown(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
    style += property + ": " + shown.name() + ";";
  }
  if (widget.styleSheet() != style) widget.setStyleSheet(style);
}

}  // namespace gsm
