#pragma once

#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "controls/list_controls.h"
#include "controls/tab_strip.h"
#include "controls/window.h"
#include "ui/views/binder.h"

namespace gsm {

/// What the user does on the way to a stop. Throws `std::runtime_error` when it can't be done.
using Deed = std::function<void(const Binder& screen)>;

/// Clicks a control with the left button of the mouse: its middle, or the mark of an option.
Deed click(const Control& control);

/// Clicks tab `tab`, counted from 1 as the strip counts.
Deed turn(const TabStrip& strip, int tab);

/// Types `keys` into a control, key by key.
Deed type(const Control& control, const char* keys);

/// Presses one key, which has no character, on a control.
Deed press(const Control& control, Qt::Key key);

/// Picks the item at `index`, counted from 0, by its place on the screen.
Deed pick(const Control& list, int index);

/// Drops a drop-down's list, goes to the item at `index`, counted from 0, and takes it by key.
Deed choose(const ComboBox& combo, int index);

/// Closes a window by its close box.
Deed close(const Window& window);

/// Does all of `deeds`, one after another.
Deed inTurn(std::vector<Deed> deeds);

/// Writes one line to the simulated modem's console, which is the pipe at `path`.
Deed say(const QString& path, const std::string& line);

}  // namespace gsm
