#pragma once

#include <functional>

#include "controls/control.h"
#include "fuzz/player/decisions.h"
#include "platform/platform.h"

namespace gsm {

/// A control that a user may be after: mostly one in reach, now and then any. Null when there is
/// none.
Control* anyControl(const Platform& platform, Decisions& decisions);

/// What a user does to a control of that kind; false when it was out of reach. Nothing for a
/// control that takes nothing.
std::function<bool()> deed(Control& control, Decisions& decisions);

}  // namespace gsm
