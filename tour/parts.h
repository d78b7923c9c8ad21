#pragma once

#include <QString>

#include "panel/panel.h"
#include "tour/routes.h"

namespace gsm {

// The parts of a route that begin at the main window and lead back to it.

/// Reads a message that comes in, and sends and saves another one. Wants names in the phone book.
/// Without a `console` nothing comes in.
Route messages(Panel& panel, const QString& console);

/// Registers a forwarding, and turns to barring, waiting and user group.
Route services(Panel& panel);

/// Looks at the three locks, and turns the SIM's PIN, which is on, off and on again.
Route locks(Panel& panel);

/// Changes gains, echo cancellation, side tone, auto-answer and tone length, which are those of a
/// modem as it comes.
Route audio(Panel& panel);

}  // namespace gsm
