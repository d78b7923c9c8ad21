#include "ui/views/screen_text.h"

#include <QColor>

namespace gsm {

QString withoutMnemonics(QString text) { return text.replace('&', "&&"); }

// Tool tips guess whether a text is markup; one that is marked up is never guessed at.
QString asTip(const QString& text) {
  return text.isEmpty() ? text : "<qt>" + text.toHtmlEscaped() + "</qt>";
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
