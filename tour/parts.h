#pragma once

#include <QString>
#include <vector>

#include "panel/panel.h"
#include "tour/routes.h"

namespace gsm {

// The parts of a route that begin at the main window and lead back to it.

/// Reads a message that comes in, and sends and saves another one. Wants names in the phone book.
/// Without a `console` nothing comes in.
Route messages(Panel& panel, const QString& console);

/// Registers a forwarding, and turns to barring, waiting and user group.
Route services(Panel& panel);

/// Opens the menu of the module's features, goes through `parts`, each of which begins at the menu
/// and leads back to it, and leaves the menu.
Route features(Panel& panel, const std::vector<Route>& parts);

/// Turns through the pages of the maker's own features, one of `features`. Switches nothing off.
Route makersFeatures(Panel& panel);

/// Configures the SIM toolkit, one of `features`.
Route toolkit(Panel& panel);

/// Defines a packet context, one of `features`. Wants the third one free.
Route contexts(Panel& panel);

/// Saves the modem's line settings, of which it refuses some the first time.
Route lineSettings(Panel& panel);

/// Looks at the three locks, and turns the SIM's PIN, which is on, off and on again.
Route locks(Panel& panel);

/// Sets the bearer, compression and error correction, and turns to the fax.
Route data(Panel& panel);

/// Changes gains, echo cancellation, side tone, auto-answer and tone length, which are those of a
/// modem as it comes.
Route audio(Panel& panel);

}  // namespace gsm
