#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "panel/panel.h"
#include "tour/deeds.h"

namespace gsm {

struct Stop {
  const char* name;
  Deed deed;  // none: only looks on
  const char* expectation;
  std::function<bool()> arrived;
};

using Route = std::vector<Stop>;

/// The route of that name: "panel", through the windows of a panel whose SIM is ready; "pin", past
/// the prompt for the SIM's code; "services", past it too and through messages, network services,
/// locks and sound; "features", through the modem's own settings, data and fax and the module's own
/// features. What the last two meet is that of a simulated modem as it comes. `console` is the
/// simulated modem's; without one, as with a real modem, nobody calls or writes. None when there is
/// no such route.
std::optional<Route> routeOf(const QString& name, Panel& panel, const QString& console);

}  // namespace gsm
