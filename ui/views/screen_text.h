#pragma once

#include <QString>
#include <QWidget>

namespace gsm {

/// `text` such that Qt shows each "&" of it where it would take a single one for a mnemonic.
QString withoutMnemonics(QString text);

/// `text` without the carriage returns and line feeds at its end. Slices of a reply are often cut
/// there, and would be drawn off their line.
QString withoutLineEnd(QString text);

/// `text` such that Qt takes no part of it for markup in a tool tip.
QString asTip(const QString& text);

/// Has the program's style look at the properties of `widget` again.
void polishAnew(QWidget& widget);

/// Gives `widget` its form's own style sheet `formStyle` and, when `colour` (blue in the high byte)
/// isn't `usual`, that colour as the style property `property`. The usual one is left to the
/// program's style.
void showColour(QWidget& widget, const QString& formStyle, const QString& property, int colour,
                int usual);

}  // namespace gsm
