#pragma once

#include <QString>
#include <QWidget>

namespace gsm {

/// How large the desktop's letters are, 1 for those of most desktops and never less.
double growthOfLetters();

/// A style sheet with its letters, and what is measured by them, as much larger.
QString grownWithLetters(QString sheet, double growth);

/// Has what a form fixes in pixels grow alike, before anything on it has been on view.
void growWithLetters(QWidget& form, double growth);

}  // namespace gsm
