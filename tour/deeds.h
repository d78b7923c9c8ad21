#pragma once

#include <QString>
#include <functional>
#include <string>

#include "controls/window.h"
#include "ui/views/binder.h"

namespace gsm {

/// What the user does on the way to a stop. Throws `std::runtime_error` when it can't be done.
using Deed = std::function<void(const Binder& screen)>;

/// Clicks the middle of a control with the left button of the mouse.
Deed click(const Control& control);

/// Types `keys` into a control, key by key.
Deed type(const Control& control, const char* keys);

/// Picks the item at `index`, counted from 0, by its place on the screen.
Deed pick(const Control& list, int index);

/// Closes a window by its close box.
Deed close(const Window& window);

/// Writes one line to the simulated modem's console, which is the pipe at `path`.
Deed say(const QString& path, const std::string& line);

}  // namespace gsm
