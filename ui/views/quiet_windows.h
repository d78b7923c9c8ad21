#pragma once

#include <QWidget>

namespace gsm {

/// Whether the desktop gives the keyboard to each window that comes up, and places it as it likes.
/// Those under Wayland do, others leave both to the program.
bool givesKeyboardToWhatComesUp();

/// Makes `form` a window that comes and goes by itself: it has no frame to take it by, and what the
/// user does goes through it.
void makeNotice(QWidget& form);

/// Has a notice that is about to be shown belong to the window on view below it, if there is one.
/// So that window keeps the keyboard on every desktop.
void tieNotice(QWidget& form, const QWidget* below);

/// Keeps the keys that are meant for another window from pressing anything on `form`, which has
/// just come up, until the user goes on to one of its controls.
void takeKeysUnused(QWidget& form);

}  // namespace gsm
